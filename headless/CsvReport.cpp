// The report as CSV.
#include "checking/ExportListViewToCSV.h"
#include "common/DatePicture.h"
#include "headless/Reports.h"

namespace logchecker {

namespace {

// The columns of the results, which a day that could not be checked never built.
ListView Columns(const DayReport& day, bool withDate) {
  ListView list;
  if (withDate) list.ColumnHeaders.push_back({"Date"});
  list.ColumnHeaders.push_back({"Time"});
  for (const SplitReport& split : day.splits) list.ColumnHeaders.push_back({split.name});
  return list;
}

}  // namespace

std::string CsvReport(const CheckReport& report, bool withDate) {
  std::string csv;
  for (const DayReport& day : report.days) {
    const ListView columns = Columns(day, withDate);
    if (csv.empty()) csv = CSVHeading(columns, ",");
    for (ListItem row : day.results.ListItems) {
      if (withDate) {
        row.ListSubItems.insert(row.ListSubItems.begin(), {row.text});
        row.text = IsoDate(day.day);
      }
      csv += CSVRow(columns, row, ",");
    }
  }
  return csv;
}

}  // namespace logchecker
