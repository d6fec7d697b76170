// The window in which the Audiowall is browsed and a cart is picked.
#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cartbrowser/CartBrowser.h"

class QCheckBox;
class QFrame;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QStatusBar;
class QToolButton;

namespace logchecker {

class CartRowsPanel;
class frmFindCart;

// Shows a notes file, given by its station path, on top of all other windows.
using ShowNotesWindow = std::function<void(const std::string& file, QWidget* owner, bool modal)>;

// A CartBrowser that can be seen. It is made when the store is open, and is hidden rather than
// closed, so that it stands where it was when it is shown again.
class frmCartBrowser : public QDialog, private CartBrowserFace, public CartBrowser {
  Q_OBJECT

 public:
  // Without `showNotes` the key for notes does nothing.
  explicit frmCartBrowser(ShowNotesWindow showNotes, QWidget* parent = nullptr);
  ~frmCartBrowser() override;

  // The text of the panel at the top, which ShowDescription shows.
  void SetDescription(const std::string& text);

 signals:
  // The window went away, with a result or without.
  void hidden();

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void reject() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsActive() override;
  int32_t ScreenWidth() override;
  int32_t WindowWidth() override;
  void MoveTo(int32_t left, int32_t top) override;
  std::string Fit(const std::string& text, int32_t maxWidth) override;
  void ShowRows() override;
  void ShowButtonColour(int16_t row) override;
  void ShowJumpBox() override;
  void SelectJumpText() override;
  void FocusJumpBox() override;
  void Hide() override;
  void ShowFindCart(const FindRequest& request) override;
  void ShowNotes(const std::string& file, bool modal) override;

  void MakeControls();
  QToolButton* MakeScrollButton(const QString& name, const char* icon, const QString& spoken);
  void DescribeKeys();
  void ConnectControls();
  void DoubleChanged();
  void SetTabOrder();
  void HoldLeastSize();
  void SetSizes();
  // All in twips.
  int ControlsHeight() const;
  int BarHeight() const;
  int HeightBesideRows() const;
  int TopOfRows() const;
  int NumberWidth() const;
  int JumpControlsWidth() const;
  void LayOut();
  void LayOutJumpControls();
  void LayOutBar(int top, int width);
  bool OnKey(const QKeyEvent& key);
  void TakeFont();
  void KeepFrameOnScreen();

  ShowNotesWindow showNotes_;
  std::unique_ptr<frmFindCart> findCart_;
  std::vector<double> characterWidths_;  // of the rows' font, in twips, by station character
  bool justShown_ = false;

  QFrame* pnlDescription_ = nullptr;
  QLabel* lblDescription_ = nullptr;
  QFrame* picBrowser_ = nullptr;
  QFrame* pnlJumpCart_ = nullptr;
  QLabel* lblJumpToCart_ = nullptr;
  QLineEdit* txtCartNumber_ = nullptr;
  QPushButton* cmdJumpCart_ = nullptr;
  QPushButton* cmdFindCart_ = nullptr;
  QToolButton* cmdSmallScroll_[2] = {};
  QToolButton* cmdBigScroll_[2] = {};
  CartRowsPanel* pnlCartLabels_ = nullptr;
  QStatusBar* StatusBar1_ = nullptr;
  QCheckBox* chkDouble_ = nullptr;
  QPushButton* cmdCancel_ = nullptr;
};

}  // namespace logchecker
