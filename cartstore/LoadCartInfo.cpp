#include "cartstore/LoadCartInfo.h"

#include "cartstore/AudioSettings.h"
#include "cartstore/AudiowallParts.h"
#include "cartstore/BlankCart.h"
#include "cartstore/CartFiles.h"
#include "cartstore/OpenAudiowall.h"
#include "cartstore/UnreadableCarts.h"
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr int16_t kOutOfReach = -1;

// Reads the one record of a cart's own list file. Returns an error number.
int32_t ReadOwnListFile(const std::string& file, CartRecord* record) {
  Files& files = Os().files;
  int16_t number = 0;
  int32_t error = files.FreeFile(&number);
  if (error != kNoError) return error;
  error = files.OpenRandom(number, file, static_cast<int32_t>(kCartRecordLength));
  if (error == kNoError) error = files.GetRecord(number, 1, record);
  const int32_t closing = files.Close(number);
  return error == kNoError ? closing : error;
}

// A record without a played stretch plays from its beginning to its end.
void RepairPlayedStretch(CartInfo& info) {
  if (info.EndPoint > 0 && info.PlayLength > 0) return;
  info.StartPoint = 0;
  info.EndPoint = info.TotalLength;
  info.PlayLength = info.EndPoint - info.StartPoint;
}

int16_t Blank(CartInfo& info, int32_t result) {
  info = gBlankCartInfo;
  return static_cast<int16_t>(result);
}

}  // namespace

int16_t LoadCartInfo(CartInfo& info, int32_t cartNumber) {
  if (cartNumber < 1 || cartNumber > gNumberOfCarts) return Blank(info, kOutOfReach);
  ClearError();
  const int16_t part = GetCartPart(cartNumber);
  AudiowallPart& entry = PartEntry(part);
  if (entry.State != kPartUsable && OpenAudiowall(part, true) != 0) {
    entry.State = kPartUnusable;
    TellUnreadableCart(cartNumber, entry.Path, kOutOfReach);
    return Blank(info, kOutOfReach);
  }
  CartRecord record = gBlankCartRecord;
  bool read = false;
  if (gAudioSettings.UseIndividualCartListFiles) {
    const std::string file = GetCartFileStem(cartNumber) + ".LST";
    if (GetFileLength(file) > 0) {
      const int32_t error = ReadOwnListFile(file, &record);
      if (!Succeeded(error)) {
        TellUnreadableCart(cartNumber, file, error);
        return Blank(info, error);
      }
      read = true;
    }
  }
  if (!read) {
    const int32_t recordNumber = cartNumber - (part - 1) * kCartsOfAPart;
    const int32_t error = Os().files.GetRecord(OwnFileNumber(entry), recordNumber, &record);
    if (!Succeeded(error)) {
      entry.State = kPartUnusable;
      TellUnreadableCart(cartNumber, entry.FullFileName, error);
      return Blank(info, error);
    }
  }
  CartInfoFromRecord(info, record);
  RepairPlayedStretch(info);
  if (info.TotalLength == gBlankCartInfo.TotalLength) return Blank(info, 0);
  return 0;
}

}  // namespace logchecker
