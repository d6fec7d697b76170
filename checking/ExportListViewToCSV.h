// A list view as a file of delimited text.
#pragma once

#include <cstdint>
#include <string>

#include "common/ListView.h"

namespace logchecker {

// The lines of the file, each ended by CR LF: the headings, then the rows, or the selected ones
// alone. Every field stands in double quotes, with quotes inside it turned into apostrophes; fields
// of rows are trimmed. A row with fewer sub-items than there are columns gets empty fields for the
// rest.
std::string CSVHeading(const ListView& list, const std::string& delimiter);
std::string CSVRow(const ListView& list, const ListItem& row, const std::string& delimiter);

// Writes the file whole, in place of one that is there. `onlySelected` other than 0 writes the
// selected rows alone. True (-1) only if the whole file was written; 0 when there is no list, no
// path, no column or no row to write, and, after a message, when the file can't be opened. A write
// that fails part way is thrown as a RunTimeError, and the old file stands.
int16_t ExportListViewToCSV(const ListView* list, const std::string& path,
                            const std::string& delimiter, int16_t onlySelected);

}  // namespace logchecker
