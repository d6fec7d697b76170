// The cart that stands for every cart that is unused or can't be read.
#pragma once

#include "cartstore/CartRecord.h"

namespace logchecker {

// The marks of a cart without audio.
inline constexpr float kUnusedLength = -1.0F;

extern CartInfo gBlankCartInfo;
extern CartRecord gBlankCartRecord;

// Builds both forms anew, with the colours of the audio settings.
void InitialiseBlankCart();

}  // namespace logchecker
