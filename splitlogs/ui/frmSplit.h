// The window of one split: its log for the loaded day as a grid.
#pragma once

#include "common/ui/ChildWindow.h"
#include "splitlogs/SplitLog.h"

class QFrame;
class QLabel;

namespace logchecker {

class LogGridView;

// A SplitLog that can be seen. A tool tip of its title bar tells which log it shows. It is
// minimised where the user would close it; it goes only when its owner unloads it.
class frmSplit : public ChildWindow, public SplitLog {
  Q_OBJECT

 public:
  frmSplit();
  ~frmSplit() override;

  // The size that it begins with, in twips.
  static constexpr int kDesignWidth = 5400;
  static constexpr int kDesignHeight = 6000;

 protected:
  void CaptionChanged() override;
  void LogLoaded() override;
  void LayOut() override;
  QWidget* FirstControl() override;
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void OnBreakChosen();
  bool IsOnTitle(const QPoint& place) const;

  QWidget* inner_;
  QFrame* brdMain_;
  LogGridView* gridView_;
};

}  // namespace logchecker
