#include "cartstore/WaveDeviceSearch.h"

#include "platform/Platform.h"

namespace logchecker {

namespace {

uint32_t FormatFlag(int32_t rate, int16_t channels) {
  const bool mono = channels == 1;
  switch (rate) {
    case 11025:
      return mono ? kWaveFormat1M16 : kWaveFormat1S16;
    case 22050:
      return mono ? kWaveFormat2M16 : kWaveFormat2S16;
    case 44100:
      return mono ? kWaveFormat4M16 : kWaveFormat4S16;
    default:
      return 0;
  }
}

bool OutIsSuitable(int32_t index, uint32_t flag) {
  uint32_t formats = 0;
  return Os().waveDevices.OutFormats(index, &formats) == 0 && (formats & flag) != 0;
}

bool InIsSuitable(int32_t index, uint32_t flag) {
  uint32_t formats = 0;
  return Os().waveDevices.InFormats(index, &formats) == 0 && (formats & flag) != 0;
}

}  // namespace

int32_t FindWaveOutDevice(int32_t first, int32_t rate, int16_t channels) {
  const uint32_t flag = FormatFlag(rate, channels);
  const int32_t count = Os().waveDevices.OutCount();
  for (int32_t index = first; index < count; ++index) {
    if (OutIsSuitable(index, flag)) return index;
  }
  return -1;
}

int32_t CountWaveOutDevices(int32_t rate, int16_t channels) {
  const uint32_t flag = FormatFlag(rate, channels);
  const int32_t count = Os().waveDevices.OutCount();
  int32_t suitable = 0;
  for (int32_t index = 0; index < count; ++index) suitable += OutIsSuitable(index, flag) ? 1 : 0;
  return suitable;
}

int32_t LastWaveOutDevice(int32_t rate, int16_t channels) {
  const uint32_t flag = FormatFlag(rate, channels);
  for (int32_t index = Os().waveDevices.OutCount() - 1; index > 0; --index) {
    if (OutIsSuitable(index, flag)) return index;
  }
  return 0;
}

int32_t LastWaveInDevice(int32_t rate, int16_t channels) {
  const uint32_t flag = FormatFlag(rate, channels);
  for (int32_t index = Os().waveDevices.InCount() - 1; index > 0; --index) {
    if (InIsSuitable(index, flag)) return index;
  }
  return 0;
}

}  // namespace logchecker
