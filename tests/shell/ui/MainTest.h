// A station of three splits, whose tomorrow is day 46402, and the main window on it.
#pragma once

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QToolButton>
#include <cstdio>
#include <memory>
#include <string>

#include "platform/Platform.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmMain.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/frmSplit.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {

class MainTest : public WindowTest {
 protected:
  static constexpr int32_t kTomorrow = 46402;  // 15 January 2027

  MainTest() {
    os.now = kTomorrow - 1 + 0.5;
    OpenStore(1000);
    PutCart(11, 30.0F);
    PutCart(12, 20.0F);
    CloseStore();
    SetNumberOfSplits(3);
    for (int16_t n = 1; n <= 10; ++n) {
      const std::string number = std::to_string(n);
      WriteLog(n, kTomorrow, Log(n == 3 ? "08:01" : "08:00"));
      WriteSetting("SplitName" + number, "Split " + number + " & <b>");
      WriteSetting("LogSourceDirectory" + number, SettingsOf(n).LogSourceDirectory);
    }
  }
  ~MainTest() override { main.reset(); }

  static std::string Line(const char* time, int cart) {
    char line[128];
    std::snprintf(line, sizeof line, "%s:00|NTH  %08d %-30s      REF\r\n", time, cart, "ADVERT");
    return line;
  }
  static std::string Log(const char* last) {
    return Line("06:00", 11) + "\r\n" + Line("07:00", 11) + "\r\n" + Line(last, 12) + "\r\n";
  }
  void WriteSetting(const std::string& key, const std::string& value) {
    Os().profiles.WriteString("General", key, value, "VELKLT.INI");
  }
  void SetNumberOfSplits(int splits) { WriteSetting("NumberActiveSplits", std::to_string(splits)); }
  static void CloseStore();

  bool Start() {
    main = std::make_unique<frmMain>();
    main->resize(1200, 760);
    bool started = false;
    Guarded([&] { started = main->Load(); });
    QApplication::setActiveWindow(main.get());
    return started;
  }
  QMdiArea* Area() { return Control<QMdiArea>(main.get(), "mdiArea"); }
  QAction* Entry(const char* name) { return Control<QAction>(main.get(), name); }
  static frmSplit& Window(int16_t n) { return static_cast<frmSplit&>(gSplits(n)); }
  QMdiSubWindow* Results() { return main->findChild<QMdiSubWindow*>("frmCheckBreaks"); }
  void Press(const char* button) { Control<QToolButton>(main.get(), button)->click(); }

  std::unique_ptr<frmMain> main;
};

}  // namespace logchecker
