// The cart store, all in one place for those who want several of its routines.
#pragma once

#include "cartstore/AudioSettings.h"    // IWYU pragma: export
#include "cartstore/AudiowallParts.h"   // IWYU pragma: export
#include "cartstore/BackupCartLists.h"  // IWYU pragma: export
#include "cartstore/BlankCart.h"        // IWYU pragma: export
#include "cartstore/CartFiles.h"        // IWYU pragma: export
#include "cartstore/CartRecord.h"       // IWYU pragma: export
#include "cartstore/LoadCartInfo.h"     // IWYU pragma: export
#include "cartstore/OpenAudiowall.h"    // IWYU pragma: export
