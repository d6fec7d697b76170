#include "common/ui/TextBoxes.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QValidator>
#include <functional>
#include <utility>

#include "common/TextHelpers.h"
#include "common/ui/StationQString.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

// Shows each event of a box to a handler, which says whether it is done with.
class BoxFilter : public QObject {
 public:
  using Handler = std::function<bool(QLineEdit&, QEvent&)>;

  BoxFilter(QLineEdit& box, Handler handler)
      : QObject(&box), box_(box), handler_(std::move(handler)) {
    box.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return handler_(box_, *event) || QObject::eventFilter(watched, event);
  }

 private:
  QLineEdit& box_;
  Handler handler_;
};

// The printable text of a key press; empty for any other event.
QString TypedText(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return {};
  const auto& key = static_cast<const QKeyEvent&>(event);
  // Control alone is a command, such as that to paste; with Alt it types a further character.
  if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier) return {};
  const QString text = key.text();
  return !text.isEmpty() && text.at(0).isPrint() ? text : QString();
}

class StationTextValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& input, int& /*position*/) const override {
    std::string stationText;
    return FromQString(input, &stationText) ? Acceptable : Invalid;
  }
};

}  // namespace

void SelectAllText(QLineEdit& textBox) {
  textBox.setSelection(0, static_cast<int>(textBox.text().length()));
}

void SelectAllOnFocus(QLineEdit& textBox) {
  new BoxFilter(textBox, [](QLineEdit& box, QEvent& event) {
    if (event.type() == QEvent::FocusIn) {
      // After the press of the mouse that brought the focus, which would undo it.
      QTimer::singleShot(0, &box, [&box] { SelectAllText(box); });
    }
    return false;
  });
}

void TypeInUpperCase(QLineEdit& textBox) {
  new BoxFilter(textBox, [](QLineEdit& box, QEvent& event) {
    const QString typed = TypedText(event);
    std::string stationText;
    if (typed.isEmpty() || !FromQString(typed, &stationText)) return false;
    const QString upper = ToQString(ToUpper(stationText));
    if (upper == typed) return false;
    box.insert(upper);
    return true;
  });
}

void TypeDigitsOnly(QLineEdit& textBox) {
  new BoxFilter(textBox, [](QLineEdit& /*box*/, QEvent& event) {
    const QString typed = TypedText(event);
    return !typed.isEmpty() && !IsTextOfKind(FromQString(typed), 1);
  });
}

void TakeStationTextOnly(QLineEdit& textBox) {
  textBox.setValidator(new StationTextValidator(&textBox));
}

}  // namespace logchecker
