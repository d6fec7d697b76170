// How long a report of 5,000 rows takes to become a PDF file:
//   report_bench FILE
// Prints milliseconds, as report=value.
#include <QApplication>
#include <QPrinter>
#include <chrono>
#include <cstdio>

#include "printing/cPrinting.h"
#include "printing/ui/QtPrintCanvas.h"

namespace logchecker {
namespace {

ListView LongList() {
  ListView list;
  list.ColumnHeaders.push_back({"Time", 800, ColumnAlignment::kLeft});
  for (const char* name : {"Larkfield", "Easton", "Weston", "Coast", "Hill Country"}) {
    list.ColumnHeaders.push_back({name, 900, ColumnAlignment::kCentre});
  }
  for (int row = 0; row < 5000; ++row) {
    ListItem item;
    item.text = "10:30";
    for (int column = 0; column < 5; ++column) {
      item.ListSubItems.push_back({column == row % 5 ? "Not Found" : "2:34.96"});
    }
    list.ListItems.push_back(item);
  }
  return list;
}

int Measure(const QString& file) {
  const ListView list = LongList();
  const auto begin = std::chrono::steady_clock::now();
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file);
  QtPrintCanvas canvas(printer, "Report");
  cPrinting printing(canvas);
  const bool printed =
      printing.PrintListView(&list, "Velmar KLT LC - Check Split Times for 15/01/2027", 0) != 0;
  const std::chrono::duration<double, std::milli> elapsed =
      std::chrono::steady_clock::now() - begin;
  std::printf("report=%.1f\n", elapsed.count());
  return printed ? 0 : 1;
}

}  // namespace
}  // namespace logchecker

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return argc == 2 ? logchecker::Measure(argv[1]) : 2;
}
