#include "shell/ui/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <vector>

#include "cartstore/OpenAudiowall.h"
#include "cartstore/ui/frmCartLocations.h"
#include "checking/ui/frmCheckBreaks.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/Icons.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "dialogs/ui/frmSelectHour.h"
#include "shell/LoadLogs.h"
#include "shell/ui/ScreenFit.h"
#include "shell/ui/frmGeneralSettings.h"
#include "shell/ui/frmSplash.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/frmLogFileSettings.h"
#include "splitlogs/ui/frmSplit.h"

namespace logchecker {

namespace {

constexpr int kLeastHeight = 3000;  // twips
constexpr QSize kDesignSize{1180, 760};
}  // namespace

frmMain::frmMain() : area_(new QMdiArea) {
  setObjectName("frmMain");
  SetGuidePage(*this, kGuideCheckDay);
  setWindowTitle(kProgramTitle);
  setWindowIcon(IconNamed("program"));
  setContextMenuPolicy(Qt::NoContextMenu);
  area_->setObjectName("mdiArea");
  area_->setActivationOrder(QMdiArea::CreationOrder);
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  ColourArea();
  setCentralWidget(area_);
  BuildToolbar();
  BuildMenus();
  BuildStatusBar();
  BuildTimers();
  connect(area_, &QMdiArea::subWindowActivated, this,
          [this](QMdiSubWindow* child) { OnChildActivated(child); });
  connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { SwitchFocus(); });
  const auto step = [this](const QKeySequence& key, MismatchStep way) {
    connect(new QShortcut(key, this), &QShortcut::activated, this,
            [this, way] { Guarded([&] { GoToMismatch(way); }); });
  };
  step(Qt::Key_F8, MismatchStep::kNext);
  step(Qt::SHIFT | Qt::Key_F8, MismatchStep::kPrevious);
  const QSize room = ScreenFit::RoomOn(*screen());
  resize(kDesignSize.boundedTo(room));
  // The windows of the splits were arranged in the frame as it was.
  connect(new ScreenFit(*this), &ScreenFit::firstSizeFitted, this, [this] {
    if (StartupComplete) TileChildren();
  });
  gSplits.SetFactory([this, room] {
    auto split = std::make_unique<frmSplit>();
    // On the smallest of screens one is wider than the frame can be, which would stop the program.
    if (split->width() > room.width()) split->resize(room.width(), split->height());
    area_->addSubWindow(split.get());
    split->hide();
    return split;
  });
}

// The child windows go while there still is a frame to be told of it, and none is told any more.
frmMain::~frmMain() {
  area_->disconnect(this);
  UnloadSplash();
  delete checkBreaks_;
  gSplits.SetFactory({});
  gSplits.UnloadAll();
}

void frmMain::LoadLogs(int32_t date) {
  logchecker::LoadLogs(date);
  setWindowTitle(AsTitle(ToQString(CaptionOfDay(date))));
  ShowOtherDays();
}

// The day comes back as exactly five digits; the time that was picked has no effect.
void frmMain::OnLoadDay() {
  if (!selectHour_) selectHour_ = std::make_unique<frmSelectHour>(this);
  selectHour_->Tag = std::to_string(SettingsOf(1).LogDate) + "00";
  selectHour_->SetMinutes("00");
  selectHour_->exec();
  const std::string tag = selectHour_->Tag;
  if (Val(tag) <= 0) return;
  LoadLogs(ToInt32(Val(Mid(tag, 1, 5))));
  FocusGrid();
}

// Whoever loads a day wants to look at it: the active split if there is one, else the first that
// can be seen.
void frmMain::FocusGrid() {
  std::vector<QMdiSubWindow*> children{area_->activeSubWindow()};
  for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) children.push_back(&Window(n));
  for (QMdiSubWindow* child : children) {
    auto* split = qobject_cast<frmSplit*>(child);
    if (split == nullptr || split->isMinimized()) continue;
    area_->setActiveSubWindow(split);
    split->widget()->setFocus();
    return;
  }
}

void frmMain::OnCheckDay() {
  if (!checkBreaks_) {
    checkBreaks_ = new frmCheckBreaks([] { return CurrentLogDate; });
    area_->addSubWindow(checkBreaks_);
    checkBreaks_->Load(InnerSize());
  }
  // Whoever asks for the check wants to see what it finds.
  if (checkBreaks_->isMinimized()) checkBreaks_->showNormal();
  area_->setActiveSubWindow(checkBreaks_);
  checkBreaks_->CheckBreaks();
}

// Acts on the results window alone; any other child knows nothing of printing.
void frmMain::OnPrint() {
  if (auto* results = qobject_cast<frmCheckBreaks*>(area_->activeSubWindow())) {
    results->PrintDetails();
  }
}

void frmMain::OnExit() { close(); }

// Without making the dialog modal: the main window can be used meanwhile, this entry included, and
// the program can be ended. Logs are not loaded again.
void frmMain::OnGeneralSettings() {
  if (!generalSettings_) generalSettings_ = new frmGeneralSettings(this);
  generalSettings_->show();
  generalSettings_->raise();
  generalSettings_->activateWindow();
  QEventLoop wait;
  connect(generalSettings_, &frmGeneralSettings::hidden, &wait, &QEventLoop::quit);
  wait.exec();
  if (ended_) return;
  delete generalSettings_;
  UpdateSplitInfo();
}

// At the start of the program it stands over the splash.
void frmMain::OnCartLocations() {
  frmCartLocations dialog(isVisible() ? static_cast<QWidget*>(this) : splash_);
  dialog.SettingsFile = "Velmar.ini";
  dialog.exec();
}

// The split is read and loaded again whichever button closed the dialog.
void frmMain::OnLogSettings(int16_t split) {
  frmLogFileSettings dialog(this);
  dialog.SetSplitNumberLabel(std::to_string(split));
  dialog.Tag = "1";
  dialog.exec();
  LoadSplitSettings(gSettingsFile, split);
  NameLogSettingsEntry(split);
  gSplits(split).UpdateInfo();
  ReopenReplacedParts();
  gSplits(split).LoadLogFile();
  ShowOtherDays();
}

void frmMain::OnAbout() {
  if (!splash_) splash_ = new frmSplash(this);
  splash_->ShowAsAboutBox();
}

// Printing is for the results alone, once they have been there. That the whole program loses the
// focus changes nothing.
void frmMain::OnChildActivated(QMdiSubWindow* child) {
  if (child == nullptr && checkBreaks_ && checkBreaks_->isVisible()) return;
  const bool results = qobject_cast<frmCheckBreaks*>(child) != nullptr;
  if (results) printFollows_ = true;
  if (printFollows_) mnuPrint_->setEnabled(results);
}

void frmMain::ListWindows() {
  mnuWindow_->clear();
  int number = 0;
  for (QMdiSubWindow* child : area_->subWindowList()) {
    if (child->isHidden()) continue;
    ++number;
    const QString key = number < 10 ? QString("&%1 ").arg(number) : QString("%1 ").arg(number);
    QAction* entry = mnuWindow_->addAction(key + AsMenuText(child->windowTitle()));
    entry->setCheckable(true);
    entry->setChecked(child == area_->activeSubWindow());
    connect(entry, &QAction::triggered, child, [this, child] {
      if (child->isMinimized()) child->showNormal();
      area_->setActiveSubWindow(child);
    });
  }
}

// From the child windows to the toolbar and back, for those without a mouse.
void frmMain::SwitchFocus() {
  if (picToolbar_->isAncestorOf(focusWidget())) {
    if (QMdiSubWindow* child = area_->activeSubWindow()) {
      child->setFocus();
      return;
    }
  }
  sftLoad_->setFocus(Qt::ShortcutFocusReason);
}

void frmMain::ColourArea() { area_->setBackground(palette().brush(QPalette::Mid)); }

void frmMain::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ColourArea();
}

void frmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  const int frame = frameGeometry().height() - height();
  if (!isMinimized() && ToTwips(height() + frame) < kLeastHeight) {
    resize(width(), ToPixels(kLeastHeight) - frame);
  }
}

void frmMain::closeEvent(QCloseEvent* event) {
  event->accept();
  Unload();
}

}  // namespace logchecker
