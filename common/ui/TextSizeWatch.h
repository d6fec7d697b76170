// Tells of a change of the desktop's font while the program runs.
#pragma once

#include <QFont>
#include <QObject>
#include <functional>

namespace logchecker {

// Runs `work`, for as long as `context` lives, each time the desktop's font has become another one.
// The toolkit tells windows, and widgets whose font is the desktop's; one that has a font worked
// out from it hears nothing.
void WhenTextSizeChanges(QObject& context, const std::function<void()>& work);

class TextSizeWatch : public QObject {
  Q_OBJECT

 public:
  explicit TextSizeWatch(QObject* parent);

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QFont known_;
};

}  // namespace logchecker
