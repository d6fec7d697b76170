#include "tests/support/ui/OpenedPages.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <utility>

#include "common/ui/Guide.h"

namespace logchecker {

OpenedPages::OpenedPages() {
  // For the whole run: a program holds it once too.
  static const bool held = (HoldGuideKey(), true);
  Q_UNUSED(held);
  QDesktopServices::setUrlHandler("file", this, "Open");
}

OpenedPages::~OpenedPages() { Stop(); }

void OpenedPages::Stop() { QDesktopServices::unsetUrlHandler("file"); }

QStringList OpenedPages::Taken() { return std::exchange(pages_, {}); }

void OpenedPages::Open(const QUrl& url) {
  pages_ << QFileInfo(url.toLocalFile()).completeBaseName();
}

}  // namespace logchecker
