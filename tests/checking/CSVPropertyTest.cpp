#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "checking/ExportListViewToCSV.h"
#include "common/TextHelpers.h"

namespace logchecker {
namespace {

// Takes a line of quoted fields apart again.
std::vector<std::string> ReadBack(std::string line) {
  std::vector<std::string> fields;
  line.resize(line.size() - 2);
  while (!line.empty()) {
    const size_t close = line.find('"', 1);
    fields.push_back(line.substr(1, close - 1));
    line.erase(0, std::min(line.size(), close + 2));
  }
  return fields;
}

RC_GTEST_PROP(CSVProperty, TheFieldsOfARowCanBeReadBack, (const std::vector<std::string>& texts)) {
  RC_PRE(!texts.empty());
  ListView list;
  list.ColumnHeaders.resize(texts.size());
  ListItem row;
  row.text = texts[0];
  for (size_t i = 1; i < texts.size(); ++i) row.ListSubItems.push_back({texts[i]});
  const std::vector<std::string> fields = ReadBack(CSVRow(list, row, ","));
  RC_ASSERT(fields.size() == texts.size());
  for (size_t i = 0; i < texts.size(); ++i) {
    std::string expected(Trim(texts[i]));
    std::replace(expected.begin(), expected.end(), '"', '\'');
    RC_ASSERT(fields[i] == expected);
  }
}

}  // namespace
}  // namespace logchecker
