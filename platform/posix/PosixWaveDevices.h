// Sound devices as ALSA lists them.
#pragma once

#include "platform/WaveDevices.h"

namespace logchecker {

// A device is never opened: a station plays to air through them, and opening one, however briefly,
// would keep the player out. Each counts as able to take every format, since ALSA converts.
class PosixWaveDevices : public WaveDevices {
 public:
  int32_t OutCount() override;
  int32_t InCount() override;
  int32_t OutFormats(int32_t index, uint32_t* formats) override;
  int32_t InFormats(int32_t index, uint32_t* formats) override;
};

}  // namespace logchecker
