// What a later load of a split's log sees of what has changed since.
#include <functional>

#include "common/ErrorState.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/CountingObserver.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr char kFirstPart[] = "06:00:00|NTH  00000001 FIRST\n\n";
constexpr char kSecondPart[] = "07:00:00|NTH  00000002 SECOND\n\n";

class LogReloadTest : public StationTest {
 protected:
  LogReloadTest() {
    OpenStore(10);
    PutCart(1, 30.0F);
    PutCart(2, 60.0F);
  }
  LogGrid& Load(int32_t day) {
    SettingsOf(1).LogDate = day;
    gSplits(1).LoadLogFile();
    return gSplits(1).gridLog;
  }
};

TEST_F(LogReloadTest, AGrownLogIsReadToItsNewEnd) {
  WriteLog(1, kDay, kFirstPart);
  EXPECT_EQ(4, Load(kDay).Rows());
  WriteLog(1, kDay, std::string(kFirstPart) + kSecondPart);
  EXPECT_EQ(7, Load(kDay).Rows());
  EXPECT_EQ("SECOND", gSplits(1).gridLog.Text(4, kDescriptionColumn));
}

TEST_F(LogReloadTest, ALogThatGrewUnderADayWithoutOneIsReadToItsNewEnd) {
  WriteLog(1, kDay, kFirstPart);
  EXPECT_EQ(4, Load(kDay).Rows());
  WriteLog(1, kDay, std::string(kFirstPart) + kSecondPart);
  EXPECT_EQ(7, Load(kDay + 1).Rows());
}

TEST_F(LogReloadTest, ALogThatWasCutShortLeavesNothingOfItsLongerSelf) {
  WriteLog(1, kDay, std::string(kFirstPart) + kSecondPart);
  EXPECT_EQ(7, Load(kDay).Rows());
  WriteLog(1, kDay, kSecondPart);
  const LogGrid& grid = Load(kDay);
  EXPECT_EQ(4, grid.Rows());
  EXPECT_EQ("07:00", grid.Text(1, kTimeColumn));
  EXPECT_EQ(0, grid.FirstRowAt(6 * 3600));
  // Cut to nothing it is no log, and what is open has nothing left to read.
  WriteLog(1, kDay, "");
  EXPECT_EQ(1, Load(kDay).Rows());
}

// Changes the log between its opening and the first line that is read of it.
class ChangingUi : public RecordingUi {
 public:
  explicit ChangingUi(std::function<void()> change) : change_(std::move(change)) {}
  void SetMousePointer(MousePointer newPointer) override {
    RecordingUi::SetMousePointer(newPointer);
    if (newPointer == MousePointer::kHourglass) change_();
  }

 private:
  std::function<void()> change_;
};

TEST_F(LogReloadTest, ALogThatChangesBehindItsOpeningIsReadAsItStandsThen) {
  for (const std::string text : {"", "06:00:00|NTH  000", kSecondPart, "\n\n"}) {
    WriteLog(1, kDay, kFirstPart);
    {
      const ChangingUi changing([&] { WriteLog(1, kDay, text); });
      Load(kDay);
    }
    const LogGrid& grid = gSplits(1).gridLog;
    const int32_t rows = text.empty() || text[0] == '\n' ? 1 : text == kSecondPart ? 4 : 2;
    EXPECT_EQ(rows, grid.Rows()) << text;
  }
}

TEST_F(LogReloadTest, CartsAreReadAnewAtEachLoad) {
  WriteLog(1, kDay, kFirstPart);
  EXPECT_EQ("  :30.00", Load(kDay).Text(2, kLengthColumn));
  PutCart(1, 45.0F);
  EXPECT_EQ("  :45.00", Load(kDay).Text(2, kLengthColumn));
}

TEST_F(LogReloadTest, AnUnloadedSplitShowsItsOpenLogAgain) {
  WriteLog(1, kDay, kFirstPart);
  Load(kDay);
  const int16_t file = SettingsOf(1).LogFileNumber;
  gSplits.Unload(1);
  EXPECT_EQ(file, SettingsOf(1).LogFileNumber);
  EXPECT_EQ(1, gSplits(1).gridLog.Rows());
  EXPECT_EQ(4, Load(kDay + 1).Rows());
}

TEST_F(LogReloadTest, WhoShowsTheGridIsToldOfTheEmptyGridAndOfTheFullOne) {
  WriteLog(1, kDay, std::string(kFirstPart) + kSecondPart);
  CountingObserver observer;
  gSplits(1).gridLog.SetObserver(&observer);
  Load(kDay);
  EXPECT_EQ(2, observer.changes);
  EXPECT_EQ(1, observer.selections);
  EXPECT_TRUE(gSplits(1).gridLog.Redraw());
}

TEST_F(LogReloadTest, TheSelectionStaysInsideAGridThatHasShrunk) {
  WriteLog(1, kDay, std::string(kFirstPart) + kSecondPart);
  Load(kDay);
  gSplits(1).SelectBreakByTime(7 * 3600);
  EXPECT_EQ(4, gSplits(1).gridLog.Row());
  WriteLog(1, kDay, kFirstPart);
  const LogGrid& grid = Load(kDay);
  EXPECT_LT(grid.Row(), grid.Rows());
  EXPECT_LT(grid.TopRow(), grid.Rows());
  EXPECT_LT(grid.SelectionEndRow(), grid.Rows());
}

TEST_F(LogReloadTest, ALoadThatStopsLeavesTheLogOpenForTheNextOne) {
  WriteLog(1, kDay, kFirstPart);
  os.script.FailNamed("Files.Peek", 1, kDeviceIoError);
  EXPECT_THROW(Load(kDay), RunTimeError);
  os.script.Clear();
  EXPECT_EQ(4, Load(kDay).Rows());
}

}  // namespace
}  // namespace logchecker
