#include "tests/support/OwnWindowsFolder.h"

#include "platform/Platform.h"

namespace logchecker {

OwnWindowsFolder::OwnWindowsFolder() : before_(Os().system.WindowsFolder()) {
  Os().system.SetWindowsFolder(folder_.Path());
}

OwnWindowsFolder::~OwnWindowsFolder() { Os().system.SetWindowsFolder(before_); }

}  // namespace logchecker
