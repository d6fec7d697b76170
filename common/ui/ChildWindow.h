// A child window of the frame that lays its controls out by arithmetic.
#pragma once

#include <QMdiSubWindow>

namespace logchecker {

class ChildWindow : public QMdiSubWindow {
  Q_OBJECT

 public:
  ChildWindow();

 protected:
  // Called at each change of the window's size, unless it is minimised, or smaller than it may be.
  virtual void LayOut() = 0;
  // Whose the focus is when the window gets it.
  virtual QWidget* FirstControl() = 0;

  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void HoldSizeAndLayOut();
  void StyleButtonsInMenuBar();
};

}  // namespace logchecker
