#include "printing/cPrinting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "common/ErrorState.h"
#include "tests/printing/RecordingCanvas.h"

namespace logchecker {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

ListItem Row(const std::string& text, const std::vector<std::string>& rest) {
  ListItem item;
  item.text = text;
  for (const std::string& sub : rest) item.ListSubItems.push_back({sub});
  return item;
}

class PrintingTest : public testing::Test {
 protected:
  PrintingTest() {
    list.ColumnHeaders = {{"Time", 800, ColumnAlignment::kLeft},
                          {"North", 1400, ColumnAlignment::kCentre}};
    list.ListItems = {Row("10:30", {"2:00.00"}), Row("11:00", {"Not Found"})};
  }
  bool Print(int16_t selectedOnly = 0) {
    return printing.PrintListView(&list, "Title", selectedOnly) == -1;
  }
  int PrintsOf(const std::string& text) const {
    int count = 0;
    for (const std::string& line : canvas.log) count += line.ends_with(" " + text) ? 1 : 0;
    return count;
  }

  RecordingCanvas canvas;
  cPrinting printing{canvas};
  ListView list;
};

// With pixels of 2 by 3 twips: left margin 40, text left 70, right edge 9960; the columns' widths
// and gaps are 860 + 1460, so the scale factor is 9890 / 2320.
TEST_F(PrintingTest, EveryStepStandsInItsPlaceToTheTwip) {
  ASSERT_TRUE(Print()) << printing.GetLastError();
  EXPECT_THAT(
      canvas.log,
      ElementsAre("70,30 14 b u Title",  // Y = 30, one line of 280
                  "70,460 12 b Time",    // 310 + 60, + 60, + 30
                  "3736.12,460 12 b North", "rule 40,760-9960,760", "70,820 12 10:30",
                  "3736,820 12 2:00.00", "70,1120 12 11:00", "3736,1120 12 Not Found", "end"));
  EXPECT_EQ(canvas.penWidth, 10);
  EXPECT_EQ(canvas.jobs, 1);
}

TEST_F(PrintingTest, TheScaleModeIsTwipsDuringTheRunAndTheOldOneAfterwards) {
  Print();
  EXPECT_THAT(canvas.scaleModes, ElementsAre(kScaleTwips, 7));
}

TEST_F(PrintingTest, NoListIsRefusedWithNothingDone) {
  EXPECT_EQ(printing.PrintListView(nullptr, "Title", 0), 0);
  EXPECT_TRUE(canvas.log.empty());
  EXPECT_TRUE(canvas.scaleModes.empty());
}

TEST_F(PrintingTest, AnEmptyListPrintsTitleAndHeadings) {
  list.ListItems.clear();
  ASSERT_TRUE(Print());
  EXPECT_EQ(canvas.log.size(), 5U);
  EXPECT_EQ(canvas.log.back(), "end");
}

TEST_F(PrintingTest, SelectedOnlyWithoutASelectionPrintsTitleAndHeadings) {
  ASSERT_TRUE(Print(-1));
  EXPECT_EQ(PrintsOf("10:30"), 0);
  EXPECT_EQ(canvas.log.back(), "end");
}

TEST_F(PrintingTest, SelectedOnlyPrintsTheSelectedRows) {
  list.ListItems[1].Selected = true;
  ASSERT_TRUE(Print(-1));
  EXPECT_EQ(PrintsOf("10:30"), 0);
  EXPECT_EQ(PrintsOf("11:00"), 1);
}

TEST_F(PrintingTest, AWideListIsSqueezedAndANarrowOneStretched) {
  list.ColumnHeaders[0].width = 8000;
  list.ColumnHeaders[1].width = 14000;
  ASSERT_TRUE(Print());
  // The second column begins at 70 + 9890 * 8060 / 22120.
  EXPECT_THAT(canvas.log, Contains("3673.68,460 12 b North"));
}

TEST_F(PrintingTest, ALongTextIsCutHardAtItsColumn) {
  list.ListItems[0].text = std::string(500, 'x');
  ASSERT_TRUE(Print());
  // round(scale * 800) = 3410 twips, at 120 a character.
  EXPECT_EQ(PrintsOf(std::string(28, 'x')), 1);
}

TEST_F(PrintingTest, AHeadingIsCutAtItsColumn) {
  list.ColumnHeaders[1].text = std::string(500, 'h');
  ASSERT_TRUE(Print());
  // round(scale * 1400) = 5968 twips, at 240 a bold character.
  EXPECT_EQ(PrintsOf(std::string(24, 'h')), 1);
}

TEST_F(PrintingTest, LineBreaksBecomeBlanks) {
  list.ListItems[0].text = "a\r\nb";
  ASSERT_TRUE(Print());
  EXPECT_EQ(PrintsOf("a  b"), 1);
}

TEST_F(PrintingTest, ABlankCellPrintsNothingAndKeepsTheBoldState) {
  list.ColumnHeaders.push_back({"South", 1400, ColumnAlignment::kLeft});
  list.ListItems = {Row("a", {"   ", "c"})};
  list.ListItems[0].Bold = true;
  list.ListItems[0].ListSubItems[0].Bold = false;
  std::vector<bool> states;
  printing.hooks.CheckPrintCell = [&](const ListView&, int32_t, int32_t column, std::string&,
                                      int32_t) {
    if (column == 3) states.push_back(canvas.bold);
  };
  ASSERT_TRUE(Print());
  EXPECT_EQ(states, std::vector<bool>{true}) << "still bold from the first cell";
  EXPECT_THAT(canvas.log, Not(Contains(HasSubstr("    "))));
}

TEST_F(PrintingTest, ARowWithFewerSubItemsHasEmptyCells) {
  list.ListItems = {Row("a", {})};
  ASSERT_TRUE(Print());
  EXPECT_EQ(canvas.log.size(), 6U);
}

TEST_F(PrintingTest, BoldFollowsTheItemAndItsSubItems) {
  list.ListItems[0].Bold = true;
  list.ListItems[1].ListSubItems[0].Bold = true;
  ASSERT_TRUE(Print());
  EXPECT_THAT(canvas.log, Contains("70,820 12 b 10:30"));
  EXPECT_THAT(canvas.log, Contains("3736,820 12 2:00.00"));
  EXPECT_THAT(canvas.log, Contains("3736,1120 12 b Not Found"));
}

TEST_F(PrintingTest, ColumnsOfWidthZeroVanishAndTheOthersSpread) {
  list.ColumnHeaders[0].width = 0;
  ASSERT_TRUE(Print());
  EXPECT_EQ(PrintsOf("Time"), 0);
  EXPECT_EQ(PrintsOf("10:30"), 0);
  EXPECT_THAT(canvas.log, Contains("70,460 12 b North"));
}

TEST_F(PrintingTest, TheOwnerMayChangeWidthsRowsAndCells) {
  std::vector<std::string> told;
  printing.hooks.CheckColWidth = [](const ListView&, int32_t column, int32_t& width) {
    if (column == 1) width = 0;
  };
  printing.hooks.CheckPrintRow = [](const ListView&, int32_t row, bool& printIt, int32_t) {
    printIt = row == 2;
  };
  printing.hooks.CheckPrintCell = [](const ListView&, int32_t row, int32_t column,
                                     std::string& text, int32_t) {
    text = std::to_string(row) + "/" + std::to_string(column);
  };
  ASSERT_TRUE(Print());
  EXPECT_EQ(PrintsOf("2/2"), 1);
  EXPECT_THAT(canvas.log, Contains("70,460 12 b North")) << "which has the first one's room";
  EXPECT_EQ(PrintsOf("1/2"), 0);
  EXPECT_EQ(PrintsOf("Time"), 0);
}

TEST_F(PrintingTest, AllRowsCountInTheProgressAndAHundredEndsIt) {
  list.ListItems.assign(8, Row("r", {"x"}));
  for (size_t i = 4; i < 8; ++i) list.ListItems[i].Selected = true;
  std::vector<std::pair<int, int>> told;
  printing.hooks.PrintProgress = [&](const ListView&, int16_t percent, int32_t lines) {
    told.emplace_back(percent, lines);
  };
  ASSERT_TRUE(Print(-1));
  EXPECT_THAT(told, ElementsAre(std::pair(0, 0), std::pair(12, 1), std::pair(25, 2),
                                std::pair(38, 3), std::pair(100, 4)));
}

TEST_F(PrintingTest, TheShareOfTheRowsIsRoundedAfterItsDivision) {
  list.ListItems.assign(40, Row("r", {"x"}));
  std::vector<int> told;
  printing.hooks.PrintProgress = [&](const ListView&, int16_t percent, int32_t) {
    told.push_back(percent);
  };
  ASSERT_TRUE(Print());
  EXPECT_EQ(told[23], 57) << "23 / 40 lies just below 0.575";
  EXPECT_EQ(told[1], 2);
}

TEST_F(PrintingTest, TheOwnerSeesTheRowsStateTheLinesAndEveryCell) {
  list.ListItems[0].Selected = true;
  list.ListItems[1].ListSubItems.clear();
  std::vector<std::string> told;
  printing.hooks.CheckPrintRow = [&](const ListView&, int32_t row, bool& printIt, int32_t lines) {
    told.push_back("row " + std::to_string(row) + (printIt ? " prints " : " does not ") +
                   std::to_string(lines));
    printIt = true;
  };
  printing.hooks.CheckPrintCell = [&](const ListView&, int32_t row, int32_t column,
                                      std::string& text, int32_t lines) {
    if (row == 2 && column == 2) {
      told.push_back("cell '" + text + "' " + std::to_string(lines));
      text = "filled";
    }
  };
  ASSERT_TRUE(Print(-1));
  EXPECT_THAT(told, ElementsAre("row 1 prints 0", "row 2 does not 1", "cell '' 1"));
  EXPECT_EQ(PrintsOf("filled"), 1);
}

TEST_F(PrintingTest, WidthsThatNoNumberHoldsAreAnOverflow) {
  printing.hooks.CheckColWidth = [](const ListView&, int32_t, int32_t& width) {
    width = std::numeric_limits<int32_t>::max();
  };
  EXPECT_FALSE(Print());
  EXPECT_EQ(printing.GetLastError(), "Overflow");
}

TEST_F(PrintingTest, ARowNearTheFootSendsTheNextToANewPageWithHeadingsAndNoTitle) {
  // Rows end at 1060, 1360, 1660; the second end is past 1900 - 600.
  canvas.pageHeight = 1900;
  list.ListItems.assign(3, Row("r", {"x"}));
  ASSERT_TRUE(Print());
  EXPECT_EQ(canvas.pages, 2);
  EXPECT_EQ(PrintsOf("Title"), 1);
  EXPECT_EQ(PrintsOf("Time"), 2);
  EXPECT_THAT(canvas.log, Contains("70,0 12 b Time")) << "at the very top";
  EXPECT_THAT(canvas.log, Contains("rule 40,300-9960,300"));
}

TEST_F(PrintingTest, TheFootIsTestedAfterTheLastRowTooSoHeadingsAloneCanEndTheReport) {
  canvas.pageHeight = 1900;
  ASSERT_TRUE(Print());
  EXPECT_EQ(canvas.pages, 2);
  EXPECT_EQ(canvas.log.back(), "end");
  EXPECT_EQ(canvas.log[canvas.log.size() - 2].find("rule"), 0U);
}

TEST_F(PrintingTest, APageThatEndsExactlyAtTheReserveGoesOn) {
  canvas.pageHeight = 1360 + 600;
  ASSERT_TRUE(Print());
  EXPECT_EQ(canvas.pages, 1);
  canvas.pageHeight = 1360 + 599;
  canvas.log.clear();
  ASSERT_TRUE(Print());
  EXPECT_EQ(canvas.pages, 2);
}

TEST_F(PrintingTest, NinetyNineColumnsPrintAndAHundredFail) {
  list.ColumnHeaders.assign(99, {"h", 100, ColumnAlignment::kLeft});
  EXPECT_TRUE(Print()) << printing.GetLastError();
  list.ColumnHeaders.assign(100, {"h", 100, ColumnAlignment::kLeft});
  EXPECT_FALSE(Print());
  EXPECT_EQ(printing.GetLastError(), "Subscript out of range");
  list.ColumnHeaders.assign(500, {"h", 100, ColumnAlignment::kLeft});
  EXPECT_FALSE(Print());
}

TEST_F(PrintingTest, OnlyColumnsOfWidthZeroAreADivisionByZero) {
  for (ColumnHeader& header : list.ColumnHeaders) header.width = 0;
  EXPECT_FALSE(Print());
  EXPECT_EQ(printing.GetLastError(), "Division by zero");
  EXPECT_EQ(canvas.jobs, 0);
  EXPECT_TRUE(printing.HasList()) << "the list stays remembered";
}

TEST_F(PrintingTest, EveryCallThatFailsEndsTheRunAndPutsTheScaleModeBack) {
  for (int n = 1;; ++n) {
    RecordingCanvas failing;
    failing.FailCall(n);
    cPrinting run(failing);
    const bool printed = run.PrintListView(&list, "Title", 0) == -1;
    if (failing.calls < n) {
      EXPECT_TRUE(printed);
      break;
    }
    // The last call of all puts the scale mode back: the report is on paper by then.
    if (failing.jobs == 1) continue;
    EXPECT_FALSE(printed) << n;
    EXPECT_EQ(run.GetLastError().find("the printer failed at "), 0U) << n;
    EXPECT_EQ(failing.scaleMode, 7) << n;
    EXPECT_TRUE(run.HasList()) << n;
  }
}

TEST_F(PrintingTest, ASuccessClearsTheLastError) {
  canvas.FailCall(3);
  EXPECT_FALSE(Print());
  EXPECT_FALSE(printing.GetLastError().empty());
  EXPECT_TRUE(Print());
  EXPECT_EQ(printing.GetLastError(), "");
  EXPECT_FALSE(printing.HasList());
}

TEST_F(PrintingTest, ANewPageAfterTheRunHasNoHeadings) {
  Print();
  canvas.log.clear();
  printing.NewPage();
  EXPECT_THAT(canvas.log, ElementsAre("page"));
}

TEST_F(PrintingTest, AWiderGapMovesColumnsAndRowsApart) {
  printing.ColumnSpacing = 100;
  ASSERT_TRUE(Print());
  EXPECT_THAT(canvas.log, Contains("rule 40,800-9960,800"));
  EXPECT_THAT(canvas.log, Contains("70,900 12 10:30"));
}

}  // namespace
}  // namespace logchecker
