// How the lines of a log fall into breaks.
#include <algorithm>

#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr char kFirst[] = "06:00:00|NTH  00000001 FIRST\n";
constexpr char kSecond[] = "06:01:00|NTH  00000002 SECOND\n";
constexpr char kForeign[] = "05:59:00|STH  00000001 FOREIGN\n";

using Texts = std::vector<std::string>;

class LogBreaksTest : public StationTest {
 protected:
  LogBreaksTest() {
    OpenStore(10);
    PutCart(1, 30.0F);
    PutCart(2, 60.0F);
  }
  // The rows that the log gives, each as its time, its description and its length.
  Texts RowsOf(const std::string& log) {
    WriteLog(1, kDay, log);
    gSplits(1).LoadLogFile();
    const LogGrid& grid = gSplits(1).gridLog;
    Texts rows;
    for (int32_t row = 1; row < grid.Rows(); ++row) {
      std::string text;
      for (const int32_t column : {kTimeColumn, kDescriptionColumn, kLengthColumn}) {
        text += std::string(grid.Text(row, column)) + "/";
      }
      rows.push_back(text);
    }
    return rows;
  }
};

TEST_F(LogBreaksTest, OnlyALineOfNothingButBlanksEndsABreak) {
  struct Case {
    const char* between;
    bool ends;
  };
  const Case cases[] = {
      {"\n", true},       {"\r\n", true},      {" \n", true},   {"             \n", true},
      {" \r \r\n", true}, {"\n \n\n", true},   {"\t\n", false}, {".\n", false},
      {"\xA0\n", false},  {"     |\n", false}, {"0\n", false},  {"", false},
  };
  for (const Case& row : cases) {
    const Texts rows = RowsOf(std::string(kFirst) + row.between + kSecond + "\n");
    // The first row of each break has a time.
    const auto breaks = std::count_if(rows.begin(), rows.end(),
                                      [](const std::string& text) { return text[0] != '/'; });
    EXPECT_EQ(row.ends ? 2 : 1, breaks) << row.between;
  }
}

TEST_F(LogBreaksTest, ALineOfAnotherChainIsAsIfItWereNotThere) {
  SettingsOf(1).LogTXChainCode = "NTH";
  const std::string foreign = kForeign;
  const Texts one = RowsOf(std::string(kFirst) + kSecond + "\n");
  EXPECT_EQ((Texts{"06:00/FIRST/  :30/", "/SECOND/ 1:00/", "// 1:30.00/", "///"}), one);
  EXPECT_EQ(one, RowsOf(foreign + kFirst + kSecond + "\n")) << "before the break";
  EXPECT_EQ(one, RowsOf(kFirst + foreign + foreign + kSecond + "\n")) << "inside the break";
  EXPECT_EQ(one, RowsOf(std::string(kFirst) + kSecond + foreign + "\n")) << "at its end";
  EXPECT_EQ(one, RowsOf(foreign + "\n" + kFirst + kSecond + "\n")) << "in a break of their own";
  EXPECT_EQ(one, RowsOf(std::string(kFirst) + kSecond + "\n" + foreign + "\n"));
  const Texts two = RowsOf(std::string(kFirst) + "\n" + kSecond + "\n");
  EXPECT_EQ(two, RowsOf(std::string(kFirst) + "\n" + foreign + "\n" + kSecond + "\n"));
  EXPECT_EQ(Texts(), RowsOf(foreign + foreign + "\n" + foreign));
}

TEST_F(LogBreaksTest, OnlyTheFirstLineOfABreakGivesItsTime) {
  for (const char* later : {"05:00:00", "07:00:00", "24:30:00", "ab:cd:ef"}) {
    const std::string line = later + std::string("|NTH  00000002 SECOND\n");
    EXPECT_EQ((Texts{"06:00/FIRST/  :30/", "/SECOND/ 1:00/", "// 1:30.00/", "///"}),
              RowsOf(kFirst + line + "\n"))
        << later;
  }
}

TEST_F(LogBreaksTest, LinesOfBothFormsStandInOneBreak) {
  EXPECT_EQ((Texts{"06:00/SHORT /  :30/", "/SECOND/ 1:00/", "// 1:30.00/", "///"}),
            RowsOf(std::string("06:00|NTH     1 SHORT\n") + kSecond + "\n"));
  SettingsOf(1).LogTXChainCode = "STH";
  EXPECT_EQ((Texts{"06:00/SHORT /  :30/", "//  :30.00/", "///"}),
            RowsOf(std::string("06:00|sth     1 SHORT\n") + kSecond + "\n"));
}

}  // namespace
}  // namespace logchecker
