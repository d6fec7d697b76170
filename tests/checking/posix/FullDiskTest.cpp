#include "checking/ExportListViewToCSV.h"
#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class FullDiskTest : public StationTest {};

TEST_F(FullDiskTest, AnExportThatFindsTheDiskFullStopsWithError61) {
  ListView list;
  list.ColumnHeaders = {{"Time"}};
  list.ListItems = {{"t", "10:30", {}}};
  try {
    ExportListViewToCSV(&list, "/dev/full", ",", 0);
    ADD_FAILURE();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(kDiskFull, error.number());
  }
}

}  // namespace
}  // namespace logchecker
