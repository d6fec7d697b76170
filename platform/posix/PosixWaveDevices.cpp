#include "platform/posix/PosixWaveDevices.h"

#include <alsa/asoundlib.h>  // IWYU pragma: keep

#include <string>

#include "platform/ErrorNumbers.h"

namespace logchecker {

namespace {

constexpr uint32_t kEveryFormat = kWaveFormat1M16 | kWaveFormat1S16 | kWaveFormat2M16 |
                                  kWaveFormat2S16 | kWaveFormat4M16 | kWaveFormat4S16;

int32_t CountOnCard(int card, snd_pcm_stream_t stream) {
  snd_ctl_t* control = nullptr;
  const std::string name = "hw:" + std::to_string(card);
  if (snd_ctl_open(&control, name.c_str(), SND_CTL_NONBLOCK | SND_CTL_READONLY) != 0) return 0;
  snd_pcm_info_t* info = nullptr;
  snd_pcm_info_malloc(&info);
  int32_t count = 0;
  int device = -1;
  while (snd_ctl_pcm_next_device(control, &device) == 0 && device >= 0) {
    snd_pcm_info_set_device(info, static_cast<unsigned>(device));
    snd_pcm_info_set_subdevice(info, 0);
    snd_pcm_info_set_stream(info, stream);
    if (snd_ctl_pcm_info(control, info) == 0) ++count;
  }
  snd_pcm_info_free(info);
  snd_ctl_close(control);
  return count;
}

int32_t CountDevices(snd_pcm_stream_t stream) {
  int32_t count = 0;
  int card = -1;
  while (snd_card_next(&card) == 0 && card >= 0) count += CountOnCard(card, stream);
  return count;
}

int32_t Formats(int32_t index, int32_t count, uint32_t* formats) {
  if (index < 0 || index >= count) return kInvalidCall;
  *formats = kEveryFormat;
  return 0;
}

}  // namespace

int32_t PosixWaveDevices::OutCount() { return CountDevices(SND_PCM_STREAM_PLAYBACK); }

int32_t PosixWaveDevices::InCount() { return CountDevices(SND_PCM_STREAM_CAPTURE); }

int32_t PosixWaveDevices::OutFormats(int32_t index, uint32_t* formats) {
  return Formats(index, OutCount(), formats);
}

int32_t PosixWaveDevices::InFormats(int32_t index, uint32_t* formats) {
  return Formats(index, InCount(), formats);
}

}  // namespace logchecker
