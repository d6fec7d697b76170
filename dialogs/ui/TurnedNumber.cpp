#include "dialogs/ui/TurnedNumber.h"

#include <QAccessibleWidget>
#include <algorithm>

#include "common/ui/Guard.h"

namespace logchecker {

namespace {

class AccessibleNumber : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  AccessibleNumber(QWidget* widget, TurnedNumber* number)
      : QAccessibleWidget(widget, number->Role()), number_(*number) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text what) const override {
    if (what == QAccessible::Value) return QString::number(number_.Number());
    return QAccessibleWidget::text(what);
  }

  QVariant currentValue() const override { return number_.Number(); }
  QVariant minimumValue() const override { return number_.LeastNumber(); }
  QVariant maximumValue() const override { return number_.MostNumber(); }
  QVariant minimumStepSize() const override { return 1; }
  void setCurrentValue(const QVariant& value) override {
    const int wanted = qRound(value.toDouble());
    if (!widget()->isEnabled()) return;
    Guarded(
        [&] { number_.TurnTo(std::clamp(wanted, number_.LeastNumber(), number_.MostNumber())); });
  }

 private:
  TurnedNumber& number_;
};

QAccessibleInterface* MakeNumber(const QString& className, QObject* object) {
  auto* number = dynamic_cast<TurnedNumber*>(object);
  const bool own = number != nullptr && className == object->metaObject()->className();
  return own ? new AccessibleNumber(static_cast<QWidget*>(object), number) : nullptr;
}

}  // namespace

void UseTurnedNumbers() {
  static const bool used = [] {
    QAccessible::installFactory(MakeNumber);
    return true;
  }();
  Q_UNUSED(used);
}

}  // namespace logchecker
