#include "checking/ExportListViewToCSV.h"

#include <algorithm>

#include "common/ErrorState.h"
#include "common/Messages.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr char kLineEnd[] = "\r\n";

std::string Quoted(std::string_view text) {
  std::string field = "\"";
  field += text;
  std::replace(field.begin() + 1, field.end(), '"', '\'');
  field += '"';
  return field;
}

// Column counts from 0; the first is the row's own text.
std::string_view FieldOf(const ListItem& row, size_t column) {
  if (column == 0) return row.text;
  return column <= row.ListSubItems.size() ? std::string_view(row.ListSubItems[column - 1].text)
                                           : std::string_view();
}

bool IsWanted(const ListItem& row, int16_t onlySelected) {
  return onlySelected == 0 || row.Selected;
}

// Writes all lines and closes the file. Returns the first error.
int32_t WriteLines(int16_t file, const ListView& list, const std::string& delimiter,
                   int16_t onlySelected) {
  Files& files = Os().files;
  int32_t error = files.Write(file, CSVHeading(list, delimiter));
  for (const ListItem& row : list.ListItems) {
    if (error != kNoError) break;
    if (IsWanted(row, onlySelected)) error = files.Write(file, CSVRow(list, row, delimiter));
  }
  if (error == kNoError) return files.Close(file);
  files.Abandon(file);
  return error;
}

}  // namespace

std::string CSVHeading(const ListView& list, const std::string& delimiter) {
  std::string line;
  for (const ColumnHeader& header : list.ColumnHeaders) {
    if (!line.empty()) line += delimiter;
    line += Quoted(header.text);
  }
  return line + kLineEnd;
}

std::string CSVRow(const ListView& list, const ListItem& row, const std::string& delimiter) {
  std::string line;
  for (size_t column = 0; column < list.ColumnHeaders.size(); ++column) {
    if (column > 0) line += delimiter;
    line += Quoted(Trim(FieldOf(row, column)));
  }
  return line + kLineEnd;
}

int16_t ExportListViewToCSV(const ListView* list, const std::string& path,
                            const std::string& delimiter, int16_t onlySelected) {
  constexpr int16_t kWritten = -1;
  constexpr int16_t kNotWritten = 0;
  if (list == nullptr || path.empty() || list->ColumnHeaders.empty()) return kNotWritten;
  const bool anyRow =
      std::any_of(list->ListItems.begin(), list->ListItems.end(),
                  [onlySelected](const ListItem& row) { return IsWanted(row, onlySelected); });
  if (!anyRow) return kNotWritten;
  ClearError();
  const BusyPointer busy;
  Files& files = Os().files;
  int16_t file = 0;
  if (!Succeeded(files.FreeFile(&file)) || !Succeeded(files.OpenForOutput(file, path))) {
    files.Abandon(file);
    Ui().SetMousePointer(MousePointer::kDefault);
    ShowErrorMessage("opening the file " + path + " to export to", gErrorState.Number, false);
    return kNotWritten;
  }
  const int32_t error = WriteLines(file, *list, delimiter, onlySelected);
  if (!Succeeded(error)) throw RunTimeError(error, path);
  return kWritten;
}

}  // namespace logchecker
