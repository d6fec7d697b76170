// A day of the calendar. To those who can't see it, it is one of a list, which can be picked.
#pragma once

#include "common/ui/ClickableLabel.h"

namespace logchecker {

class DayLabel : public ClickableLabel {
  Q_OBJECT

 public:
  explicit DayLabel(QWidget* parent = nullptr);

  // Whether it is the day that is picked.
  void SetMarked(bool marked);
  bool IsMarked() const { return marked_; }

 private:
  bool marked_ = false;
};

}  // namespace logchecker
