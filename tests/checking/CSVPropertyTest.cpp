#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "checking/ExportListViewToCSV.h"
#include "common/TextHelpers.h"

namespace logchecker {
namespace {

using Fields = std::vector<std::string>;

// Takes lines of quoted fields apart again, whatever stands inside the quotes.
std::vector<Fields> ReadBack(std::string_view text, size_t delimiterLength) {
  std::vector<Fields> lines(1);
  while (!text.empty()) {
    RC_ASSERT(text.front() == '"');
    const size_t close = text.find('"', 1);
    RC_ASSERT(close != std::string_view::npos);
    lines.back().emplace_back(text.substr(1, close - 1));
    text.remove_prefix(close + 1);
    if (text.substr(0, 2) == "\r\n") {
      text.remove_prefix(2);
      lines.emplace_back();
    } else {
      text.remove_prefix(delimiterLength);
    }
  }
  RC_ASSERT(lines.back().empty());
  lines.pop_back();
  return lines;
}

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
  const auto headings = *rc::gen::nonEmpty(rc::gen::arbitrary<Fields>());
  for (const std::string& heading : headings) list.ColumnHeaders.push_back({heading});
  for (const Fields& texts : *rc::gen::arbitrary<std::vector<Fields>>()) {
    ListItem row;
    if (!texts.empty()) row.text = texts[0];
    for (size_t i = 1; i < texts.size(); ++i) row.ListSubItems.push_back({texts[i]});
    list.ListItems.push_back(row);
  }
  const auto delimiter = *rc::gen::element<std::string>(",", ";", "\t", ", ");

  std::string text = CSVHeading(list, delimiter);
  for (const ListItem& row : list.ListItems) text += CSVRow(list, row, delimiter);
  const std::vector<Fields> lines = ReadBack(text, delimiter.size());

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
