// Draws every window in its states into a folder, without a screen: in light and in dark colours,
// and with the desktop's text twice as large as usual:
//   logchecker_pictures FOLDER
// QT_SCALE_FACTOR in the environment draws them for a finer screen.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <cstdio>
#include <functional>
#include <vector>

#include "cartbrowser/ui/frmCartBrowser.h"
#include "cartbrowser/ui/frmFindCart.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "cartstore/ui/frmCartLocations.h"
#include "checking/ui/frmCheckBreaks.h"
#include "common/Dates.h"
#include "common/GeneralSettings.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/StationQString.h"
#include "common/ui/VisibleFocus.h"
#include "dialogs/ui/frmGoodInputBox.h"
#include "dialogs/ui/frmSelectHour.h"
#include "notes/ui/frmPrintPreview.h"
#include "platform/Platform.h"
#include "sample/SampleStation.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmGeneralSettings.h"
#include "shell/ui/frmMain.h"
#include "shell/ui/frmSplash.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/frmLogFileSettings.h"
#include "tests/support/ScriptedPlatform.h"
#include "tests/support/TempFolder.h"
#include "tests/support/ui/DarkPalette.h"

namespace logchecker {
namespace {

// Day numbers of the pictures, so that they come out the same on any day.
constexpr int32_t kToday = 46401;

constexpr QSize kSmallScreen{1024, 600};
constexpr QSize kLargeScreen{2560, 1440};

struct Look {
  const char* name;  // behind the pictures' names
  QPalette palette;
  QFont font;
};

class Painter {
 public:
  explicit Painter(QString folder) : folder_(std::move(folder)) { QDir().mkpath(folder_); }

  void SetTheme(const QString& theme) { theme_ = theme; }
  void Save(QWidget& window, const QString& name) {
    QApplication::processEvents();
    const QString file = folder_ + "/" + name + theme_ + ".png";
    if (!window.grab().save(file)) std::fprintf(stderr, "can't write %s\n", qPrintable(file));
  }

 private:
  QString folder_;
  QString theme_;
};

void Start(frmMain& window, QSize size, int splits) {
  Os().profiles.WriteString("General", "NumberActiveSplits", std::to_string(splits), "VELKLT.INI");
  window.resize(size);
  window.Load();
}

void DrawMain(Painter& painter, QSize size, int splits) {
  frmMain window;
  Start(window, size, splits);
  const QString name = QString("main-%1-splits-%2").arg(splits).arg(size.width());
  painter.Save(window, name);
  window.findChild<QToolButton*>("sftCheckBreaks")->click();
  painter.Save(window, name + "-checked");
  window.UpdateSplitInfo();
  painter.Save(window, name + "-arranged");
  if (splits > 1) return;
  window.findChild<QMdiSubWindow*>("frmSplit")->showMaximized();
  painter.Save(window, name + "-maximised");
}

// As wide as the results begin, with more or less room for each split.
void DrawNarrowResults(Painter& painter, int splits) {
  frmMain window;
  Start(window, {1180, 760}, splits);
  window.findChild<QToolButton*>("sftCheckBreaks")->click();
  auto* results = window.findChild<frmCheckBreaks*>();
  painter.Save(*results, QString("results-%1-splits").arg(splits));
  auto* list = results->findChild<QTreeView*>("lvwResults");
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  painter.Save(*results, QString("results-%1-splits-selected").arg(splits));
  painter.Save(window, QString("main-%1-splits-lined-up").arg(splits));
  window.LoadLogs(kToday + 2);
  painter.Save(window, QString("main-%1-splits-other-day").arg(splits));
}

void DrawResults(Painter& painter) {
  for (const int splits : {1, 5, kMostSplits + 0}) DrawNarrowResults(painter, splits);
  frmMain window;
  Start(window, {1180, 760}, 4);
  window.findChild<QToolButton*>("sftCheckBreaks")->click();
  auto* results = window.findChild<frmCheckBreaks*>();
  painter.Save(*results, "results");
  results->resize(640, 380);
  painter.Save(*results, "results-wide");
  results->resize(200, 134);
  painter.Save(*results, "results-smallest");
  results->resize(400, 320);
  for (int16_t n = 1; n <= kMostSplits; ++n) gSplits(n).gridLog.SetRows(1);
  results->CheckBreaks();
  painter.Save(*results, "results-none");
}

void DrawDialogs(Painter& painter) {
  LoadGeneralSettings();
  LoadAudioSettings(kFamilySettingsFile, "");
  {
    frmSelectHour picker;
    picker.Tag = std::to_string(kToday + 1) + "15";
    picker.show();
    QApplication::setActiveWindow(&picker);
    picker.findChild<QWidget*>("DayScroll")->setFocus();
    painter.Save(picker, "select-hour");
  }
  {
    frmSplash splash;
    splash.show();
    splash.SetCurrentAction("Opening Audiowall...");
    painter.Save(splash, "splash");
    auto* about = new frmSplash;
    about->ShowAsAboutBox();
    painter.Save(*about, "about");
    delete about;
  }
  {
    frmLogFileSettings dialog;
    dialog.show();
    painter.Save(dialog, "split-settings");
    SettingsOf(1).SplitName = std::string(120, 'W');
    SettingsOf(1).LogSourceDirectory = "\\\\server\\" + std::string(150, 'x');
    SettingsOf(1).PreSuffix = std::string(60, 'P');
    dialog.SetSplitNumberLabel("1");
    painter.Save(dialog, "split-settings-long");
  }
  {
    frmGeneralSettings dialog;
    dialog.show();
    painter.Save(dialog, "general-settings");
  }
  {
    frmCartLocations dialog;
    dialog.show();
    painter.Save(dialog, "cart-locations");
  }
  {
    const TempFolder folder;
    folder.WriteFile(
        "note.rtf",
        "{\\rtf1\\ansi{\\fonttbl{\\f0 DejaVu Sans;}}{\\colortbl;\\red180\\green0\\blue0;}"
        "\\qc\\b\\fs32 Midtown Carpets\\b0\\fs22\\par\\pard Summer sale, "
        "{\\cf1 not before 6 June}.\\par\\par{\\pntext\\bullet\\tab}Voice: A. Reader\\par"
        "{\\pntext\\bullet\\tab}{\\i 30 seconds}, {\\ul no music bed}\\par}");
    frmPrintPreview preview;
    preview.LoadFile(folder.Path("note.rtf"));
    preview.show();
    painter.Save(preview, "print-preview");
    preview.close();
  }
  const struct {
    bool frmGoodInputBox::*mode;
    const char* name;
  } modes[] = {{&frmGoodInputBox::UseText, "text"},
               {&frmGoodInputBox::UseComboCombo, "combo"},
               {&frmGoodInputBox::UseListMulti, "list"}};
  for (const auto& mode : modes) {
    frmGoodInputBox box;
    box.UseText = false;
    box.*mode.mode = true;
    box.SetCaption("Which of the splits is meant?");
    box.SetItems({"Larkfield", "Easton", "Weston"});
    box.show();
    painter.Save(box, QString("input-box-") + mode.name);
  }
}

void DrawBrowser(Painter& painter) {
  LoadAudioSettings(kFamilySettingsFile, "");
  OpenAudiowall(0, false);
  frmCartBrowser browser({});
  browser.Tag = "5";
  browser.show();
  QApplication::setActiveWindow(&browser);
  painter.Save(browser, "cart-browser");
  browser.findChild<QCheckBox*>("chkDouble")->click();
  painter.Save(browser, "cart-browser-double");
  browser.ShowDescription = true;
  browser.SetDescription("Pick a cart for the break at 10:15");
  browser.resize(browser.minimumSize());
  painter.Save(browser, "cart-browser-smallest");
  browser.resize(1200, 900);
  browser.findChild<QCheckBox*>("chkDouble")->click();
  painter.Save(browser, "cart-browser-large");
}

void DrawSearch(Painter& painter) {
  LoadAudioSettings(kFamilySettingsFile, "");
  OpenAudiowall(0, false);
  frmFindCart search;
  search.show();
  QApplication::setActiveWindow(&search);
  painter.Save(search, "find-cart");
  auto* tabs = search.findChild<QTabWidget*>("tabFind");
  tabs->setCurrentIndex(1);
  painter.Save(search, "find-cart-advanced");
  search.findChild<QCheckBox*>("chkTimeSearch")->click();
  search.findChild<QCheckBox*>("chkLimitLines")->click();
  painter.Save(search, "find-cart-advanced-enabled");
  search.findChild<QCheckBox*>("chkTimeSearch")->click();
  search.findChild<QCheckBox*>("chkLimitLines")->click();
  tabs->setCurrentIndex(0);
  search.findChild<QComboBox*>("cmbSearchText")->setEditText("jingle");
  search.findChild<QPushButton*>("cmdFind")->click();
  painter.Save(search, "find-cart-found");
  search.resize(900, 600);
  painter.Save(search, "find-cart-large");
  search.findChild<QComboBox*>("cmbSearchText")->setEditText("nothing like it");
  QTimer::singleShot(0, [&] { painter.Save(search, "find-cart-running"); });
  search.findChild<QPushButton*>("cmdFind")->click();
  painter.Save(search, "find-cart-none");
}

int Draw(const QString& folder) {
  // Of a fixed name, since it can be read in the pictures.
  const std::string windowsFolder = FromQString(QDir::tempPath()) + "/logchecker-pictures-station";
  QDir(QString::fromStdString(windowsFolder)).removeRecursively();
  Os().system.SetWindowsFolder(windowsFolder);
  ScriptedPlatform os;
  os.now = kToday;
  SampleStation station;
  station.firstDay = kToday + 1;
  station.sizes.splits = kMostSplits;
  WriteSampleStation(windowsFolder, station);
  const QtUserInterface userInterface;
  Painter painter(folder);
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(2 * usual.pointSizeF());
  const Look looks[] = {
      {"", QPalette(), usual}, {"-dark", DarkPalette(), usual}, {"-large", QPalette(), large}};
  for (const Look& look : looks) {
    QApplication::setPalette(look.palette);
    QApplication::setFont(look.font);
    painter.SetTheme(look.name);
    const bool plain = look.name[0] == 0;
    for (const int splits : plain ? std::vector{1, 2, 4, 10} : std::vector{1, 10}) {
      DrawMain(painter, {1024, 768}, splits);
      if (plain) DrawMain(painter, kLargeScreen, splits);
    }
    DrawMain(painter, kSmallScreen, 5);
    if (look.font != usual) DrawMain(painter, kLargeScreen, 5);
    DrawResults(painter);
    DrawDialogs(painter);
    DrawBrowser(painter);
    DrawSearch(painter);
  }
  return 0;
}

}  // namespace
}  // namespace logchecker

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  QApplication::setQuitOnLastWindowClosed(false);
  logchecker::HoldVisibleFocus();
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
    return 2;
  }
  return logchecker::Draw(argv[1]);
}
