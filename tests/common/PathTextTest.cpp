#include "common/PathText.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

TEST(PathText, PartsOfAPath) {
  struct Case {
    const char* path;
    const char* name;
    const char* title;
    const char* stripped;
    const char* folder;
    const char* folderWithSeparator;
  };
  const Case cases[] = {
      {"C:\\A\\B.C", "B.C", "B", "C:\\A\\B", "C:\\A", "C:\\A\\"},
      {"C:/A/B.C", "B.C", "B", "C:/A/B", "C:/A", "C:/A\\"},
      {"C:\\A\\", "", "", "C:\\A\\", "C:\\A", "C:\\A\\"},
      {"C:\\A.B\\C", "C", "C", "C:\\A.B\\C", "C:\\A.B", "C:\\A.B\\"},
      {"C:\\A.B/C.D.E", "C.D.E", "C.D", "C:\\A.B/C.D", "C:\\A.B", "C:\\A.B\\"},
      {"abc", "abc", "abc", "abc", "", "\\"},
      {"abc.txt", "abc.txt", "abc", "abc", "", "\\"},
      {"\\abc", "abc", "abc", "\\abc", "", "\\"},
      {".INI", ".INI", "", "", "", "\\"},
      {"", "", "", "", "", ""},
      {"a.", "a.", "a", "a", "", "\\"},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(row.name, GetFileNamePart(row.path)) << row.path;
    EXPECT_EQ(row.title, GetFileTitlePart(row.path)) << row.path;
    EXPECT_EQ(row.stripped, StripExtension(row.path)) << row.path;
    EXPECT_EQ(row.folder, GetPathPart(row.path, false)) << row.path;
    EXPECT_EQ(row.folderWithSeparator, GetPathPart(row.path, true)) << row.path;
  }
}

TEST(PathText, APathIsShownWithTheSeparatorThatItHasFirst) {
  const std::pair<const char*, const char*> cases[] = {
      {"/srv/station\\logs\\1.LOG", "/srv/station/logs/1.LOG"},
      {"C:\\LOGS/1.LOG", "C:\\LOGS\\1.LOG"},
      {"C:/LOGS\\1.LOG", "C:/LOGS/1.LOG"},
      {"\\\\server\\share/1.LOG", "\\\\server\\share\\1.LOG"},
      {"out/tomorrow.csv", "out/tomorrow.csv"},
      {"out\\tomorrow.csv", "out\\tomorrow.csv"},
      {"tomorrow.csv", "tomorrow.csv"},
      {"", ""},
  };
  for (const auto& [path, shown] : cases) EXPECT_EQ(shown, ShownPath(path));
}

}  // namespace
}  // namespace logchecker
