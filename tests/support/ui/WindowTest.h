// A test with a station of its own and real windows.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTest>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "common/ErrorState.h"
#include "common/ui/Guard.h"
#include "tests/support/StationTest.h"

namespace logchecker {

// A run-time error ends no program here: the first is kept.
class WindowTest : public StationTest {
 protected:
  WindowTest();
  ~WindowTest() override;

  // The number of the run-time error that would have stopped the program; 0 for none.
  int32_t StoppedBy() const { return stoppedBy_; }
  const std::string& StoppedConcerning() const { return concerning_; }

 private:
  StopRoutine before_;
  int32_t stoppedBy_ = 0;
  std::string concerning_;
};

// The control of this name; the test fails where there is none.
template <typename Widget>
Widget* Control(const QObject* window, const char* name) {
  auto* found = window->findChild<Widget*>(name);
  EXPECT_NE(found, nullptr) << "no control named " << name;
  return found;
}

// The folder that a file dialog shows, as the host's own path.
std::string FolderShown(const QDialog* files);

// Runs `work` on the dialogs that open while it lives, one after the other, as soon as each is
// there. A dialog that nobody expects is closed, and the test fails.
class DialogScript : public QObject {
  Q_OBJECT

 public:
  using Work = std::function<void(QDialog*)>;

  DialogScript();
  explicit DialogScript(Work work);
  ~DialogScript() override;

  DialogScript& Then(Work work);
  // Presses a button of a message box, and keeps its text.
  DialogScript& Answer(QMessageBox::StandardButton button);
  const QStringList& Texts() const { return texts_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Run(QDialog* dialog);

  QList<Work> works_;
  QStringList texts_;
};

// Sends an event as one that comes from the user's hand, which goes on to the widgets around the
// one that does not take it.
void SendByUser(QWidget* widget, QEvent& event);

// Asks a window to close as the user does, by its frame. Whether it lets itself be closed.
bool CloseByUser(QWidget* window);

// Fails for each control in the window that can have the focus and has no name for those who can't
// see it.
void ExpectEverythingNamed(QWidget* window);

// Fails for each control in the window that can have the focus by Tab and looks the same with it as
// without.
void ExpectFocusSeen(QWidget* window);

// The order in which Tab goes through a window from its first control on, by object name.
QStringList TabOrder(QWidget* window);

}  // namespace logchecker
