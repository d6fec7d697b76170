// The results window: what the comparison of a day found.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "checking/BreakCheck.h"
#include "common/ui/ChildWindow.h"

class QFrame;
class QLabel;
class QProgressBar;
class QToolButton;

namespace logchecker {

class ResultsView;

enum class MismatchStep { kNext, kPrevious };

// Goes when the user closes it; a later check reuses it while it stands.
class frmCheckBreaks : public ChildWindow {
  Q_OBJECT

 public:
  // `day` gives the loaded day, as a day number.
  explicit frmCheckBreaks(std::function<int32_t()> day);

  // Builds the columns, and shows the window in the middle of a client area of this size, drawn
  // before anything else happens.
  void Load(const QSize& clientArea);

  // Compares the breaks of all active splits while the user looks.
  void CheckBreaks();
  // Asks for a printer and sends it the list, or its selected rows.
  void PrintDetails();
  // Selects the mismatch behind or before `time` in seconds, without it the one beside the selected
  // row, and lines every active split up on it, as a click does. One at `time` itself is gone to
  // while no row is selected. Leaves the focus alone. Empty, or why there was none to go to.
  std::string GoToMismatch(MismatchStep step, std::optional<float> time);

  // The size that it begins with, in twips.
  static constexpr int kDesignWidth = 5000;
  static constexpr int kDesignHeight = 4800;

 protected:
  void LayOut() override;
  QWidget* FirstControl() override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildControls();
  void FitTexts();
  void ShowProgress(int32_t value, int32_t maximum);
  void ShowOutcome();
  void OnRowChosen();
  void OnSave();
  void Export(const std::string& file);
  int16_t OnlySelected() const;

  BreakCheck check_;
  std::function<int32_t()> day_;
  std::string lastFile_;  // of the previous export, which the dialog offers again
  QWidget* inner_;
  QLabel* Label1_;
  ResultsView* lvwResults_;
  QFrame* picNoResults_;
  QProgressBar* ProgressBar1_;
  QToolButton* cmdSave_;
  QToolButton* cmdPrint_;
};

}  // namespace logchecker
