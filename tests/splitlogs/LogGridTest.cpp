#include "splitlogs/LogGrid.h"

#include <gtest/gtest.h>

#include <string>

#include "common/ErrorState.h"
#include "tests/splitlogs/CountingObserver.h"

namespace logchecker {
namespace {

TEST(LogGrid, BeginsWithItsHeaderAlone) {
  const LogGrid grid;
  EXPECT_EQ(1, grid.Rows());
  const char* const headings[] = {"Time", "Description", "Reference", "Cart", "Length", ""};
  const int32_t widths[] = {500, 2500, 0, 600, 800, 0};
  for (int32_t column = 0; column < kLogColumns; ++column) {
    EXPECT_EQ(headings[column], grid.Text(0, column));
    EXPECT_EQ(widths[column], kLogColumnHeaders[static_cast<size_t>(column)].width);
  }
  EXPECT_EQ(ColumnAlignment::kRight, kLogColumnHeaders[kLengthColumn].alignment);
}

TEST(LogGrid, NewRowsAreEmptyAndOldOnesStayWhileItGrows) {
  LogGrid grid;
  grid.SetRows(1440);
  grid.SetText(1439, kDescriptionColumn, "LAST");
  grid.SetRows(100000);
  EXPECT_EQ("LAST", grid.Text(1439, kDescriptionColumn));
  EXPECT_EQ("", grid.Text(99999, kDescriptionColumn));
  EXPECT_EQ(kGridOwnColour, grid.BackColour(99999, kLengthColumn));
  grid.SetRows(1);
  grid.SetRows(1440);
  EXPECT_EQ("", grid.Text(1439, kDescriptionColumn));
  EXPECT_EQ(0.0F, grid.RowTime(1439));
}

TEST(LogGrid, ARowThatIsDroppedComesBackEmpty) {
  LogGrid grid;
  grid.SetRows(10);
  grid.SetText(7, kTimeColumn, "10:30");
  grid.SetText(7, kPositionColumn, "1");
  grid.SetRows(5);
  grid.SetRows(10);
  EXPECT_FALSE(grid.IsAdvertRow(7));
  EXPECT_EQ(0, grid.FirstRowAt(37800));
}

TEST(LogGrid, TheCurrentRowSelectionAndTopRowStayInside) {
  LogGrid grid;
  grid.SetRows(10);
  grid.SetRow(9);
  grid.SetTopRow(8);
  grid.SetRows(5);
  EXPECT_EQ(4, grid.Row());
  EXPECT_EQ(4, grid.SelectionEndRow());
  EXPECT_EQ(4, grid.TopRow());
  grid.SetRows(0);
  EXPECT_EQ(1, grid.Rows());
  EXPECT_EQ(0, grid.Row());
}

TEST(LogGrid, MakingARowCurrentMakesItTheWholeSelection) {
  LogGrid grid;
  grid.SetRows(10);
  grid.SetRow(2);
  grid.SetSelectionEndRow(5);
  EXPECT_EQ(2, grid.Row());
  grid.SetRow(3);
  EXPECT_EQ(3, grid.SelectionEndRow());
  grid.SetSelectionEndColumn(5);
  grid.SetColumn(1);
  EXPECT_EQ(1, grid.SelectionEndColumn());
}

TEST(LogGrid, ARowOrColumnThatIsNotThereIsError30009) {
  LogGrid grid;
  grid.SetRows(10);
  const auto expectError = [](auto&& action) {
    try {
      action();
      ADD_FAILURE() << "no error";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(kInvalidGridRow, error.number());
    }
  };
  for (const int32_t row : {-1, 10, 11}) {
    expectError([&] { grid.SetRow(row); });
    expectError([&] { grid.SetSelectionEndRow(row); });
    expectError([&] { grid.SetTopRow(row); });
    expectError([&] { grid.SetText(row, 0, "x"); });
    expectError([&] { static_cast<void>(grid.Text(row, 0)); });
    expectError([&] { static_cast<void>(grid.BackColour(row, 0)); });
    expectError([&] { static_cast<void>(grid.RowTime(row)); });
  }
  for (const int32_t column : {-1, 6}) {
    expectError([&] { grid.SetColumn(column); });
    expectError([&] { static_cast<void>(grid.Text(1, column)); });
  }
}

TEST(LogGrid, OnlyTheCurrentCellIsColoured) {
  LogGrid grid;
  grid.SetRows(3);
  grid.SetRow(1);
  grid.SetColumn(kLengthColumn);
  grid.SetCellBackColour(kRed);
  EXPECT_EQ(kRed, grid.BackColour(1, kLengthColumn));
  EXPECT_EQ(kGridOwnColour, grid.BackColour(1, kCartColumn));
  EXPECT_EQ(kGridOwnColour, grid.BackColour(2, kLengthColumn));
}

TEST(LogGrid, ARowsTimeIsThatOfItsHoursAndMinutes) {
  struct Case {
    const char* text;
    float seconds;
  };
  const Case cases[] = {{"06:00", 21600}, {"24:00", 86400}, {"00:00", 0},
                        {"--:--", 0},     {"", 0},          {"6:00", 6 * 3600},
                        {"06", 21600},    {"xx:30", 1800},  {" 6:30", 23400}};
  LogGrid grid;
  grid.SetRows(2);
  for (const Case& row : cases) {
    grid.SetText(1, kTimeColumn, row.text);
    EXPECT_EQ(row.seconds, grid.RowTime(1)) << row.text;
  }
}

TEST(LogGrid, WhilePaintingIsHeldBackNobodyIsToldAndThenOnce) {
  LogGrid grid;
  CountingObserver observer;
  grid.SetObserver(&observer);
  grid.SetRows(3);
  EXPECT_EQ(1, observer.changes);
  grid.SetRedraw(false);
  grid.SetText(1, 0, "a");
  grid.SetRow(2);
  EXPECT_EQ(1, observer.changes);
  EXPECT_EQ(0, observer.selections);
  grid.SetRedraw(true);
  EXPECT_EQ(2, observer.changes);
  EXPECT_EQ(1, observer.selections);
}

}  // namespace
}  // namespace logchecker
