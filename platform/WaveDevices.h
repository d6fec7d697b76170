// Sound devices and the sample formats that they take.
#pragma once

#include <cstdint>

namespace logchecker {

// Format flags of a device, one bit for a rate and a channel count at 16 bits.
inline constexpr uint32_t kWaveFormat1M16 = 0x004;  // 11,025 Hz, mono
inline constexpr uint32_t kWaveFormat1S16 = 0x008;
inline constexpr uint32_t kWaveFormat2M16 = 0x040;  // 22,050 Hz
inline constexpr uint32_t kWaveFormat2S16 = 0x080;
inline constexpr uint32_t kWaveFormat4M16 = 0x400;  // 44,100 Hz
inline constexpr uint32_t kWaveFormat4S16 = 0x800;

class WaveDevices {
 public:
  virtual ~WaveDevices() = default;

  virtual int32_t OutCount() = 0;
  virtual int32_t InCount() = 0;
  // Format flags of device `index`, counted from 0. Return 0 for success.
  virtual int32_t OutFormats(int32_t index, uint32_t* formats) = 0;
  virtual int32_t InFormats(int32_t index, uint32_t* formats) = 0;
};

}  // namespace logchecker
