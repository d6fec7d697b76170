#include "headless/Output.h"
#include "headless/Reports.h"
#include "splitlogs/SplitLogTable.h"

namespace logchecker {

namespace {

const char* NameOfColour(int32_t colour) {
  if (colour == kRed) return "red";
  return colour == kWhite ? "white" : "";
}

}  // namespace

std::string GridReport(int16_t splitNumber) {
  const LogGrid& grid = gSplits(splitNumber).gridLog;
  std::string report;
  for (int32_t row = 1; row < grid.Rows(); ++row) {
    report += std::to_string(row);
    for (int32_t column = 0; column < kLogColumns; ++column) {
      report += '\t' + FieldText(grid.Text(row, column));
    }
    report += '\t';
    report += NameOfColour(grid.BackColour(row, kLengthColumn));
    report += '\n';
  }
  return report;
}

}  // namespace logchecker
