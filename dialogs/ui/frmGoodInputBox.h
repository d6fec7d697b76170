// A question that stands above all other windows and is answered in one of six ways.
// modGoodInputBox fronts it.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "common/UserInterface.h"

namespace Ui {
class frmGoodInputBox;
}
class QAbstractItemView;
class QComboBox;
class QListWidget;

namespace logchecker {

// To ask: set one mode, fill its control, set the question, show the box modally, and read the
// outcome and the tag. The close box hides the window and sets neither.
class frmGoodInputBox : public QDialog {
  Q_OBJECT

 public:
  explicit frmGoodInputBox(QWidget* parent = nullptr);
  ~frmGoodInputBox() override;

  // Exactly one is true. The answer in the tag is the control's text; of the two lists it is the
  // positions of the selected rows, counted from 1 and joined by ",".
  bool UseComboCombo = false;       // type or pick
  bool UseComboList = false;        // pick
  bool UseComboSortedList = false;  // pick from a sorted list
  bool UseListMulti = false;        // pick several rows
  bool UseListMultiNonSel = false;  // pick one row
  bool UseText = true;              // type

  std::string Tag;
  // Shown again when the box loses its active state.
  MousePointer SavedPointer = MousePointer::kDefault;

  void SetCaption(const std::string& question);
  // Fills the control of the mode that is set.
  void SetItems(const std::vector<std::string>& items);
  void SetText(const std::string& text);
  // "1" for Cancel, "0" for OK.
  std::string CancelL() const;
  void SetCancelL(const std::string& outcome);
  // How long the typed text may be; 0 is no limit.
  void SetTLength(int32_t characters);

  // Back to the state of a new box.
  void Unload();

  void reject() override;
  void setVisible(bool visible) override;

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BecomeActive();
  void ShowControlOfMode();
  void LayOutButtonsUnder(const QWidget& control);
  void PlaceControls();
  QWidget* ControlOfMode() const;
  QComboBox* ComboOfMode() const;
  QListWidget* ListOfMode() const;
  std::string Answer() const;
  void OnOk();
  void OnCancel();

  std::unique_ptr<Ui::frmGoodInputBox> ui_;
  bool shown_ = false;
};

}  // namespace logchecker
