#include "platform/windows/WindowsApi.h"
//
#include <mmsystem.h>

#include "platform/windows/WindowsParts.h"

namespace logchecker {

namespace {

class MultimediaDevices : public WaveDevices {
 public:
  int32_t OutCount() override { return static_cast<int32_t>(waveOutGetNumDevs()); }
  int32_t InCount() override { return static_cast<int32_t>(waveInGetNumDevs()); }

  int32_t OutFormats(int32_t index, uint32_t* formats) override {
    *formats = 0;
    if (index < 0) return MMSYSERR_BADDEVICEID;
    WAVEOUTCAPSA capabilities{};
    const MMRESULT result =
        waveOutGetDevCapsA(static_cast<UINT_PTR>(index), &capabilities, sizeof capabilities);
    *formats = capabilities.dwFormats;
    return static_cast<int32_t>(result);
  }

  int32_t InFormats(int32_t index, uint32_t* formats) override {
    *formats = 0;
    if (index < 0) return MMSYSERR_BADDEVICEID;
    WAVEINCAPSA capabilities{};
    const MMRESULT result =
        waveInGetDevCapsA(static_cast<UINT_PTR>(index), &capabilities, sizeof capabilities);
    *formats = capabilities.dwFormats;
    return static_cast<int32_t>(result);
  }
};

}  // namespace

WaveDevices& WindowsWaveDevices() {
  static MultimediaDevices devices;
  return devices;
}

}  // namespace logchecker
