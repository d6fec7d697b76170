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

// Fills `record` and returns 0, or returns what LoadCartInfo does for a cart that can't be read.
int16_t ReadRecord(CartRecord& record, int32_t cartNumber) {
  if (cartNumber < 1 || cartNumber > gNumberOfCarts) return kOutOfReach;
  ClearError();
  const int16_t part = GetCartPart(cartNumber);
  AudiowallPart& entry = PartEntry(part);
  if (entry.State != kPartUsable && OpenAudiowall(part, true) != 0) {
    entry.State = kPartUnusable;
    TellUnreadableCart(cartNumber, entry.Path, kOutOfReach);
    return kOutOfReach;
  }
  record = gBlankCartRecord;
  if (gAudioSettings.UseIndividualCartListFiles) {
    const std::string file = GetCartFileStem(cartNumber) + ".LST";
    if (GetFileLength(file) > 0) {
      const int32_t error = ReadOwnListFile(file, &record);
      if (!Succeeded(error)) TellUnreadableCart(cartNumber, file, error);
      return static_cast<int16_t>(error);
    }
  }
  const int32_t recordNumber = cartNumber - (part - 1) * kCartsOfAPart;
  const int32_t error = Os().files.GetRecord(OwnFileNumber(entry), recordNumber, &record);
  if (!Succeeded(error)) {
    entry.State = kPartUnusable;
    TellUnreadableCart(cartNumber, entry.FullFileName, error);
  }
  return static_cast<int16_t>(error);
}

// A record without a played stretch plays from its beginning to its end.
void RepairPlayedStretch(CartRecord& record) {
  if (record.EndPoint > 0 && record.PlayLength > 0) return;
  record.StartPoint = 0;
  record.EndPoint = record.TotalLength;
  record.PlayLength = record.EndPoint - record.StartPoint;
}

// Whether there is a cart in `record`; `result` is what reading it gave.
bool HoldsCart(const CartRecord& record, int16_t result) {
  return result == 0 && record.TotalLength != gBlankCartInfo.TotalLength;
}

}  // namespace

int16_t LoadCartInfo(CartInfo& info, int32_t cartNumber) {
  CartRecord record;
  const int16_t result = ReadRecord(record, cartNumber);
  if (HoldsCart(record, result)) {
    RepairPlayedStretch(record);
    CartInfoFromRecord(info, record);
  } else {
    info = gBlankCartInfo;
  }
  return result;
}

int16_t LoadCartLengths(CartLengths& lengths, int32_t cartNumber) {
  CartRecord record;
  const int16_t result = ReadRecord(record, cartNumber);
  if (HoldsCart(record, result)) {
    RepairPlayedStretch(record);
    lengths = {record.Length, record.PlayLength};
  } else {
    lengths = {gBlankCartInfo.Length, gBlankCartInfo.PlayLength};
  }
  return result;
}

}  // namespace logchecker
