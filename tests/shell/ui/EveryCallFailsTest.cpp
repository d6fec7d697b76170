// The desktop with every call to the system failing in turn: a day at the main window, and what the
// dialogs save.
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <map>
#include <sstream>

#include "cartstore/ui/frmCartLocations.h"
#include "checking/ExportFolder.h"
#include "checking/ui/frmCheckBreaks.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/ui/frmGeneralSettings.h"
#include "splitlogs/ui/frmLogFileSettings.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

// Confirms the export dialog with a name, and closes every other dialog.
class HastyUser : public QObject {
 public:
  HastyUser() { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (event->type() == QEvent::Show && dialog != nullptr && dialog->isModal()) {
      QMetaObject::invokeMethod(
          dialog, [dialog] { Answer(dialog); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  static void Answer(QDialog* dialog) {
    auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
    if (name == nullptr) {
      // Yes to whether a file is to be made or replaced; any other dialog goes.
      auto* box = qobject_cast<QMessageBox*>(dialog);
      QAbstractButton* yes = box == nullptr ? nullptr : box->button(QMessageBox::Yes);
      yes == nullptr ? dialog->reject() : yes->click();
      return;
    }
    QApplication::setActiveWindow(dialog);
    name->setText("out");
    QTest::keyClick(name, Qt::Key_Return);
    if (dialog->isVisible()) dialog->reject();
  }
};

class DesktopWithFailures : public MainTest {
 protected:
  static constexpr int32_t kError = kDeviceIoError;

  DesktopWithFailures() { RememberExportFolder(Path("x.csv")); }

  // As after the end of the program.
  void End() {
    main.reset();
    gSplits.UnloadAll();
    RealPlatform().files.CloseAll();
    ResetGlobals();
  }

  // Starts, checks tomorrow and exports the result. False when the start gave up.
  bool WorkADay() {
    if (!Start()) return false;
    Press("sftCheckBreaks");
    if (Results() != nullptr) {
      if (auto* save = Results()->findChild<QToolButton*>("cmdSave")) save->click();
    }
    return true;
  }

  std::string Exported() const {
    return folder().Exists("out.CSV") ? folder().ReadFile("out.CSV") : "";
  }
};

TEST_F(DesktopWithFailures, ADaysWorkSurvivesEveryFailureAndTheNextStartIsSound) {
  const HastyUser user;
  ASSERT_TRUE(WorkADay());
  const std::string sound = Exported();
  ASSERT_NE(sound.find("\"08:01\""), std::string::npos);
  End();
  const std::string settings = folder().ReadFile("VELKLT.INI");
  bool failed = true;
  int n = 0;
  while (failed) {
    SCOPED_TRACE(++n);
    os.script.Clear();
    os.script.FailCall(n, kError);
    WorkADay();
    failed = os.script.HasFailed();
    const std::string left = Exported();
    // A split whose log could not be had shows as "Not Found" beside the others' break.
    EXPECT_TRUE(left.empty() || left.find("\"08:0") != std::string::npos) << left;
    EXPECT_EQ(folder().ReadFile("VELKLT.INI"), settings);
    End();
  }
  EXPECT_GT(n, 200) << "a day's work takes hundreds of calls";
  os.script.Clear();
  ASSERT_TRUE(WorkADay());
  EXPECT_EQ(Exported(), sound);
}

// A settings file by its lines, so that those of a failed write can be told from the others.
std::map<std::string, std::string> LinesOf(const std::string& bytes) {
  std::map<std::string, std::string> lines;
  std::istringstream input(bytes);
  for (std::string line; std::getline(input, line);) {
    lines[line.substr(0, line.find('='))] = line;
  }
  return lines;
}

class SaveWithFailures : public WindowTest {
 protected:
  SaveWithFailures() {
    for (const char* name : {"VELKLT.INI", "VELMAR.INI"}) {
      before_[name] = "; ours\r\n[Other]\r\nkey=1\r\n";
    }
  }

  // Runs `save` with each call failing in turn. Each file keeps its other lines, and each of its
  // lines is the old or the new one.
  void FailEachCall(const char* file, const std::function<void()>& save) {
    Restore();
    save();
    const std::string sound = folder().ReadFile(file);
    const auto whole = LinesOf(sound);
    ASSERT_NE(sound, before_[file]);
    bool failed = true;
    int n = 0;
    while (failed) {
      SCOPED_TRACE(std::string(file) + ", call " + std::to_string(++n));
      Restore();
      os.script.Clear();
      os.script.FailCall(n, kDiskFull);
      save();
      failed = os.script.HasFailed();
      EXPECT_EQ(StoppedBy(), 0);
      const std::string left = folder().ReadFile(file);
      EXPECT_EQ(left.find(before_[file]), 0U) << left;
      for (const auto& [key, line] : LinesOf(left)) {
        ASSERT_TRUE(whole.contains(key)) << line;
        EXPECT_EQ(line, whole.at(key));
      }
    }
    EXPECT_EQ(folder().ReadFile(file), sound);
    EXPECT_GT(n, 5);
  }

 private:
  void Restore() {
    for (const auto& [name, bytes] : before_) folder().WriteFile(name, bytes);
  }

  std::map<std::string, std::string> before_;
};

void Click(QDialog& dialog, const char* button) { Control<QPushButton>(&dialog, button)->click(); }

TEST_F(SaveWithFailures, OfTheGeneralSettingsLeavesTheFileWhole) {
  FailEachCall("VELKLT.INI", [] {
    frmGeneralSettings dialog;
    dialog.show();
    Control<QLineEdit>(&dialog, "txtSecondsDifference")->setText("1.5");
    Click(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(SaveWithFailures, OfASplitsSettingsLeavesTheFileWhole) {
  Os().directories.MakeDirectory(Path("LOGS"));
  FailEachCall("VELKLT.INI", [this] {
    frmLogFileSettings dialog;
    dialog.SetSplitNumberLabel("2");
    dialog.Tag = "1";
    dialog.show();
    Control<QLineEdit>(&dialog, "txtSplitName")->setText("North");
    Control<QLineEdit>(&dialog, "txtSourceDirectory")
        ->setText(QString::fromStdString(Path("LOGS")));
    ui.answers.assign(3, MessageAnswer::kNo);
    Click(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(SaveWithFailures, OfTheCartLocationsLeavesTheFileWhole) {
  Os().directories.MakeDirectory(Path("CARTS"));
  FailEachCall("VELMAR.INI", [this] {
    frmCartLocations dialog;
    dialog.SettingsFile = "Velmar.ini";
    dialog.show();
    Control<QLineEdit>(&dialog, "txtCartLocations1")
        ->setText(QString::fromStdString(Path("CARTS")));
    Click(dialog, "cmdDone");
    EXPECT_FALSE(dialog.isVisible());
  });
}

}  // namespace
}  // namespace logchecker
