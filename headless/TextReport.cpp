// The report for people.
#include <algorithm>

#include "headless/DayName.h"
#include "headless/Output.h"
#include "headless/Reports.h"

namespace logchecker {

namespace {

constexpr size_t kColumnGap = 2;

std::vector<std::vector<std::string>> CellsOf(const ListView& list) {
  std::vector<std::vector<std::string>> rows(1);
  for (const ColumnHeader& header : list.ColumnHeaders) rows[0].push_back(header.text);
  for (const ListItem& item : list.ListItems) {
    std::vector<std::string> row = {item.text};
    for (const ListSubItem& subItem : item.ListSubItems) row.push_back(subItem.text);
    rows.push_back(std::move(row));
  }
  return rows;
}

// Columns as wide as their longest text, the lengths lined up on the right.
std::string Table(const ListView& list) {
  const std::vector<std::vector<std::string>> rows = CellsOf(list);
  std::vector<size_t> widths(list.ColumnHeaders.size(), 0);
  for (const auto& row : rows) {
    for (size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  std::string table;
  for (const auto& row : rows) {
    std::string line = row[0] + std::string(widths[0] - row[0].size(), ' ');
    for (size_t i = 1; i < row.size(); ++i) {
      line += std::string(widths[i] - row[i].size() + kColumnGap, ' ') + row[i];
    }
    table += FieldText(line) + "\n";
  }
  return table;
}

std::string SilentAdvertLines(const SplitReport& split) {
  std::string lines;
  for (const SilentAdvert& advert : split.silentAdverts) {
    if (lines.empty()) lines = "\n" + FieldText(split.name) + ": carts without audio\n";
    std::string cart = std::to_string(advert.cart);
    constexpr size_t kCartWidth = 6;
    if (cart.size() < kCartWidth) cart.insert(0, kCartWidth - cart.size(), ' ');
    lines +=
        "  " + FieldText(advert.time) + "  " + cart + "  " + FieldText(advert.description) + "\n";
  }
  return lines;
}

// What is told below the table; adverts without audio have a list of their own.
std::string WarningLines(const DayReport& day) {
  std::string lines;
  for (const Warning& warning : day.warnings) {
    if (warning.kind == WarningKind::kSilent) continue;
    if (lines.empty()) lines = "\nWarnings\n";
    lines += "  " + FieldText(warning.text) + "\n";
  }
  return lines;
}

std::string Verdict(const DayReport& day) {
  const size_t count = day.results.ListItems.size();
  if (count > 0) {
    return std::to_string(count) + (count == 1 ? " ad break did" : " ad breaks did") +
           " not match in all splits\n\n" + Table(day.results);
  }
  if (day.warnings.empty()) return "There were no problems found.\n";
  return "The breaks that were compared match, but see below.\n";
}

std::string DayText(const DayReport& day) {
  std::string text = DayName(day.day) + ": ";
  if (day.trouble.empty()) {
    text += Verdict(day);
    for (const SplitReport& split : day.splits) text += SilentAdvertLines(split);
  } else {
    text += "not checked: " + FieldText(day.trouble) + "\n";
  }
  return text + WarningLines(day);
}

}  // namespace

std::string TextReport(const CheckReport& report) {
  std::string text = "Station: " + FieldText(report.station) + "\n";
  for (const DayReport& day : report.days) text += "\n" + DayText(day);
  return text;
}

}  // namespace logchecker
