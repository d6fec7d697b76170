#include "headless/StationList.h"

#include <gtest/gtest.h>

#include "common/PathText.h"
#include "common/Trouble.h"
#include "tests/support/ScriptedPlatform.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

std::vector<ListedStation> Read(const TempFolder& folder, std::string_view bytes) {
  folder.WriteFile("list.txt", bytes);
  return ReadStationList(folder.Path("list.txt"));
}

// What is said of a list, without the path of its folder.
std::string TroubleOf(const TempFolder& folder, std::string_view bytes) {
  try {
    Read(folder, bytes);
  } catch (const Trouble& trouble) {
    std::string text = trouble.what();
    const std::string path = ShownPath(folder.Path("list.txt"));
    const size_t at = text.find(path);
    return at == std::string::npos ? text : text.replace(at, path.size(), "LIST");
  }
  return "none";
}

TEST(StationList, ALineIsANameAndAFolder) {
  const TempFolder folder;
  const std::vector<ListedStation> stations =
      Read(folder,
           "\xEF\xBB\xBF# all of them\r\n\r\n C\xC3\xB4te Ouest =  /srv/a b \r\n"
           "  ; the old one\n\tX=/srv/x=y;z\n \nlast = /srv/#1");
  ASSERT_EQ(3U, stations.size());
  EXPECT_EQ("C\xF4te Ouest", stations[0].name);
  EXPECT_EQ("/srv/a b", stations[0].settings);
  EXPECT_EQ("X", stations[1].name);
  EXPECT_EQ("/srv/x=y;z", stations[1].settings);
  EXPECT_EQ("last", stations[2].name);
  EXPECT_EQ("/srv/#1", stations[2].settings);
}

TEST(StationList, AFolderWithoutARootCountsFromTheListsOwn) {
  const TempFolder folder;
  folder.WriteFile("north", "");
  const std::vector<ListedStation> stations = Read(folder, "a = north\nb = sub/south\n");
  EXPECT_EQ(ShownPath(folder.Path("north")), ShownPath(stations[0].settings));
  EXPECT_EQ(ShownPath(folder.Path("sub/south")), ShownPath(stations[1].settings));
}

TEST(StationList, WhatIsNoListNamesFileAndLine) {
  const TempFolder folder;
  const struct {
    std::string bytes;
    const char* trouble;
  } cases[] = {
      {"", "the list names no station: LIST"},
      {"# a = b\n;\n\n", "the list names no station: LIST"},
      {"a = /a\n\nb /b\n", "line 3 of LIST is not of the form NAME = FOLDER"},
      {"= /a\n", "line 1 of LIST has no name"},
      {"a = /a\nb =  \n", "line 2 of LIST has no folder"},
      {"a = /a\n#\na=/b", "line 3 of LIST names \"a\" again, which stands in line 1"},
      {"a = /\xE9\n",
       "line 1 of LIST is not UTF-8, or has a character that the code page can't hold"},
      {"\xE6\x9D\xB1 = /a\n",
       "line 1 of LIST is not UTF-8, or has a character that the code page can't hold"},
      {std::string("a = /a\0b\n", 9), "line 1 of LIST is no text"},
  };
  for (const auto& list : cases) EXPECT_EQ(list.trouble, TroubleOf(folder, list.bytes));
  EXPECT_EQ("the list of stations is longer than 16 MiB: LIST",
            TroubleOf(folder, std::string(size_t{17} << 20U, '\n')));
}

TEST(StationList, AListThatCannotBeReadIsTroubleWhicheverReadItIs) {
  const TempFolder folder;
  EXPECT_THROW(ReadStationList(folder.Path("none.txt")), Trouble);
  EXPECT_THROW(ReadStationList(folder.Path()), Trouble);
  for (const char* call :
       {"Files.FileLength", "Files.FreeFile", "Files.OpenForInput", "Files.Peek"}) {
    ScriptedPlatform platform;
    platform.script.FailNamed(call, 1, kDeviceIoError);
    EXPECT_EQ("the list of stations can't be read: LIST: Device I/O error",
              TroubleOf(folder, "a = /a\n"))
        << call;
  }
}

}  // namespace
}  // namespace logchecker
