// The scroll bar that holds a year, negated, so that its upper arrow raises it.
#pragma once

#include <QScrollBar>

#include "dialogs/ui/TurnedNumber.h"

namespace logchecker {

class YearScrollBar : public QScrollBar, public TurnedNumber {
  Q_OBJECT

 public:
  explicit YearScrollBar(QWidget* parent = nullptr) : QScrollBar(parent) { UseTurnedNumbers(); }

  int Number() const override { return -value(); }
  int LeastNumber() const override { return -maximum(); }
  int MostNumber() const override { return -minimum(); }
  void TurnTo(int number) override { setValue(-number); }
  QAccessible::Role Role() const override { return QAccessible::SpinBox; }
};

}  // namespace logchecker
