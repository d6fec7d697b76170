// The calendar of the window in which a day is picked.
#include <QFontInfo>
#include <QFontMetrics>
#include <QKeyEvent>
#include <algorithm>

#include "common/Numbers.h"
#include "common/ui/StationQString.h"
#include "common/ui/SystemColours.h"
#include "dialogs/MonthCalendar.h"
#include "dialogs/ui/DayLabel.h"
#include "dialogs/ui/frmSelectHour.h"
#include "ui_frmSelectHour.h"

namespace logchecker {

namespace {

constexpr int32_t kDayColour = 0x000000;
constexpr int32_t kSundayColour = 0x0000FF;
constexpr int32_t kPaper = 0xFFFFFF;
constexpr int32_t kPickedPaper = 0x800000;
constexpr int32_t kPickedDayColour = 0xFFFFFF;

// Pixels. Red stands out from white, and from the dark blue of the picked day, by no more than a
// large text in bold letters needs.
constexpr int kDaySize = 19;
constexpr int kDayMargins = 10;  // beside a day's digits, both sides together
constexpr int kYearMargins = 16;
constexpr int kLeastDayWidth = 34;
constexpr int kLeastDayHeight = 26;
constexpr int kLeastYearWidth = 52;

bool IsSunday(int label) { return label % kDaysInWeek == 0; }

}  // namespace

void frmSelectHour::ColourCalendar() {
  SetColours(*ui_->calendar, kPaper, kDayColour);
  for (int i = 0; i < kDaysInWeek; ++i) {
    SetColours(*LabelOfWeekday(i), kPaper, IsSunday(i) ? kSundayColour : kDayColour);
  }
}

void frmSelectHour::FitTextSize() {
  QFont days = font();
  days.setPixelSize(std::max(kDaySize, QFontInfo(days).pixelSize()));
  QFont sundays = days;
  sundays.setBold(true);
  for (int i = 0; i < kDaysInWeek; ++i) LabelOfWeekday(i)->setFont(IsSunday(i) ? sundays : days);
  const QFontMetrics widest(sundays);
  const QSize least(std::max(kLeastDayWidth, widest.horizontalAdvance("00") + kDayMargins),
                    std::max(kLeastDayHeight, widest.height()));
  for (int16_t i = 0; i < kCalendarLabels; ++i) {
    LabelOfDay(i)->setFont(IsSunday(i) ? sundays : days);
    LabelOfDay(i)->setMinimumSize(least);
  }
  const int year = QFontMetrics(font()).horizontalAdvance("0000") + kYearMargins;
  ui_->lblYear->setMinimumWidth(std::max(kLeastYearWidth, year));
}

void frmSelectHour::RedrawMonth() {
  if (SuspendRedraw) return;
  SelectedYear = ToInt16(Val(FromQString(ui_->lblYear->text())));
  SelectedMonth = static_cast<int16_t>(ui_->MonthList->currentIndex() + 1);
  DaysInMonth = DaysOfMonth(SelectedMonth, SelectedYear);
  SelectedDay = std::min(SelectedDay, DaysInMonth);
  FirstDayOffset = OffsetOfFirstDay(SelectedMonth, SelectedYear);
  for (int16_t label = 0; label < kCalendarLabels; ++label) {
    LabelOfDay(label)->clear();
    LabelOfDay(label)->setFrameShape(QFrame::NoFrame);
    LabelOfDay(label)->SetMarked(false);
    LabelOfDay(label)->setAccessibleName({});
    SetDayLook(label, false);
  }
  const QString rest = " " + ui_->MonthList->currentText() + " " + ui_->lblYear->text();
  for (int16_t day = 1; day <= DaysInMonth; ++day) {
    DayLabel* label = LabelOfDay(static_cast<int16_t>(FirstDayOffset + day));
    label->setText(QString::number(day));
    label->setAccessibleName(QString::number(day) + rest);
  }
  MarkedDay = 0;
  SelectDay();
}

void frmSelectHour::SelectDay() {
  SelectedDay = std::clamp(SelectedDay, int16_t{1}, DaysInMonth);
  const int16_t selected = SelectedDay;
  if (MarkedDay > 0) {
    LabelOfMarkedDay()->setFrameShape(QFrame::NoFrame);
    LabelOfMarkedDay()->SetMarked(selected == MarkedDay);
    SetDayLook(static_cast<int16_t>(FirstDayOffset + MarkedDay), false);
  }
  {
    const QSignalBlocker quiet(ui_->DayScroll);
    ui_->DayScroll->setValue(selected);
  }
  MarkedDay = selected;
  LabelOfMarkedDay()->setFrameShape(QFrame::Box);
  LabelOfMarkedDay()->SetMarked(true);
  SetDayLook(static_cast<int16_t>(FirstDayOffset + MarkedDay), DayHasFocus);
  ui_->DayScroll->setAccessibleDescription(LabelOfMarkedDay()->accessibleName());
}

DayLabel* frmSelectHour::LabelOfDay(int16_t label) const {
  return findChild<DayLabel*>(QString("lblDay%1").arg(label));
}

QLabel* frmSelectHour::LabelOfWeekday(int weekday) const {
  return findChild<QLabel*>(QString("lbl%1").arg(weekday));
}

DayLabel* frmSelectHour::LabelOfMarkedDay() const {
  return LabelOfDay(static_cast<int16_t>(FirstDayOffset + MarkedDay));
}

void frmSelectHour::SetDayLook(int16_t label, bool reverse) {
  const int32_t text = IsSunday(label) ? kSundayColour : reverse ? kPickedDayColour : kDayColour;
  SetColours(*LabelOfDay(label), reverse ? kPickedPaper : kPaper, text);
}

// An empty label comes out as the first or the last day, by the limit in SelectDay.
void frmSelectHour::OnDayClicked(int16_t label) {
  SelectedDay = static_cast<int16_t>(label - FirstDayOffset);
  SelectDay();
}

bool frmSelectHour::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->DayScroll && FilterDayScroll(event)) return true;
  if (watched == ui_->YearScroll) FilterYearScroll(event);
  return QDialog::eventFilter(watched, event);
}

// Up and down move by a week and left and right by a day, as the calendar looks.
bool frmSelectHour::FilterDayScroll(QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    DayHasFocus = event->type() == QEvent::FocusIn;
    if (MarkedDay > 0) {
      SetDayLook(static_cast<int16_t>(FirstDayOffset + MarkedDay), DayHasFocus);
    }
  }
  if (event->type() != QEvent::KeyPress) return false;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_PageUp:
      ui_->DayScroll->triggerAction(QAbstractSlider::SliderPageStepSub);
      return true;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
      ui_->DayScroll->triggerAction(QAbstractSlider::SliderPageStepAdd);
      return true;
    default:
      return false;
  }
}

void frmSelectHour::FilterYearScroll(QEvent* event) {
  if (event->type() == QEvent::FocusIn) SetColours(*ui_->lblYear, kHighlight, kHighlightText);
  if (event->type() == QEvent::FocusOut) SetColours(*ui_->lblYear, kButtonFace, kButtonText);
}

}  // namespace logchecker
