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

// Makes the cart's part ready to be read; -1 where there is none.
int16_t ReadyPartOf(int32_t cartNumber, AudiowallPart** entry) {
  if (cartNumber < 1 || cartNumber > gNumberOfCarts) return kOutOfReach;
  ClearError();
  const int16_t part = GetCartPart(cartNumber);
  *entry = &PartEntry(part);
  if ((*entry)->State == kPartUsable || OpenAudiowall(part, true) == 0) return 0;
  (*entry)->State = kPartUnusable;
  TellUnreadableCart(cartNumber, (*entry)->Path, kOutOfReach);
  return kOutOfReach;
}

// Whether the cart has a list file of its own; *error is what reading it gave.
bool ReadFromOwnListFile(int32_t cartNumber, CartRecord* record, int32_t* error) {
  const std::string file = GetCartFileStem(cartNumber) + ".LST";
  if (!(GetFileLength(file) > 0)) return false;
  *error = ReadOwnListFile(file, record);
  if (!Succeeded(*error)) TellUnreadableCart(cartNumber, file, *error);
  return true;
}

int32_t ReadFailed(int32_t cartNumber, AudiowallPart& entry, int32_t error) {
  SetError(error);
  entry.State = kPartUnusable;
  TellUnreadableCart(cartNumber, entry.FullFileName, error);
  return error;
}

// Reads the cart's record as far as there is one, and returns an error number. Behind the system's
// call each return costs more than elsewhere, so this is part of its callers.
inline int32_t ReadRecord(int32_t cartNumber, AudiowallPart& entry, CartRecord* record) {
  int32_t error = kNoError;
  if (gAudioSettings.UseIndividualCartListFiles &&
      ReadFromOwnListFile(cartNumber, record, &error)) {
    return error;
  }
  const auto partsBefore = static_cast<int32_t>(&entry - gAudiowallParts.data());
  error =
      Os().files.GetRecord(OwnFileNumber(entry), cartNumber - partsBefore * kCartsOfAPart, record);
  return error == kNoError ? error : ReadFailed(cartNumber, entry, error);
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
  AudiowallPart* entry = nullptr;
  CartRecord record;
  int16_t result = ReadyPartOf(cartNumber, &entry);
  if (result == 0) {
    record = gBlankCartRecord;
    result = static_cast<int16_t>(ReadRecord(cartNumber, *entry, &record));
  }
  if (HoldsCart(record, result)) {
    RepairPlayedStretch(record);
    CartInfoFromRecord(info, record);
  } else {
    info = gBlankCartInfo;
  }
  return result;
}

// Of the blank cart, which stands behind the end of a file, no more is made ready than is looked
// at.
int16_t LoadCartLengths(CartLengths& lengths, int32_t cartNumber) {
  AudiowallPart* entry = nullptr;
  CartRecord record;
  int16_t result = ReadyPartOf(cartNumber, &entry);
  if (result == 0) {
    record.Length = gBlankCartRecord.Length;
    record.TotalLength = gBlankCartRecord.TotalLength;
    record.StartPoint = gBlankCartRecord.StartPoint;
    record.EndPoint = gBlankCartRecord.EndPoint;
    record.PlayLength = gBlankCartRecord.PlayLength;
    result = static_cast<int16_t>(ReadRecord(cartNumber, *entry, &record));
  }
  if (HoldsCart(record, result)) {
    RepairPlayedStretch(record);
    lengths = {record.Length, record.PlayLength};
  } else {
    lengths = {gBlankCartInfo.Length, gBlankCartInfo.PlayLength};
  }
  return result;
}

}  // namespace logchecker
