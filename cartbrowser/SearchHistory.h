// The last search texts, newest first.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace logchecker {

inline constexpr size_t kSearchesKept = 6;

// What survives while the search window is away, for the run of the program: position 1 first. Only
// kSearchesKept of the places are in use.
extern std::array<std::string, 32> gLastSearches;

// The history as the search window holds it while it is on show.
class SearchHistory {
 public:
  const std::vector<std::string>& Entries() const { return entries_; }

  // Puts a text on top, in the place of an older one like it. A first entry like it stays, and an
  // empty text is not kept. Of two like it that follow each other the second survives, because the
  // index moves on over the entry behind a removed one: this is meant. Upper and lower case differ
  // here.
  void Remember(std::string_view text);

  // Takes gLastSearches over, without its empty places.
  void Fill();
  // Gives the entries to gLastSearches, by position.
  void StoreLastSearches() const;

 private:
  std::vector<std::string> entries_;
};

}  // namespace logchecker
