// Two splits of which two breaks differ, and the results window on them.
#pragma once

#include <QMdiArea>
#include <QPointer>
#include <QToolButton>
#include <QTreeView>
#include <cstdio>
#include <string>

#include "checking/ui/frmCheckBreaks.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {

class ResultsTest : public WindowTest {
 protected:
  static constexpr int32_t kDay = 46402;

  ResultsTest() {
    area.resize(900, 700);
    area.show();
    QApplication::setActiveWindow(&area);
    gGeneralSettings.NumberActiveSplits = 2;
    OpenStore(1000);
    PutCart(11, 30.0F);
    PutCart(12, 20.0F);
    // The grids' rows 1, 4 and 7 begin breaks.
    first = Line("06:00", 11) + "\r\n" + Line("07:00", 11) + "\r\n" + Line("08:00", 12) + "\r\n";
    WriteLog(1, kDay, first);
    WriteLog(2, kDay, Line("06:00", 11) + "\r\n" + Line("08:01", 12) + "\r\n");
    SettingsOf(1).SplitName = "North & <b>";
    SettingsOf(2).SplitName = "South";
    for (int16_t n = 1; n <= 2; ++n) {
      SettingsOf(n).LogDate = kDay;
      gSplits(n).LoadLogFile();
      gSplits(n).SelectBreakByTime(0);
    }
  }
  ~ResultsTest() override { delete window; }

  static std::string Line(const char* time, int cart) {
    char line[128];
    std::snprintf(line, sizeof line, "%s:00|NTH  %08d %-30s      REF\r\n", time, cart, "ADVERT");
    return line;
  }
  void SecondSplitAsTheFirst() {
    WriteLog(2, kDay, first);
    gSplits(2).LoadLogFile();
  }
  void Check() {
    window = new frmCheckBreaks([] { return kDay; });
    area.addSubWindow(window);
    window->Load(area.viewport()->size());
    window->CheckBreaks();
  }
  QTreeView* List() { return Control<QTreeView>(window, "lvwResults"); }
  QWidget* Part(const char* name) { return Control<QWidget>(window, name); }
  QToolButton* Button(const char* name) { return Control<QToolButton>(window, name); }
  int Rows() { return List()->model()->rowCount(); }
  std::string Cell(int row, int column) {
    return List()->model()->index(row, column).data().toString().toStdString();
  }
  void ClickRow(int row, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, keys,
                      List()->visualRect(List()->model()->index(row, 0)).center());
  }

  std::string first;
  QMdiArea area;
  QPointer<frmCheckBreaks> window;
};

}  // namespace logchecker
