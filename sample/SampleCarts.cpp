// The cart store of the sample station.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "cartstore/Velmar_Cart_Routines.h"
#include "sample/SamplePlan.h"

namespace logchecker {

namespace {

constexpr std::array<const char*, 12> kNames = {"Hollin",   "Marlow",  "Tarn",    "Ferris",
                                                "Quayside", "Birch",   "Calder",  "Denby",
                                                "Orchard",  "Redfern", "Saltway", "Wren"};
constexpr std::array<const char*, 10> kTrades = {"Bakery", "Motors",   "Carpets", "Garden Centre",
                                                 "Optics", "Kitchens", "Cycles",  "Furniture",
                                                 "Books",  "Dairies"};
constexpr std::array<const char*, 5> kCampaigns = {
    "Spring offer", "Opening hours", "Half price week", "New branch", "Christmas list"};
constexpr std::array<int32_t, kLengthClasses> kClassColours = {0xC0FFFF, 0xC0FFC0, 0xFFE0C0,
                                                               0xE0C0FF, 0xC0E0FF, 0xFFFFC0};
constexpr int32_t kTextColour = 0x000000;
constexpr int32_t kJingleColour = 0x800000;
constexpr int32_t kJingleTextColour = 0xFFFFFF;
constexpr float kJingleSeconds = 6.5F;

constexpr int32_t kOwnListCarts[] = {42, 1003, 1207, 2010, 3020};
constexpr int32_t kRichNotesCarts[] = {1001, 1207, 2500};
constexpr int32_t kPlainNotesCarts[] = {7, 1002, 3901};

bool IsJingle(int32_t cart) { return cart <= kLastJingle; }

// The class that an advert's length belongs to, or -1 for a cart that is no advert.
int32_t ClassOf(int32_t cart) {
  constexpr int32_t kAdverts = kAdvertsOfAClass * kLengthClasses;
  if (cart >= kFirstAdvert && cart < kFirstAdvert + kAdverts) {
    return (cart - kFirstAdvert) % kLengthClasses;
  }
  for (const int32_t first : {kFirstLongAdvert, kFirstLongishAdvert}) {
    if (cart >= first && cart < first + kLengthClasses) return cart - first;
  }
  return -1;
}

float SecondsOf(int32_t cart) {
  if (IsJingle(cart)) return kJingleSeconds;
  const int32_t lengthClass = ClassOf(cart);
  if (lengthClass < 0) return 0;
  float seconds = kClassSeconds[static_cast<size_t>(lengthClass)];
  if (cart >= kFirstLongAdvert) {
    seconds += cart < kFirstLongishAdvert ? kOverTolerance : kWithinTolerance;
  }
  return seconds;
}

bool IsSilent(int32_t cart) { return cart >= kFirstSilentCart && cart <= kLastSilentCart; }

void SetLine(CartLine& line, std::string_view text) {
  line.fill(' ');
  std::memcpy(line.data(), text.data(), std::min(text.size(), line.size()));
}

CartRecord RecordOf(int32_t cart) {
  const int32_t lengthClass = ClassOf(cart);
  if (!IsJingle(cart) && !IsSilent(cart) && lengthClass < 0) return gBlankCartRecord;
  CartInfo info = gBlankCartInfo;
  SetLine(info.Line1, SampleCartTitle(cart));
  if (IsJingle(cart)) {
    SetLine(info.Line2, "Station sound");
    info.BackColor = kJingleColour;
    info.ForeColor = kJingleTextColour;
  } else {
    const auto index = static_cast<size_t>(cart);
    SetLine(info.Line2, kCampaigns[index % kCampaigns.size()]);
    SetLine(info.Line3, "Booking " + std::to_string(20000 + cart) + ", plays in all splits");
    info.BackColor = kClassColours[static_cast<size_t>(std::max(lengthClass, 0))];
    info.ForeColor = kTextColour;
  }
  info.Length = SecondsOf(cart);
  info.TotalLength = info.Length;
  info.EndPoint = info.Length;
  info.PlayLength = info.Length;
  CartRecord record;
  CartRecordFromInfo(record, info);
  return record;
}

std::string Bytes(const CartRecord& record) {
  return {reinterpret_cast<const char*>(&record), sizeof record};
}

std::string NotesText(int32_t cart) {
  return "Notes on cart " + std::to_string(cart) + ", " + SampleCartTitle(cart) +
         ": the voice at the end gives the opening hours. Check them each season.";
}

void WriteNotes() {
  for (const int32_t cart : kRichNotesCarts) {
    WriteSampleFile(GetCartFileStem(cart) + ".RTF",
                    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\r\n"
                    "\\f0\\fs24\\b Attention\\b0\\par\r\n" +
                        NotesText(cart) + "\\par\r\n}\r\n");
  }
  for (const int32_t cart : kPlainNotesCarts) {
    WriteSampleFile(GetCartFileStem(cart) + ".TXT", NotesText(cart) + "\r\n");
  }
}

}  // namespace

std::string SampleCartTitle(int32_t cart) {
  if (IsJingle(cart)) return "Larkfield Radio jingle " + std::to_string(cart);
  const auto index = static_cast<size_t>(cart);
  return std::string(kNames[index % kNames.size()]) + " " +
         kTrades[index / kNames.size() % kTrades.size()];
}

void WriteSampleStore(const SamplePlan& plan, const std::string& base) {
  InitialiseBlankCart();
  gNumberOfCarts = kSampleCarts;
  for (int16_t part = 1; part <= PartsInUse(); ++part) {
    PartEntry(part).Path = SampleCartFolder(base, part);
    MakeSampleFolder(PartEntry(part).Path);
    std::string list;
    for (int32_t cart = (part - 1) * kCartsOfAPart + 1; cart <= part * kCartsOfAPart; ++cart) {
      list += Bytes(RecordOf(cart));
    }
    WriteSampleFile(PartEntry(part).Path + "\\Carts" + std::to_string(part) + ".lst", list);
  }
  if (plan.individualListFiles) {
    for (const int32_t cart : kOwnListCarts) {
      WriteSampleFile(GetCartFileStem(cart) + ".LST", Bytes(RecordOf(cart)));
    }
  }
  WriteNotes();
  WriteSampleFile(AudiowallSettingsFile(),
                  "[Audiowall]\r\nNoCarts=" + std::to_string(kSampleCarts) + "\r\nVersion=2.6\r\n");
}

}  // namespace logchecker
