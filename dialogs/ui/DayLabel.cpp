#include "dialogs/ui/DayLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace logchecker {

namespace {

class AccessibleDay : public QAccessibleWidget {
 public:
  explicit AccessibleDay(DayLabel* day)
      : QAccessibleWidget(day, QAccessible::ListItem), day_(*day) {}

  // A label without a day is a gap in the calendar, which is nothing to hear of.
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (day_.text().isEmpty()) state.invisible = true;
    state.selectable = true;
    state.selected = day_.IsMarked();
    return state;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  QString localizedActionDescription(const QString& /*action*/) const override {
    return "Picks the day";
  }
  // Windows selects an item by toggling it.
  void doAction(const QString& action) override {
    const bool selects = action == toggleAction() && !day_.IsMarked();
    if (action == pressAction() || selects) emit day_.clicked();
  }

 private:
  DayLabel& day_;
};

QAccessibleInterface* MakeDay(const QString& className, QObject* object) {
  auto* day = qobject_cast<DayLabel*>(object);
  const bool own = day != nullptr && className == day->metaObject()->className();
  return own ? new AccessibleDay(day) : nullptr;
}

}  // namespace

DayLabel::DayLabel(QWidget* parent) : ClickableLabel(parent) {
  static const bool used = [] {
    QAccessible::installFactory(MakeDay);
    return true;
  }();
  Q_UNUSED(used);
}

void DayLabel::SetMarked(bool marked) {
  if (marked_ == marked) return;
  marked_ = marked;
  QAccessibleEvent event(this, marked ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
  QAccessible::updateAccessibility(&event);
}

}  // namespace logchecker
