#include "checking/ExportFolder.h"

#include "common/PathText.h"
#include "common/Registry.h"
#include "common/SystemHelpers.h"
#include "platform/RegistryCalls.h"

namespace logchecker {

std::string RememberedExportFolder() {
  return GetRegistryString(kCurrentUserRoot, kExportKey, kExportValue,
                           GetSpecialPath(kDocumentsFolder));
}

void RememberExportFolder(const std::string& file) {
  SetRegistryString(kCurrentUserRoot, kExportKey, kExportValue, GetPathPart(file, false),
                    GetSpecialPath(kDocumentsFolder));
}

}  // namespace logchecker
