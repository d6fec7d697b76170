// The cart store, all in one place for those who want several of its routines.
#pragma once

#include "cartstore/AudioSettings.h"
#include "cartstore/AudiowallParts.h"
#include "cartstore/BackupCartLists.h"
#include "cartstore/BlankCart.h"
#include "cartstore/CartFiles.h"
#include "cartstore/CartRecord.h"
#include "cartstore/LoadCartInfo.h"
#include "cartstore/OpenAudiowall.h"
