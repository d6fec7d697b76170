#include "dialogs/ui/frmSelectHour.h"

#include <algorithm>
#include <cstdlib>

#include "common/Dates.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "common/ui/AccessibleRole.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/StationQString.h"
#include "common/ui/SystemColours.h"
#include "common/ui/TextBoxes.h"
#include "common/ui/Twips.h"
#include "dialogs/HourDialRules.h"
#include "dialogs/MonthCalendar.h"
#include "platform/Platform.h"
#include "ui_frmSelectHour.h"

namespace logchecker {

namespace {

constexpr char kCaption[] = "Select Time";
constexpr char kNoMinutes[] = "00";
constexpr int32_t kBlack = 0x000000;
constexpr int32_t kLastHour = 23;
constexpr int kLongestHourSelected = 3;  // characters

std::string TwoDigits(int32_t number) {
  const std::string digits = std::to_string(std::abs(number));
  return (number < 0 ? "-" : "") + (digits.size() < 2 ? "0" + digits : digits);
}

}  // namespace

frmSelectHour::frmSelectHour(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmSelectHour>()) {
  const BusyPointer busy;
  ui_->setupUi(this);
  SetGuidePage(*this, kGuideLoadDay);
  ui_->DateFrame->setAccessibleDescription(
      "Keys for the day: Left and Right by a day, Up and Down by a week");
  SetColours(*ui_->AMSH, kMorningColour, kBlack);
  SetColours(*ui_->PMSH, kAfternoonColour, kBlack);
  SetColours(*ui_->lblYear, kButtonFace, kButtonText);
  ColourCalendar();
  SetAccessibleRole(*ui_->calendar, QAccessible::List);
  ui_->AMSH->setAccessibleName("Green");
  ui_->PMSH->setAccessibleName("Red");
  FitTextSize();
  SuspendRedraw = true;
  for (int16_t month = 1; month <= 12; ++month) {
    ui_->MonthList->addItem(ToQString(GetMonthName(month)));
  }
  SuspendRedraw = false;
  ui_->txtMinutes->setText(kNoMinutes);
  Connect();
}

frmSelectHour::~frmSelectHour() = default;

void frmSelectHour::Connect() {
  for (int16_t label = 0; label < kCalendarLabels; ++label) {
    auto* day = findChild<ClickableLabel*>(QString("lblDay%1").arg(label));
    connect(day, &ClickableLabel::clicked, this, [this, label] { OnDayClicked(label); });
  }
  connect(ui_->MonthList, &QComboBox::activated, this, [this] { RedrawMonth(); });
  connect(ui_->MonthList, &QComboBox::currentIndexChanged, this, [this] { RedrawMonth(); });
  connect(ui_->YearScroll, &QScrollBar::valueChanged, this, [this](int value) {
    ui_->lblYear->setText(QString::number(std::abs(value)));
    RedrawMonth();
  });
  connect(ui_->DayScroll, &QScrollBar::valueChanged, this, [this](int value) {
    SelectedDay = static_cast<int16_t>(value);
    SelectDay();
  });
  connect(ui_->TimeT, &QLineEdit::textChanged, this,
          [this](const QString& text) { ui_->TimeP->SetHour(ToInt32(Val(FromQString(text)))); });
  connect(ui_->TimeP, &HourDial::pressed, this,
          [this](const QPointF& position) { Guarded([&] { OnDialPressed(position); }); });
  connect(ui_->TimeP, &HourDial::turned, this,
          [this](int32_t hour) { ui_->TimeT->setText(QString::number(hour)); });
  connect(ui_->TimeP, &HourDial::doubleClicked, this, [this] { ui_->OKB->click(); });
  connect(ui_->OKB, &QPushButton::clicked, this, [this] { OnOk(); });
  connect(ui_->CancelB, &QPushButton::clicked, this, [this] { OnCancel(); });
  // The toolkit turns left and right of its scroll bars about.
  ui_->DayScroll->setInvertedControls(false);
  ui_->YearScroll->installEventFilter(this);
  ui_->DayScroll->installEventFilter(this);
  SelectHeadOnFocus(*ui_->TimeT, kLongestHourSelected);
  TypeDigitsOnly(*ui_->TimeT);
}

void frmSelectHour::SetMinutes(const QString& minutes) { ui_->txtMinutes->setText(minutes); }

void frmSelectHour::DisableTime() {
  for (QWidget* part :
       std::initializer_list<QWidget*>{ui_->TimeP, ui_->lblAM, ui_->lblPM, ui_->lbl24Hour,
                                       ui_->lblTime, ui_->txtMinutes, ui_->TimeT}) {
    part->setEnabled(false);
  }
  SetColours(*ui_->TimeT, kButtonFace, kButtonText);
}

void frmSelectHour::showEvent(QShowEvent* event) {
  BecomeActive();
  QDialog::showEvent(event);
}

// A window that goes can be told on its way that it is active; its next showing has to begin anew.
void frmSelectHour::setVisible(bool visible) {
  shown_ = visible;
  QDialog::setVisible(visible);
}

void frmSelectHour::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitTextSize();
  if (event->type() == QEvent::ActivationChange && shown_ && isActiveWindow()) BecomeActive();
}

// Once per showing: later activations leave the choice alone.
void frmSelectHour::BecomeActive() {
  if (!Initialised) {
    SuspendRedraw = true;
    ui_->txtMinutes->setReadOnly(!AskMinutes);
    SetColours(*ui_->txtMinutes, AskMinutes ? kWindowBackground : kButtonFace,
               AskMinutes ? kWindowText : kButtonText);
    if (Tag.empty()) {
      TakePresentTime();
    } else {
      TakeTag();
    }
    if (hour_ < 0) {
      hour_ = kLastHour;
      --day_;
    }
    ui_->TimeT->setText(QString::number(hour_));
    ShowDate(day_);
    SuspendRedraw = false;
    RedrawMonth();
    Initialised = true;
  }
  Ui().SetMousePointer(MousePointer::kDefault);
}

void frmSelectHour::TakeTag() {
  day_ = ToInt32(Val(Mid(Tag, 1, 5)));
  hour_ = ToInt32(Val(Mid(Tag, 6, 2)));
  const int32_t minutes = ToInt32(Val(Mid(Tag, 9)));
  if (minutes != 0) ui_->txtMinutes->setText(ToQString(TwoDigits(minutes)));
}

// An hour back, which just after midnight is yesterday's last.
void frmSelectHour::TakePresentTime() {
  constexpr int32_t kSecondsAnHour = 3600;
  const DayAndSeconds now = SplitDateTime(Os().clock.Now());
  day_ = now.Days;
  hour_ = std::min(static_cast<int32_t>(now.Seconds) / kSecondsAnHour, kLastHour) - 1;
}

void frmSelectHour::ShowDate(int32_t day) {
  const auto date = DateOfDay(day);
  SelectedDay = static_cast<int16_t>(static_cast<unsigned>(date.day()));
  SelectedMonth = static_cast<int16_t>(static_cast<unsigned>(date.month()));
  const int year = static_cast<int>(date.year());
  const bool reachable = year >= kFirstCalendarYear && year <= kLastCalendarYear;
  SelectedYear =
      static_cast<int16_t>(reachable ? year : static_cast<int>(DateOfDay(Today()).year()));
  ui_->YearScroll->setValue(-SelectedYear);
  ui_->lblYear->setText(QString::number(SelectedYear));
  // A month of fewer days must not bring the day down on the way.
  const int16_t wanted = SelectedDay;
  ui_->MonthList->setCurrentIndex(SelectedMonth - 1);
  SelectedDay = wanted;
}

void frmSelectHour::OnDialPressed(const QPointF& position) {
  // In twips: whole pixels then never lie on the centre line of the dial's odd width.
  const std::optional<int32_t> hour =
      HourOfPress(position.x() * kTwipsPerPixel, position.y() * kTwipsPerPixel,
                  ToTwips(ui_->TimeP->width()), ToTwips(ui_->TimeP->height()));
  if (hour) ui_->TimeT->setText(QString::number(*hour));
}

void frmSelectHour::OnOk() {
  std::string tag = std::to_string(DayNumberOfChoice(SelectedDay, SelectedMonth, SelectedYear)) +
                    TwoDigits(ToInt32(Val(FromQString(ui_->TimeT->text()))));
  if (AskMinutes) {
    tag += ":" + TwoDigits(ToInt32(Val(FromQString(ui_->txtMinutes->text()))));
  }
  Leave(tag);
}

void frmSelectHour::OnCancel() { Leave(""); }

void frmSelectHour::Leave(const std::string& tag) {
  setWindowTitle(kCaption);
  ui_->txtMinutes->setText(kNoMinutes);
  AskMinutes = false;
  Tag = tag;
  Initialised = false;
  hide();
}

// Escape, as the button.
void frmSelectHour::reject() { ui_->CancelB->click(); }

// The user's closing is refused and counts as Cancel, so the window lives on. Any other, such as
// the program's end, passes.
void frmSelectHour::closeEvent(QCloseEvent* event) {
  ui_->CancelB->click();
  event->setAccepted(!event->spontaneous());
}

}  // namespace logchecker
