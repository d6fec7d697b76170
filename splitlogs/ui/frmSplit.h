// The window of one split: its log for the loaded day as a grid.
#pragma once

#include <QMdiSubWindow>

#include "splitlogs/SplitLog.h"

class QFrame;
class QLabel;

namespace logchecker {

class LogGridView;

// A SplitLog that can be seen. It is minimised where the user would close it; it goes only when its
// owner unloads it.
class frmSplit : public QMdiSubWindow, public SplitLog {
  Q_OBJECT

 public:
  frmSplit();
  ~frmSplit() override;

  // The size that it begins with, in twips.
  static constexpr int kDesignWidth = 5400;
  static constexpr int kDesignHeight = 6000;

 protected:
  void CaptionChanged() override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void LayOut();
  void OnBreakChosen();

  QWidget* inner_;
  QFrame* brdMain_;
  LogGridView* gridView_;
};

}  // namespace logchecker
