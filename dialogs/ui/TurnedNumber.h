// A number that is turned up and down, for those who can't see how far.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace logchecker {

class TurnedNumber {
 public:
  virtual ~TurnedNumber() = default;

  virtual int Number() const = 0;
  virtual int LeastNumber() const = 0;
  virtual int MostNumber() const = 0;
  // To a number within those bounds, as a press on the widget would.
  virtual void TurnTo(int number) = 0;
  virtual QAccessible::Role Role() const = 0;
};

// From then on widgets that are TurnedNumbers tell their numbers. Called as each is made.
void UseTurnedNumbers();

}  // namespace logchecker
