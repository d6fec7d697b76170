// The pages of the guide that a program would have the desktop open.
#pragma once

#include <QObject>
#include <QStringList>
#include <QUrl>

namespace logchecker {

// While it lives F1 is held, and no page reaches the desktop.
class OpenedPages : public QObject {
  Q_OBJECT

 public:
  OpenedPages();
  ~OpenedPages() override;

  // By their names without the ending, since this was last asked for.
  QStringList Taken();
  // From here on pages go to the desktop.
  void Stop();

 public slots:
  void Open(const QUrl& url);

 private:
  QStringList pages_;
};

}  // namespace logchecker
