// The controls of the frame: toolbar, menus, status bar, timers.
#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "common/ui/ClickableLabel.h"
#include "common/ui/ElidedLabel.h"
#include "common/ui/Guard.h"
#include "common/ui/Icons.h"
#include "common/ui/StationQString.h"
#include "shell/LoadLogs.h"
#include "shell/ui/frmMain.h"
#include "splitlogs/LogWords.h"

namespace logchecker {

namespace {

constexpr int kIconPixels = 32;
constexpr int kTimerInterval = 1000;  // milliseconds

}  // namespace

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
    button->setAccessibleDescription(QString("%1. Key: %2").arg(tip, key));
    // A click leaves the focus where the user works.
    button->setFocusPolicy(Qt::TabFocus);
    auto* label = new ClickableLabel;
    label->setObjectName(labelName);
    label->setText(caption);
    label->setContentsMargins(2, 0, 14, 0);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    const auto run = [this, handler] { Guarded([&] { (this->*handler)(); }); };
    connect(button, &QToolButton::clicked, this, run);
    connect(label, &ClickableLabel::clicked, this, run);
    connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, run);
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
  otherDaysPanel_ = new ElidedLabel;
  otherDaysPanel_->setObjectName("otherdays");
  otherDaysPanel_->setContentsMargins(6, 2, 12, 2);
  QFont bold = otherDaysPanel_->font();
  bold.setBold(true);
  otherDaysPanel_->setFont(bold);
  otherDaysPanel_->hide();
  statusBar()->addWidget(otherDaysPanel_, 1);
}

// The panel is there only while an active split shows the log of another day than the frame says.
void frmMain::ShowOtherDays() {
  const QString words = ToQString(OtherDaysInWords(CurrentLogDate));
  otherDaysPanel_->SetWholeText(QString(words).replace('\n', "; "));
  otherDaysPanel_->setToolTip(AsToolTip(
      QString("There is no log of %1\n").arg(ToQString(DayInWords(CurrentLogDate))) + words));
  // The tool tip without its marks.
  otherDaysPanel_->setAccessibleDescription(
      QString("There is no log of %1").arg(ToQString(DayInWords(CurrentLogDate))));
  otherDaysPanel_->setVisible(!words.isEmpty());
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

}  // namespace logchecker
