#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "checking/ExportListViewToCSV.h"
#include "common/TextHelpers.h"
#include "tests/support/ReadCSV.h"

namespace logchecker {
namespace {

std::string WithApostrophes(std::string_view text) {
  std::string result(text);
  std::replace(result.begin(), result.end(), '"', '\'');
  return result;
}

std::string_view FieldOf(const ListItem& row, size_t column) {
  if (column == 0) return row.text;
  if (column > row.ListSubItems.size()) return "";
  return row.ListSubItems[column - 1].text;
}

RC_GTEST_PROP(CSVProperty, TheFieldsOfAListCanBeReadBack, ()) {
  ListView list;
  const auto headings = *rc::gen::nonEmpty(rc::gen::arbitrary<CSVFields>());
  for (const std::string& heading : headings) list.ColumnHeaders.push_back({heading});
  for (const CSVFields& texts : *rc::gen::arbitrary<std::vector<CSVFields>>()) {
    ListItem row;
    if (!texts.empty()) row.text = texts[0];
    for (size_t i = 1; i < texts.size(); ++i) row.ListSubItems.push_back({texts[i]});
    list.ListItems.push_back(row);
  }
  const auto delimiter = *rc::gen::element<std::string>(",", ";", "\t", ", ");

  std::string text = CSVHeading(list, delimiter);
  for (const ListItem& row : list.ListItems) text += CSVRow(list, row, delimiter);
  const auto readBack = ReadCSV(text, delimiter.size());
  RC_ASSERT(readBack.has_value());
  const std::vector<CSVFields>& lines = *readBack;

  RC_ASSERT(lines.size() == list.ListItems.size() + 1);
  for (size_t i = 0; i < lines.size(); ++i) {
    RC_ASSERT(lines[i].size() == headings.size());
    for (size_t c = 0; c < headings.size(); ++c) {
      std::string_view expected = headings[c];
      if (i > 0) expected = Trim(FieldOf(list.ListItems[i - 1], c));
      RC_ASSERT(lines[i][c] == WithApostrophes(expected));
    }
  }
}

}  // namespace
}  // namespace logchecker
