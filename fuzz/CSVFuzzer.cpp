// Any list as delimited text: every field can be read back.
#include <algorithm>

#include "checking/ExportListViewToCSV.h"
#include "common/TextHelpers.h"
#include "fuzz/Fuzzer.h"
#include "tests/support/ReadCSV.h"

namespace logchecker {
namespace {

std::string Expected(std::string_view text) {
  std::string field(text);
  std::replace(field.begin(), field.end(), '"', '\'');
  return field;
}

}  // namespace
}  // namespace logchecker

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  constexpr size_t kLongestText = 40;
  constexpr size_t kMostColumns = 11;
  FuzzedDataProvider input(data, size);
  const std::string delimiter = input.PickValueInArray({",", ";", "\t", ", "});
  ListView list;
  list.ColumnHeaders.resize(input.ConsumeIntegralInRange<size_t>(1, kMostColumns));
  for (ColumnHeader& header : list.ColumnHeaders) {
    header.text = input.ConsumeRandomLengthString(kLongestText);
  }
  while (input.remaining_bytes() > 0) {
    ListItem row;
    row.text = input.ConsumeRandomLengthString(kLongestText);
    row.ListSubItems.resize(input.ConsumeIntegralInRange<size_t>(0, kMostColumns));
    for (ListSubItem& item : row.ListSubItems) {
      item.text = input.ConsumeRandomLengthString(kLongestText);
    }
    list.ListItems.push_back(row);
  }

  std::string text = CSVHeading(list, delimiter);
  for (const ListItem& row : list.ListItems) text += CSVRow(list, row, delimiter);
  const auto lines = ReadCSV(text, delimiter.size());
  Require(lines && lines->size() == list.ListItems.size() + 1);
  for (size_t i = 0; i < list.ColumnHeaders.size(); ++i) {
    Require(lines->front().at(i) == Expected(list.ColumnHeaders[i].text));
  }
  for (size_t i = 0; i < list.ListItems.size(); ++i) {
    const CSVFields& fields = (*lines)[i + 1];
    const ListItem& row = list.ListItems[i];
    Require(fields.size() == list.ColumnHeaders.size());
    Require(fields[0] == Expected(Trim(row.text)));
    for (size_t c = 1; c < fields.size(); ++c) {
      const bool given = c <= row.ListSubItems.size();
      Require(fields[c] == (given ? Expected(Trim(row.ListSubItems[c - 1].text)) : ""));
    }
  }
  return 0;
}
