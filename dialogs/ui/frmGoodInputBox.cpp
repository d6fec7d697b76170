#include "dialogs/ui/frmGoodInputBox.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <limits>

#include "common/Numbers.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextBoxes.h"
#include "common/ui/Twips.h"
#include "ui_frmGoodInputBox.h"

namespace logchecker {

namespace {

// All in twips.
constexpr int kMargin = 120;
constexpr int kBoxWidth = 6000;
constexpr int kCaptionHeight = 600;
constexpr int kListHeight = 2700;
constexpr int kButtonWidth = 1275;

constexpr int kNoLimit = std::numeric_limits<int>::max();  // characters

QString SelectedPositions(const QListWidget& list) {
  QStringList positions;
  for (int row = 0; row < list.count(); ++row) {
    if (list.item(row)->isSelected()) positions.push_back(QString::number(row + 1));
  }
  return positions.join(',');
}

}  // namespace

frmGoodInputBox::frmGoodInputBox(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowStaysOnTopHint),
      ui_(std::make_unique<Ui::frmGoodInputBox>()) {
  ui_->setupUi(this);
  SelectAllOnFocus(*ui_->Text1);
  // What is typed is the answer, and not an item that begins with it.
  ui_->comboCombo->setCompleter(nullptr);
  SelectAllOnFocus(*ui_->comboCombo);
  connect(ui_->cmdOK, &QPushButton::clicked, this, [this] { OnOk(); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { OnCancel(); });
  ui_->listMultiNonSel->viewport()->installEventFilter(this);
  PlaceControls();
  Unload();
}

frmGoodInputBox::~frmGoodInputBox() = default;

void frmGoodInputBox::PlaceControls() {
  const int width = ToPixels(kBoxWidth - 2 * kMargin);
  const int left = ToPixels(kMargin);
  const int top = ToPixels(kMargin + kCaptionHeight);
  setFixedWidth(ToPixels(kBoxWidth));
  ui_->lblCaption->setGeometry(left, ToPixels(kMargin), width, ToPixels(kCaptionHeight));
  for (QWidget* box : std::initializer_list<QWidget*>{ui_->comboCombo, ui_->comboList,
                                                      ui_->comboSortedList, ui_->Text1}) {
    box->setGeometry(left, top, width, box->sizeHint().height());
  }
  ui_->listMulti->setGeometry(left, top, width, ToPixels(kListHeight));
  ui_->listMultiNonSel->setGeometry(left, top, width, ToPixels(kListHeight));
  const int buttonHeight = ui_->cmdOK->sizeHint().height();
  const int cancelLeft = left + width - ToPixels(kButtonWidth);
  ui_->cmdCancel->setGeometry(cancelLeft, 0, ToPixels(kButtonWidth), buttonHeight);
  ui_->cmdOK->setGeometry(cancelLeft - ToPixels(kButtonWidth + kMargin), 0, ToPixels(kButtonWidth),
                          buttonHeight);
}

void frmGoodInputBox::LayOutButtonsUnder(const QWidget& control) {
  const int top = control.y() + control.height() + ToPixels(kMargin);
  ui_->cmdCancel->move(ui_->cmdCancel->x(), top);
  ui_->cmdOK->move(ui_->cmdOK->x(), top);
  setFixedHeight(top + ui_->cmdOK->height() + ToPixels(kMargin));
}

void frmGoodInputBox::SetCaption(const std::string& question) {
  ui_->lblCaption->setText(AsMenuText(ToQString(question)));
  for (QWidget* control : std::initializer_list<QWidget*>{
           ui_->comboCombo, ui_->comboCombo->lineEdit(), ui_->comboList, ui_->comboSortedList,
           ui_->listMulti, ui_->listMultiNonSel, ui_->Text1}) {
    control->setAccessibleName(ToQString(question));
  }
}

void frmGoodInputBox::SetItems(const std::vector<std::string>& items) {
  QStringList texts;
  for (const std::string& item : items) texts.push_back(ToQString(item));
  if (UseComboSortedList) texts.sort(Qt::CaseInsensitive);
  // Nothing is chosen until the user chooses it.
  if (QComboBox* combo = ComboOfMode()) {
    combo->clear();
    combo->addItems(texts);
    combo->setCurrentIndex(-1);
  } else if (QListWidget* list = ListOfMode()) {
    list->clear();
    list->addItems(texts);
  }
}

void frmGoodInputBox::SetText(const std::string& text) {
  if (UseComboCombo) {
    ui_->comboCombo->setEditText(ToQString(text));
  } else {
    ui_->Text1->setText(ToQString(text));
  }
}

std::string frmGoodInputBox::CancelL() const { return FromQString(ui_->CancelL->text()); }

void frmGoodInputBox::SetCancelL(const std::string& outcome) {
  ui_->CancelL->setText(ToQString(outcome));
}

void frmGoodInputBox::SetTLength(int32_t characters) {
  ui_->TLength->setText(QString::number(characters));
  ui_->Text1->setMaxLength(characters > 0 ? characters : kNoLimit);
}

QComboBox* frmGoodInputBox::ComboOfMode() const {
  if (UseComboCombo) return ui_->comboCombo;
  if (UseComboList) return ui_->comboList;
  return UseComboSortedList ? ui_->comboSortedList : nullptr;
}

QListWidget* frmGoodInputBox::ListOfMode() const {
  if (ComboOfMode() != nullptr) return nullptr;
  if (UseListMulti) return ui_->listMulti;
  return UseListMultiNonSel ? ui_->listMultiNonSel : nullptr;
}

QWidget* frmGoodInputBox::ControlOfMode() const {
  if (QWidget* combo = ComboOfMode()) return combo;
  if (QWidget* list = ListOfMode()) return list;
  return ui_->Text1;
}

void frmGoodInputBox::ShowControlOfMode() {
  for (QWidget* control :
       std::initializer_list<QWidget*>{ui_->comboCombo, ui_->comboList, ui_->comboSortedList,
                                       ui_->listMulti, ui_->listMultiNonSel, ui_->Text1}) {
    control->setVisible(control == ControlOfMode());
  }
  ui_->lblCaption->setBuddy(ControlOfMode());
}

void frmGoodInputBox::showEvent(QShowEvent* event) {
  ShowControlOfMode();
  BecomeActive();
  QDialog::showEvent(event);
}

// A window that goes can be told on its way that it is active, and is not to act on that.
void frmGoodInputBox::setVisible(bool visible) {
  if (shown_ && !visible) Ui().SetMousePointer(SavedPointer);
  shown_ = visible;
  QDialog::setVisible(visible);
}

void frmGoodInputBox::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !shown_) return;
  if (isActiveWindow()) {
    BecomeActive();
  } else {
    Ui().SetMousePointer(SavedPointer);
  }
}

void frmGoodInputBox::BecomeActive() {
  QWidget* control = ControlOfMode();
  if (ListOfMode() != nullptr) LayOutButtonsUnder(*control);
  if (control == ui_->Text1) SetTLength(ToInt32(Val(FromQString(ui_->TLength->text()))));
  // One that has it gets it back with the window, as it was left.
  if (control->isEnabled() && focusWidget() != control) control->setFocus();
  Ui().SetMousePointer(MousePointer::kDefault);
}

std::string frmGoodInputBox::Answer() const {
  if (const QComboBox* combo = ComboOfMode()) return FromQString(combo->currentText());
  if (const QListWidget* list = ListOfMode()) return FromQString(SelectedPositions(*list));
  return FromQString(ui_->Text1->text());
}

// A double click anywhere in the list, on a row or below them.
bool frmGoodInputBox::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->listMultiNonSel->viewport() && event->type() == QEvent::MouseButtonDblClick &&
      static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton) {
    OnOk();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void frmGoodInputBox::OnOk() {
  SetCancelL("0");
  Tag = Answer();
  if (ListOfMode() == ui_->listMultiNonSel && Tag.empty()) {
    Ui().Show({"You must select an item before clicking 'OK'", MessageIcon::kExclamation,
               MessageButtons::kOk, kProgramTitle});
    return;
  }
  hide();
}

void frmGoodInputBox::OnCancel() {
  SetCancelL("1");
  Tag.clear();
  hide();
}

// Escape, as the button.
void frmGoodInputBox::reject() { ui_->cmdCancel->click(); }

// Refused and hidden instead; neither the outcome nor the tag is set.
void frmGoodInputBox::closeEvent(QCloseEvent* event) {
  event->ignore();
  hide();
}

void frmGoodInputBox::Unload() {
  for (QComboBox* combo : {ui_->comboCombo, ui_->comboList, ui_->comboSortedList}) {
    combo->clear();
    combo->hide();
  }
  UseComboCombo = UseComboList = UseComboSortedList = UseListMulti = UseListMultiNonSel = false;
  UseText = true;
  ShowControlOfMode();
  LayOutButtonsUnder(*ui_->Text1);
}

}  // namespace logchecker
