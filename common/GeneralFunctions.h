// The shared routines, all in one place for those who want several of them.
#pragma once

#include "common/DatePicture.h"    // IWYU pragma: export
#include "common/Dates.h"          // IWYU pragma: export
#include "common/DebugLog.h"       // IWYU pragma: export
#include "common/FileHelpers.h"    // IWYU pragma: export
#include "common/FolderHelpers.h"  // IWYU pragma: export
#include "common/Messages.h"       // IWYU pragma: export
#include "common/PathText.h"       // IWYU pragma: export
#include "common/SystemHelpers.h"  // IWYU pragma: export
#include "common/TextHelpers.h"    // IWYU pragma: export
#include "common/TimeText.h"       // IWYU pragma: export
