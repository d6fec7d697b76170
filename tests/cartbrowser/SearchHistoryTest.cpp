#include "cartbrowser/SearchHistory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

using Texts = std::vector<std::string>;

class SearchHistoryTest : public StationTest {
 protected:
  // A history with these entries, newest first; more than six can't be had.
  static SearchHistory With(const Texts& entries) {
    gLastSearches = {};
    for (size_t i = 0; i < entries.size(); ++i) gLastSearches[i] = entries[i];
    SearchHistory history;
    history.Fill();
    return history;
  }
};

TEST_F(SearchHistoryTest, RememberingIsAsTabled) {
  const struct {
    Texts before;
    const char* text;
    Texts after;
  } cases[] = {
      {{}, "a", {"a"}},
      {{"a"}, "b", {"b", "a"}},
      {{"a"}, "  b ", {"b", "a"}},
      // What is there already moves to the top, unless it is there.
      {{"a", "b", "c"}, "c", {"c", "a", "b"}},
      {{"a", "b", "c"}, "b", {"b", "a", "c"}},
      {{"a", "b", "c"}, "a", {"a", "b", "c"}},
      {{"a ", "b"}, "a", {"a ", "b"}},
      {{"a", " b"}, "b", {"b", "a"}},
      // Case counts.
      {{"abc"}, "ABC", {"ABC", "abc"}},
      // An empty text is not kept.
      {{"a"}, "", {"a"}},
      {{"a"}, "   ", {"a"}},
      {{}, "", {}},
      // The seventh pushes the oldest out.
      {{"1", "2", "3", "4", "5"}, "x", {"x", "1", "2", "3", "4", "5"}},
      {{"1", "2", "3", "4", "5", "6"}, "x", {"x", "1", "2", "3", "4", "5"}},
      {{"1", "2", "3", "4", "5", "6"}, "6", {"6", "1", "2", "3", "4", "5"}},
      {{"1", "2", "3", "4", "5", "6"}, "1", {"1", "2", "3", "4", "5", "6"}},
      // The entry behind a removed one is not looked at.
      {{"a", "x", "x", "b"}, "x", {"x", "a", "x", "b"}},
      {{"a", "x", "x", "x"}, "x", {"x", "a", "x"}},
      {{"a", "x", "b", "x"}, "x", {"x", "a", "b"}},
      // Entries behind a first one like the text go.
      {{"x", "x", "a", "x"}, "x", {"x", "a"}},
  };
  for (const auto& row : cases) {
    SearchHistory history = With(row.before);
    history.Remember(row.text);
    EXPECT_THAT(history.Entries(), ElementsAreArray(row.after)) << row.text;
  }
}

TEST_F(SearchHistoryTest, EmptyPlacesAreSkippedWhenItIsFilled) {
  gLastSearches[0] = "a";
  gLastSearches[1] = "  ";
  gLastSearches[3] = " b";
  gLastSearches[5] = "c";
  gLastSearches[6] = "not in use";
  SearchHistory history;
  history.Fill();
  EXPECT_THAT(history.Entries(), ElementsAre("a", " b", "c"));
}

TEST_F(SearchHistoryTest, FillingReplacesWhatWasThere) {
  SearchHistory history = With({"a", "b"});
  gLastSearches = {};
  history.Fill();
  EXPECT_THAT(history.Entries(), IsEmpty());
}

TEST_F(SearchHistoryTest, ItIsStoredByPositionAndThePlacesBehindAreEmptied) {
  SearchHistory history = With({"1", "2", "3"});
  history.Remember("x");
  for (std::string& text : gLastSearches) text = "old";
  history.StoreLastSearches();
  EXPECT_THAT(Texts(gLastSearches.begin(), gLastSearches.begin() + 7),
              ElementsAre("x", "1", "2", "3", "", "", "old"));
  SearchHistory next;
  next.Fill();
  EXPECT_EQ(history.Entries(), next.Entries());
}

TEST_F(SearchHistoryTest, SixAreStored) {
  SearchHistory history;
  for (const char* text : {"1", "2", "3", "4", "5", "6", "7"}) history.Remember(text);
  history.StoreLastSearches();
  EXPECT_THAT(Texts(gLastSearches.begin(), gLastSearches.begin() + 7),
              ElementsAre("7", "6", "5", "4", "3", "2", ""));
}

}  // namespace
}  // namespace logchecker
