#include "common/ui/TextBoxes.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QValidator>
#include <algorithm>
#include <functional>
#include <limits>
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

  BoxFilter(QLineEdit& box, QWidget& watched, Handler handler)
      : QObject(&box), box_(box), handler_(std::move(handler)) {
    watched.installEventFilter(this);
  }
  BoxFilter(QLineEdit& box, Handler handler) : BoxFilter(box, box, std::move(handler)) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return handler_(box_, *event) || QObject::eventFilter(watched, event);
  }

 private:
  QLineEdit& box_;
  Handler handler_;
};

// The printable text of a key press, or what dead keys and input methods make of several; empty for
// any other event.
QString TypedText(const QEvent& event) {
  if (event.type() == QEvent::InputMethod) {
    return static_cast<const QInputMethodEvent&>(event).commitString();
  }
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

namespace {

// A menu, or the window's stepping back, borrows the focus.
bool IsBorrowed(const QEvent& event) {
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

// A window that is shown gives the focus with the reason that it became active, so what counts is
// how the box lost it before.
class SelectOnFocus {
 public:
  explicit SelectOnFocus(int characters) : characters_(characters) {}

  bool operator()(QLineEdit& box, QEvent& event) {
    if (event.type() == QEvent::Show && !event.spontaneous()) lent_ = false;
    if (event.type() == QEvent::FocusOut) lent_ = IsBorrowed(event);
    if (event.type() == QEvent::FocusIn && !(std::exchange(lent_, false) && IsBorrowed(event))) {
      // After the press of the mouse that brought the focus, which would undo it.
      QTimer::singleShot(0, &box,
                         [&box, characters = characters_] { box.setSelection(0, characters); });
    }
    return false;
  }

 private:
  int characters_;
  bool lent_ = false;
};

constexpr int kWholeText = std::numeric_limits<int>::max();

// What an input method shows of a text to come goes with the event that ends it.
void EndInput(QLineEdit& box, const QString& text) {
  QInputMethodEvent end;
  end.setCommitString(text);
  QCoreApplication::sendEvent(&box, &end);
}

bool IsDigit(QChar character) { return IsTextOfKind(FromQString(QString(character)), 1); }

}  // namespace

void SelectAllOnFocus(QLineEdit& textBox) { SelectHeadOnFocus(textBox, kWholeText); }

// The box with the list has the focus itself, and hands its keys on to its line.
void SelectAllOnFocus(QComboBox& box) {
  new BoxFilter(*box.lineEdit(), box, SelectOnFocus(kWholeText));
}

void SelectHeadOnFocus(QLineEdit& textBox, int characters) {
  new BoxFilter(textBox, SelectOnFocus(characters));
}

void TypeInUpperCase(QLineEdit& textBox) {
  new BoxFilter(textBox, [](QLineEdit& box, QEvent& event) {
    const QString typed = TypedText(event);
    std::string stationText;
    if (typed.isEmpty() || !FromQString(typed, &stationText)) return false;
    const QString upper = ToQString(ToUpper(stationText));
    if (upper == typed) return false;
    if (event.type() == QEvent::InputMethod) {
      EndInput(box, upper);
    } else {
      box.insert(upper);
    }
    return true;
  });
}

void TypeDigitsOnly(QLineEdit& textBox) {
  new BoxFilter(textBox, [](QLineEdit& box, QEvent& event) {
    const QString typed = TypedText(event);
    if (std::all_of(typed.begin(), typed.end(), IsDigit)) return false;
    if (event.type() == QEvent::InputMethod) EndInput(box, {});
    return true;
  });
}

void TakeStationTextOnly(QLineEdit& textBox) {
  textBox.setValidator(new StationTextValidator(&textBox));
}

}  // namespace logchecker
