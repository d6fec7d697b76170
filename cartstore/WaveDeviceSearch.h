// Which wave devices can play or record 16-bit sound.
#pragma once

#include <cstdint>

namespace logchecker {

// `rate` in hertz (11025, 22050 or 44100; no device suits any other), `channels` 1 for mono,
// anything else for stereo. Device indexes count from 0.

// The first suitable index from `first` on, or -1.
int32_t FindWaveOutDevice(int32_t first, int32_t rate, int16_t channels);
int32_t CountWaveOutDevices(int32_t rate, int16_t channels);
// The highest suitable index, 0 when there is none.
int32_t LastWaveOutDevice(int32_t rate, int16_t channels);
int32_t LastWaveInDevice(int32_t rate, int16_t channels);

}  // namespace logchecker
