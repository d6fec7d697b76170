#include <QGuiApplication>

#include "common/ui/DesktopManners.h"

namespace logchecker {

// May be said before there is an application.
void JoinDesktop(const char* id) { QGuiApplication::setDesktopFileName(id); }

// The toolkit does it all.
void FollowTheme() {}

}  // namespace logchecker
