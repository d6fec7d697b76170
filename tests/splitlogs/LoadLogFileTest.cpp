#include <limits>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "common/PathText.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

std::string LineAt(const std::string& time, int32_t cart, const std::string& chain = "NTH") {
  std::string number = std::to_string(cart);
  number.insert(0, 8 - number.size(), '0');
  std::string code = chain;
  code.resize(4, ' ');
  return time + ":00|" + code + " " + number + " ADVERT " + std::to_string(cart) + "\r\n";
}

class LoadLogFileTest : public StationTest {
 protected:
  LoadLogFileTest() {
    OpenStore(20);
    PutCart(1, 30.25F);
    PutCart(2, 59.75F);
    SettingsOf(1).SplitName = "North";
  }
  const LogGrid& Load(std::string_view log) {
    WriteLog(1, kDay, log);
    gSplits(1).LoadLogFile();
    return gSplits(1).gridLog;
  }
  // A row's cells with "|" between them, and its colour.
  static std::string Row(const LogGrid& grid, int32_t row) {
    std::string text;
    for (int32_t column = 0; column < kLogColumns; ++column) {
      text += std::string(grid.Text(row, column)) + "|";
    }
    const int32_t colour = grid.BackColour(row, kLengthColumn);
    return text + (colour == kRed ? "red" : colour == kWhite ? "white" : "");
  }
  // The error that loading this log stops with.
  int32_t LoadStops(std::string_view log, std::string* text = nullptr) {
    try {
      Load(log);
    } catch (const RunTimeError& error) {
      if (text != nullptr) *text = error.what();
      EXPECT_EQ(MousePointer::kDefault, ui.pointer);
      EXPECT_TRUE(gSplits(1).gridLog.Redraw());
      return error.number();
    }
    return 0;
  }
};

TEST_F(LoadLogFileTest, EachBreakIsABlockWithItsTotalAndAGap) {
  const LogGrid& grid =
      Load(LineAt("06:00", 1) + LineAt("06:01", 2) + "\r\n" + LineAt("07:30", 1) + "  \r\n");
  EXPECT_EQ(8, grid.Rows());
  EXPECT_EQ("06:00|ADVERT 1||1|  :30|1|white", Row(grid, 1));
  EXPECT_EQ("|ADVERT 2||2| 1:00|34|white", Row(grid, 2));
  EXPECT_EQ("|||| 1:30.00||", Row(grid, 3));
  EXPECT_EQ("||||||", Row(grid, 4));
  EXPECT_EQ("07:30|ADVERT 1||1|  :30|69|white", Row(grid, 5));
  EXPECT_EQ("||||  :30.25||", Row(grid, 6));
}

TEST_F(LoadLogFileTest, HundredthsShowAsTheSettingsSay) {
  gGeneralSettings.DisplayAdvertHH = true;
  gGeneralSettings.DisplayBreakHH = false;
  const LogGrid& grid = Load(LineAt("06:00", 1) + "\n");
  EXPECT_EQ("  :30.25", grid.Text(1, kLengthColumn));
  EXPECT_EQ("  :30", grid.Text(2, kLengthColumn));
}

TEST_F(LoadLogFileTest, ACartWithoutAudioIsRedAndAddsNothing) {
  const LogGrid& grid = Load(LineAt("06:00", 1) + LineAt("06:01", 9) + LineAt("06:02", 0) +
                             LineAt("06:03", 21) + "\n" + LineAt("07:00", 9) + "\n");
  EXPECT_EQ("|ADVERT 9||9|--:--|34|red", Row(grid, 2));
  EXPECT_EQ("|ADVERT 0||0|--:--|67|red", Row(grid, 3));
  EXPECT_EQ("|ADVERT 21||21|--:--|100|red", Row(grid, 4));
  EXPECT_EQ("  :30.25", grid.Text(5, kLengthColumn));
  EXPECT_EQ("--:--", grid.Text(8, kLengthColumn));
}

TEST_F(LoadLogFileTest, ABlankCartFieldIsACartWithoutAudio) {
  const LogGrid& grid =
      Load(LineAt("06:00", 1) + "06:01:00|NTH           NO CART\r\n" + LineAt("06:02", 2) + "\n");
  EXPECT_EQ("|NO CART||0|--:--|34|red", Row(grid, 2));
  EXPECT_EQ(" 1:30.00", grid.Text(4, kLengthColumn));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LoadLogFileTest, AStoreThatCannotBeReadIsCartsWithoutAudio) {
  os.script.FailNamed("Files.GetRecord", 0, kDeviceIoError);
  const LogGrid& grid = Load(LineAt("06:00", 1) + LineAt("06:01", 2) + "\n" + LineAt("07:00", 1));
  EXPECT_EQ(6, grid.Rows());
  EXPECT_EQ("|ADVERT 2||2|--:--|34|red", Row(grid, 2));
  EXPECT_EQ("07:00|ADVERT 1||1|--:--|68|red", Row(grid, 5));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LoadLogFileTest, BlankLinesBeforeAndBetweenLeaveNoTrace) {
  const LogGrid& grid =
      Load("\n  \n\r\n" + LineAt("06:00", 1) + "\n\n \n" + LineAt("07:00", 1) + "\n");
  EXPECT_EQ("06:00", grid.Text(1, kTimeColumn));
  EXPECT_EQ("07:00", grid.Text(4, kTimeColumn));
  EXPECT_EQ(7, grid.Rows());
}

TEST_F(LoadLogFileTest, WithoutAFinalBlankLineTheLastBreakHasNoTotal) {
  const LogGrid& grid = Load(LineAt("06:00", 1) + "\n" + LineAt("07:00", 1) + LineAt("07:01", 2));
  EXPECT_EQ(6, grid.Rows());
  EXPECT_EQ("|ADVERT 2||2| 1:00|68|white", Row(grid, 5));
  int32_t last = 0;
  gSplits(1).FindEndofBreak(4, last);
  EXPECT_EQ(5, last);
}

TEST_F(LoadLogFileTest, AnUnendedLineLosesItsLastCharacter) {
  const LogGrid& grid = Load("06:00:00|NTH  00000001 ADVERT");
  EXPECT_EQ("ADVER", grid.Text(1, kDescriptionColumn));
  EXPECT_EQ(2, grid.Rows());
}

TEST_F(LoadLogFileTest, OnlyLinesOfTheSplitsOwnChainCount) {
  const std::string log = LineAt("06:00", 1, "sth") + LineAt("06:01", 2, "NTH") +
                          LineAt("06:02", 1, "") + "\n" + LineAt("07:00", 1, "STH") + "\n";
  struct Case {
    const char* code;
    int32_t rows;
    const char* firstTime;
  };
  for (const Case& row : {Case{"", 9, "06:00"}, Case{"NTH", 4, "06:01"}, Case{"STH", 7, "06:00"},
                          Case{"NTH ", 1, ""}, Case{"nth", 1, ""}, Case{"XYZ", 1, ""}}) {
    SettingsOf(1).LogTXChainCode = row.code;
    const LogGrid& grid = Load(log);
    EXPECT_EQ(row.rows, grid.Rows()) << row.code;
    EXPECT_EQ(row.firstTime, grid.Rows() > 1 ? grid.Text(1, kTimeColumn) : "") << row.code;
  }
}

TEST_F(LoadLogFileTest, ATimeOutsideTheDayShowsAsDashes) {
  const LogGrid& grid = Load(LineAt("24:00", 1) + "\n" + LineAt("24:30", 1) + "\n");
  EXPECT_EQ("24:00", grid.Text(1, kTimeColumn));
  EXPECT_EQ("--:--", grid.Text(4, kTimeColumn));
}

TEST_F(LoadLogFileTest, ALengthThatIsNoFiniteNumberShowsAsDashes) {
  for (const float length :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
    CartRecord record = RecordOfLength(30);
    record.Length = length;
    PutCart(3, record);
    const LogGrid& grid = Load(LineAt("06:00", 3) + "\n");
    EXPECT_EQ("--:--", grid.Text(1, kLengthColumn));
    EXPECT_EQ("--:--", grid.Text(2, kLengthColumn));
  }
}

TEST_F(LoadLogFileTest, TotalsAreRoundedToSinglePrecisionAtEachAddition) {
  PutCart(3, 65536.0F);
  PutCart(4, 0.003F);
  std::string log = LineAt("06:00", 3);
  for (int i = 0; i < 10; ++i) log += LineAt("06:00", 4);
  // In single precision 65536 and 0.003 is 65536 however often it is added.
  EXPECT_EQ("18:12:16.00", Load(log + "\n").Text(12, kLengthColumn));
}

TEST_F(LoadLogFileTest, WithoutALogTheGridIsItsHeader) {
  gSplits(1).LoadLogFile();
  EXPECT_EQ(1, gSplits(1).gridLog.Rows());
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_TRUE(ui.pointers.empty());
}

TEST_F(LoadLogFileTest, AnOlderLogIsShownAgainUnderADateWithoutOne) {
  Load(LineAt("06:00", 1) + "\n");
  SettingsOf(1).LogDate = kDay + 1;
  gSplits(1).LoadLogFile();
  EXPECT_EQ("06:00", gSplits(1).gridLog.Text(1, kTimeColumn));
  WriteLog(1, kDay + 1, "");
  gSplits(1).LoadLogFile();
  EXPECT_EQ(4, gSplits(1).gridLog.Rows());
}

TEST_F(LoadLogFileTest, ALogThatCannotBeOpenedStopsTheProgramAndIsNamed) {
  os.script.FailNamed("Files.OpenForInput", 1, kPermissionDenied);
  std::string text;
  EXPECT_EQ(kBadFileNumber, LoadStops(LineAt("06:00", 1), &text));
  EXPECT_NE(std::string::npos, text.find("split 1 \"North\""));
  EXPECT_NE(std::string::npos, text.find(ShownPath(GetLogSourcePath(1, kDay, false))));
}

TEST_F(LoadLogFileTest, APartOfALogThatCannotBeReadStopsTheProgram) {
  // More than is read ahead at once, so that each of the calls comes a second time.
  std::string log;
  for (int i = 0; i < 100; ++i) log += LineAt("06:00", 1) + std::string(1000, ' ') + "\n";
  for (const char* call : {"Files.EndOfFile", "Files.Peek", "Files.Position", "Files.Seek"}) {
    os.script.Clear();
    os.script.FailNamed(call, std::string(call) == "Files.Seek" ? 1 : 2, kDeviceIoError);
    EXPECT_EQ(kDeviceIoError, LoadStops(log)) << call;
  }
}

// `adverts` rows of one break, then what comes.
std::string BreakOf(int adverts, int32_t cart = 9) {
  std::string log;
  for (int i = 0; i < adverts; ++i) log += LineAt("06:00", cart);
  return log;
}

TEST_F(LoadLogFileTest, ALineAtARowThatEqualsTheRowCountStopsTheProgram) {
  SettingsOf(1).LogTXChainCode = "NTH";
  std::string text;
  EXPECT_EQ(0, LoadStops(BreakOf(1439)));
  EXPECT_EQ(1440, gSplits(1).gridLog.Rows());
  EXPECT_EQ(kInvalidGridRow, LoadStops(BreakOf(1440), &text));
  EXPECT_NE(std::string::npos, text.find("row 1440 of 1440"));
  EXPECT_EQ(kInvalidGridRow, LoadStops(BreakOf(1439) + "\n"));
  EXPECT_EQ(kInvalidGridRow, LoadStops(BreakOf(1439) + LineAt("06:00", 1, "STH")));
}

TEST_F(LoadLogFileTest, TheGridGrowsWhenARowJumpsOverTheRowCount) {
  // The total stands in row 1439, the next break begins in row 1441.
  EXPECT_EQ(0, LoadStops(BreakOf(1438) + "\n" + BreakOf(99)));
  EXPECT_EQ(1540, gSplits(1).gridLog.Rows());
  EXPECT_EQ("06:00", gSplits(1).gridLog.Text(1441, kTimeColumn));
  EXPECT_EQ(kInvalidGridRow, LoadStops(BreakOf(1438) + "\n" + BreakOf(100)));
  EXPECT_EQ(0, LoadStops(BreakOf(1438) + "\n"));
  EXPECT_EQ(1441, gSplits(1).gridLog.Rows());
}

TEST_F(LoadLogFileTest, ALogOfMoreThanAMillionRowsStopsTheProgram) {
  // Breaks of eight adverts take ten rows and never meet the end of the grid. The script would
  // record each of some million calls. A cart that the store is too small for is never read.
  Platform& scripted = UsePlatform(RealPlatform());
  const int32_t cart = gNumberOfCarts + 1;
  std::string log;
  for (int i = 0; i < 99999; ++i) log += BreakOf(8, cart) + "\n";
  EXPECT_EQ(0, LoadStops(log + BreakOf(9, cart)));
  EXPECT_EQ(kMostRows, gSplits(1).gridLog.Rows());
  std::string text;
  EXPECT_EQ(kInvalidGridRow, LoadStops(log + BreakOf(8, cart) + "\n" + BreakOf(1, cart), &text));
  EXPECT_NE(std::string::npos, text.find("more than 1000000 rows"));
  UsePlatform(scripted);
}

TEST_F(LoadLogFileTest, ALongLineAndBinaryBytesAreOneAdvert) {
  const LogGrid& grid = Load("06:00:00|NTH  00000001 " + std::string(3 << 20, 'x') + "\n\n");
  EXPECT_EQ(30U, grid.Text(1, kDescriptionColumn).size());
  EXPECT_EQ((3U << 20) - 36, grid.Text(1, kReferenceColumn).size());
  const LogGrid& binary = Load(std::string("\0\xFF\x01|\n", 5) + "\n");
  EXPECT_EQ("00:00", binary.Text(1, kTimeColumn));
  EXPECT_EQ(4, binary.Rows());
}

// Looks at whether the grid paints when the pointer changes.
class PaintWatchingUi : public RecordingUi {
 public:
  void SetMousePointer(MousePointer shape) override {
    RecordingUi::SetMousePointer(shape);
    paints.push_back(gSplits(1).gridLog.Redraw());
  }
  std::vector<bool> paints;
};

TEST_F(LoadLogFileTest, TheGridPaintsBeforeThePointerGoesBack) {
  const PaintWatchingUi watching;
  Load(LineAt("06:00", 1));
  EXPECT_EQ((std::vector<bool>{false, true}), watching.paints);
}

TEST_F(LoadLogFileTest, TheHourglassShowsDuringTheFill) {
  Load(LineAt("06:00", 1));
  EXPECT_EQ((std::vector<MousePointer>{MousePointer::kHourglass, MousePointer::kDefault}),
            ui.pointers);
  EXPECT_EQ(0, ui.yields);
}

}  // namespace
}  // namespace logchecker
