// The frame that holds the split windows, a toolbar with the two jobs of the program, the menus and
// a status bar.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <array>
#include <cstdint>
#include <memory>

#include "common/GeneralSettings.h"

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QTimer;
class QToolBar;
class QToolButton;

namespace logchecker {

class ElidedLabel;
class frmCheckBreaks;
enum class MismatchStep;
class frmGeneralSettings;
class frmSelectHour;
class frmSplash;
class frmSplit;

class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  frmMain();
  ~frmMain() override;

  // The start of the program, from the splash to tomorrow in every split. False when it has ended
  // on the way. The window stays hidden until the store is open.
  bool Load();
  bool StartupComplete = false;

  // Brings menus, status bar and child windows in line with the number of active splits and their
  // names. Stops the program when no split is active, or when split 1's window is wider than the
  // frame.
  void UpdateSplitInfo();
  // Loads a day into all splits and puts it into the caption.
  void LoadLogs(int32_t date);
  // Arranges the visible child windows side by side.
  void TileChildren();

  bool HasEnded() const { return ended_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // Building the window.
  void ColourArea();
  void BuildToolbar();
  void BuildMenus();
  void BuildStatusBar();
  void BuildTimers();
  QAction* AddEntry(QMenu* menu, const char* name, const QString& caption,
                    void (frmMain::*handler)());

  // What the user does.
  void OnLoadDay();
  void OnCheckDay();
  void OnPrint();
  void OnExit();
  void OnGeneralSettings();
  void OnCartLocations();
  void OnLogSettings(int16_t split);
  void OnAbout();
  void OnChildActivated(QMdiSubWindow* child);
  void ListWindows();
  void SwitchFocus();
  void GoToMismatch(MismatchStep step);
  void FocusGrid();

  // The start, step by step.
  bool PassReadingTest(const std::vector<std::string>& files);
  bool PassFirstRunTest();
  bool OpenStore();
  frmSplash& Splash();
  void UnloadSplash();
  void Unload();

  frmSplit& Window(int16_t split);
  // Of the area that the child windows stand in, in logical pixels.
  QSize InnerSize() const;
  void ScrollToCorner();
  void DropUnneededScrollBars();
  void ArrangeSplits();
  void StackSplits();
  void NameLogSettingsEntry(int16_t split);
  void ShowOtherDays();
  void UnloadInactiveSplits();

  QMdiArea* area_ = nullptr;
  QToolBar* picToolbar_ = nullptr;
  QToolButton* sftLoad_ = nullptr;
  QToolButton* sftCheckBreaks_ = nullptr;
  QLabel* splitsPanel_ = nullptr;
  ElidedLabel* otherDaysPanel_ = nullptr;
  QMenu* mnuWindow_ = nullptr;
  QAction* mnuPrint_ = nullptr;
  QAction* mnuLogSettingsSep_ = nullptr;
  std::array<QAction*, kMostSplits> mnuLogSettings_{};
  QTimer* tmrCartList_ = nullptr;
  QTimer* tmrAdbreak_ = nullptr;
  std::unique_ptr<frmSelectHour> selectHour_;
  QPointer<frmSplash> splash_;
  QPointer<frmCheckBreaks> checkBreaks_;
  QPointer<frmGeneralSettings> generalSettings_;
  bool printFollows_ = false;  // the results window has been active
  bool ended_ = false;
};

}  // namespace logchecker
