// The window that searches the Audiowall.
#pragma once

#include <QDialog>
#include <memory>

#include "cartbrowser/FindCart.h"

namespace Ui {
class frmFindCart;
}
class QComboBox;
class QKeyEvent;

namespace logchecker {

// A FindCart that can be seen. It is hidden rather than closed, so that it keeps what is in it.
class frmFindCart : public QDialog, private FindCartFace, public FindCart {
  Q_OBJECT

 public:
  explicit frmFindCart(QWidget* parent = nullptr);
  ~frmFindCart() override;

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  bool IsVisible() override;
  void ShowControls() override;
  void PaintProgress() override;
  void ShowResultAdded(size_t row) override;
  void ShowResults() override;
  void FocusOn(FindControl control) override;
  void PlayAnimation() override;
  void StopAnimation() override;
  void Hide() override;

  void FillLists();
  void FitTextSize();
  void ConnectControls();
  void OpenAnimation();
  void OnFind();
  bool OnKey(const QKeyEvent& key);
  bool SortByKey(const QKeyEvent& key);
  void ShowInput();
  void ShowHistory();
  void ShowEnabled();
  void ShowHeight();
  void ColourBoxes();
  int FrameHeight() const;

  std::unique_ptr<Ui::frmFindCart> ui_;
  int shownHeight_ = 0;  // twips; 0 for one that is yet to be set
  int shownFrame_ = 0;   // pixels, of the frame that counts in it
};

}  // namespace logchecker
