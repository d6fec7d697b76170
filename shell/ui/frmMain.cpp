#include "shell/ui/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "cartstore/Velmar_Cart_Routines.h"
#include "checking/ui/frmCheckBreaks.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "common/ui/ClickableLabel.h"
#include "common/ui/Guard.h"
#include "common/ui/Icons.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "common/ui/frmSelectHour.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmSplash.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/frmSplit.h"

namespace logchecker {

namespace {

constexpr int kLeastHeight = 3000;  // twips
constexpr QSize kDesignSize{1180, 760};
constexpr int kIconPixels = 32;
constexpr int kTimerInterval = 1000;  // milliseconds

}  // namespace

frmMain::frmMain() : area_(new QMdiArea) {
  setObjectName("frmMain");
  setWindowTitle(kProgramTitle);
  setWindowIcon(IconNamed("program"));
  setContextMenuPolicy(Qt::NoContextMenu);
  area_->setObjectName("mdiArea");
  area_->setActivationOrder(QMdiArea::CreationOrder);
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setBackground(palette().brush(QPalette::Mid));
  setCentralWidget(area_);
  BuildToolbar();
  BuildMenus();
  BuildStatusBar();
  BuildTimers();
  connect(area_, &QMdiArea::subWindowActivated, this,
          [this](QMdiSubWindow* child) { OnChildActivated(child); });
  connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { SwitchFocus(); });
  QSize size = kDesignSize;
  if (const QScreen* screen = QApplication::primaryScreen()) {
    size = size.boundedTo(screen->availableSize());
  }
  resize(size);
  gSplits.SetFactory([this] {
    auto split = std::make_unique<frmSplit>();
    area_->addSubWindow(split.get());
    split->hide();
    return split;
  });
}

frmMain::~frmMain() {
  gSplits.SetFactory({});
  gSplits.UnloadAll();
}

void frmMain::BuildToolbar() {
  picToolbar_ = addToolBar("Jobs");
  picToolbar_->setObjectName("picToolbar");
  picToolbar_->setMovable(false);
  picToolbar_->setFloatable(false);
  const auto job = [this](const char* buttonName, const char* labelName, const char* caption,
                          const char* tip, const char* icon, const char* key,
                          void (frmMain::*handler)()) {
    auto* button = new QToolButton;
    button->setObjectName(buttonName);
    button->setIcon(IconNamed(icon));
    button->setIconSize(QSize(kIconPixels, kIconPixels));
    button->setAutoRaise(true);
    button->setToolTip(tip);
    button->setAccessibleName(caption);
    button->setAccessibleDescription(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setShortcut(QKeySequence(key));
    auto* label = new ClickableLabel;
    label->setObjectName(labelName);
    label->setText(caption);
    label->setContentsMargins(2, 0, 14, 0);
    const auto run = [this, handler] { Guarded([&] { (this->*handler)(); }); };
    connect(button, &QToolButton::clicked, this, run);
    connect(label, &ClickableLabel::clicked, this, run);
    picToolbar_->addWidget(button);
    picToolbar_->addWidget(label);
    return button;
  };
  sftLoad_ = job("sftLoad", "lblLoadDay", "Load Day", "Load a days log", "load-day", "Ctrl+L",
                 &frmMain::OnLoadDay);
  sftCheckBreaks_ = job("sftCheckBreaks", "lblCheckDay", "Check Day",
                        "Test each advert break to see if matches in each split", "check-day",
                        "Ctrl+D", &frmMain::OnCheckDay);
}

QAction* frmMain::AddEntry(QMenu* menu, const char* name, const QString& caption,
                           void (frmMain::*handler)()) {
  QAction* entry = menu->addAction(caption);
  entry->setObjectName(name);
  // The toolkit would move entries to places of its own.
  entry->setMenuRole(QAction::NoRole);
  connect(entry, &QAction::triggered, this,
          [this, handler] { Guarded([&] { (this->*handler)(); }); });
  return entry;
}

void frmMain::BuildMenus() {
  const auto menu = [this](const char* name, const char* caption) {
    QMenu* made = menuBar()->addMenu(caption);
    made->setObjectName(name);
    return made;
  };
  const auto separator = [](QMenu* in, const char* name) {
    QAction* made = in->addSeparator();
    made->setObjectName(name);
    return made;
  };
  QMenu* mnuFile = menu("mnuFile", "&File");
  mnuPrint_ = AddEntry(mnuFile, "mnuPrint", "&Print", &frmMain::OnPrint);
  mnuPrint_->setShortcut(QKeySequence("Ctrl+P"));
  separator(mnuFile, "mnuExitSep");
  AddEntry(mnuFile, "mnuFileExit", "E&xit", &frmMain::OnExit);

  QMenu* mnuSettings = menu("mnuSettings", "&Settings");
  AddEntry(mnuSettings, "mnuSettingsGeneral", "&General Settings", &frmMain::OnGeneralSettings);
  AddEntry(mnuSettings, "mnuCartLocations", "&Cart Locations", &frmMain::OnCartLocations);
  mnuLogSettingsSep_ = separator(mnuSettings, "mnuLogSettingsSep");
  for (int16_t split = 1; split <= kMostSplits; ++split) {
    QAction* entry = mnuSettings->addAction(QString("Split %1 Log Settings").arg(split));
    entry->setObjectName(QString("mnuLogSettings%1").arg(split));
    entry->setMenuRole(QAction::NoRole);
    connect(entry, &QAction::triggered, this,
            [this, split] { Guarded([&] { OnLogSettings(split); }); });
    mnuLogSettings_[static_cast<size_t>(split - 1)] = entry;
  }

  mnuWindow_ = menu("mnuWindow", "&Window");
  connect(mnuWindow_, &QMenu::aboutToShow, this, [this] { ListWindows(); });
  AddEntry(menu("mnuHelp", "&Help"), "mnuAbout", "&About", &frmMain::OnAbout);
}

void frmMain::BuildStatusBar() {
  statusBar()->setObjectName("StatusBar1");
  splitsPanel_ = new QLabel("# Splits");
  splitsPanel_->setObjectName("splits");
  splitsPanel_->setTextFormat(Qt::PlainText);
  splitsPanel_->setContentsMargins(6, 2, 12, 2);
  splitsPanel_->setToolTip(
      "This is the number of splits that can be controlled from this terminal");
  statusBar()->addWidget(splitsPanel_);
}

// They do no work: nothing starts them, and a tick only stops its timer. No log and no cart list is
// loaded by time.
void frmMain::BuildTimers() {
  const auto timer = [this](const char* name) {
    auto* made = new QTimer(this);
    made->setObjectName(name);
    made->setInterval(kTimerInterval);
    connect(made, &QTimer::timeout, made, &QTimer::stop);
    return made;
  };
  tmrCartList_ = timer("tmrCartList");
  tmrAdbreak_ = timer("tmrAdbreak");
}

void frmMain::LoadLogs(int32_t date) {
  logchecker::LoadLogs(date);
  setWindowTitle(AsTitle(ToQString(CaptionOfDay(date))));
}

// The day comes back as exactly five digits; the time that was picked has no effect.
void frmMain::OnLoadDay() {
  if (!selectHour_) selectHour_ = std::make_unique<frmSelectHour>(this);
  selectHour_->Tag = std::to_string(SettingsOf(1).LogDate) + "00";
  selectHour_->SetMinutes("00");
  selectHour_->exec();
  const std::string tag = selectHour_->Tag;
  if (Val(tag) > 0) LoadLogs(ToInt32(Val(Mid(tag, 1, 5))));
}

void frmMain::OnCheckDay() {
  if (!checkBreaks_) {
    checkBreaks_ = new frmCheckBreaks;
    area_->addSubWindow(checkBreaks_);
    checkBreaks_->Load(area_->viewport()->size());
  }
  checkBreaks_->CheckBreaks();
}

// Acts on the results window alone; any other child knows nothing of printing.
void frmMain::OnPrint() {
  if (auto* results = qobject_cast<frmCheckBreaks*>(area_->activeSubWindow())) {
    results->PrintDetails();
  }
}

void frmMain::OnExit() { close(); }

void frmMain::OnGeneralSettings() {}

void frmMain::OnCartLocations() {}

void frmMain::OnLogSettings(int16_t /*split*/) {}

void frmMain::OnAbout() {
  if (!splash_) splash_ = new frmSplash(this);
  splash_->ShowAsAboutBox();
}

// Printing is for the results alone, once they have been there. That the whole program loses the
// focus changes nothing.
void frmMain::OnChildActivated(QMdiSubWindow* child) {
  if (child == nullptr && checkBreaks_ && checkBreaks_->isVisible()) return;
  const bool results = qobject_cast<frmCheckBreaks*>(child) != nullptr;
  if (results) {
    printFollows_ = true;
  }
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

void frmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (!isMinimized() && ToTwips(height()) < kLeastHeight) {
    resize(width(), ToPixels(kLeastHeight));
  }
}

void frmMain::closeEvent(QCloseEvent* event) {
  event->accept();
  Unload();
}

}  // namespace logchecker
