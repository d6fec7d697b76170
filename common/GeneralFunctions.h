// The shared routines, all in one place for those who want several of them.
#pragma once

#include "common/DatePicture.h"
#include "common/Dates.h"
#include "common/DebugLog.h"
#include "common/FileHelpers.h"
#include "common/FolderHelpers.h"
#include "common/Messages.h"
#include "common/PathText.h"
#include "common/SystemHelpers.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
