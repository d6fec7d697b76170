// A report-style list: column headers, and rows of texts. It knows no screen; a window shows it,
// the CSV writer and the printer take it from here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace logchecker {

enum class ColumnAlignment { kLeft, kRight, kCentre };

struct ColumnHeader {
  std::string text;
  int32_t width = 0;  // twips
  ColumnAlignment alignment = ColumnAlignment::kLeft;
};

struct ListSubItem {
  std::string text;
  bool Bold = false;
  // What is out of the ordinary about it, in a few words; empty for nothing. The screen sets such a
  // text off. Files and paper have the text alone.
  std::string Remark{};
};

struct ListItem {
  std::string key;                        // names the row; unique in its list
  std::string text;                       // of the first column
  std::vector<ListSubItem> ListSubItems;  // of the columns from the second on
  bool Selected = false;
  bool Bold = false;
};

// A row may have fewer sub-items than the list has further columns; the rest of it is empty.
struct ListView {
  std::vector<ColumnHeader> ColumnHeaders;
  std::vector<ListItem> ListItems;
};

}  // namespace logchecker
