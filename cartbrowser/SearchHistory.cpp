#include "cartbrowser/SearchHistory.h"

#include <algorithm>

#include "common/TextHelpers.h"

namespace logchecker {

std::array<std::string, 32> gLastSearches;

void SearchHistory::Remember(std::string_view text) {
  text = Trim(text);
  for (size_t i = 1; i < entries_.size(); ++i) {
    if (Trim(entries_[i]) == text) entries_.erase(entries_.begin() + static_cast<ptrdiff_t>(i));
  }
  if (text.empty() || (!entries_.empty() && Trim(entries_.front()) == text)) return;
  if (entries_.size() >= kSearchesKept) entries_.resize(kSearchesKept - 1);
  entries_.emplace(entries_.begin(), text);
}

void SearchHistory::Fill() {
  entries_.clear();
  for (size_t i = 0; i < kSearchesKept; ++i) {
    if (!Trim(gLastSearches[i]).empty()) entries_.push_back(gLastSearches[i]);
  }
}

void SearchHistory::StoreLastSearches() const {
  std::copy(entries_.begin(), entries_.end(), gLastSearches.begin());
  for (size_t i = entries_.size(); i < kSearchesKept; ++i) gLastSearches[i].clear();
}

}  // namespace logchecker
