// The parts of the Audiowall, and which cart lies where.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace logchecker {

inline constexpr int16_t kAudiowallParts = 11;
inline constexpr int32_t kCartsOfAPart = 1000;
inline constexpr int32_t kDefaultNumberOfCarts = 9999;

enum PartState : int32_t { kPartUnchecked = 0, kPartUsable = 1, kPartUnusable = 2 };

struct AudiowallPart {
  std::string Path;          // the part's directory, from the settings
  std::string FullFileName;  // Path, "\" and FileName
  std::string FileName;      // Carts<n>.lst
  bool IsOpen = false;
  int32_t State = kPartUnchecked;
  int32_t FileNumber = 0;  // of the open list file; below 1 while none was ever opened
  // Whether FileNumber is this part's own, as it is from an opening to CloseAudiowall. Behind that
  // the number stays here and may be another file's.
  bool HoldsNumber = false;
};

// Index is the part number less 1. Lives for the whole run.
extern std::array<AudiowallPart, kAudiowallParts> gAudiowallParts;

// Carts are numbered from 1 to here.
extern int32_t gNumberOfCarts;

// Parts 1 to 10 hold a thousand carts each, part 11 all above 10000. Any number outside 0 to 10000
// gives 11, and 0 gives 0.
int16_t GetCartPart(int32_t cartNumber);

// How many parts are in use: the part of the last cart.
int16_t PartsInUse();

// What the part's list file is read under: its number while that is its own, else 0, which no file
// has.
inline int16_t OwnFileNumber(const AudiowallPart& entry) {
  return entry.HoldsNumber ? static_cast<int16_t>(entry.FileNumber) : int16_t{0};
}

// The entry of a part, from 1 to 11.
AudiowallPart& PartEntry(int16_t part);

}  // namespace logchecker
