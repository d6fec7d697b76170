// The controls of the search window as values: what the user sets, and what the window shows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "cartbrowser/CartWalk.h"

namespace logchecker {

inline constexpr int32_t kFindCollapsedHeight = 2745;  // twips, without the list
inline constexpr int32_t kFindExpandedHeight = 5130;   // twips, with it

// Rows of comboLength.
struct LengthTolerance {
  const char* text;
  int32_t seconds;
};
inline constexpr std::array<LengthTolerance, 6> kLengthTolerances = {{{"3 Seconds", 3},
                                                                      {"5 Seconds", 5},
                                                                      {"10 Seconds", 10},
                                                                      {"30 Seconds", 30},
                                                                      {"1 Minute", 60},
                                                                      {"5 Minutes", 300}}};
inline constexpr size_t kTenSecondsRow = 2;

// Rows of cmbSearchDirection, and what chkSearchFromStart says beside each.
struct DirectionTexts {
  const char* text;
  const char* fromStartCaption;
};
inline constexpr std::array<DirectionTexts, 2> kDirectionTexts = {
    {{"Forwards", "Search from the &start of the Audiowall"},
     {"Backwards", "Search from the &end of the Audiowall"}}};

// What the user sets. The window writes each change here.
struct FindCartInput {
  std::string SearchText;                                  // cmbSearchText
  SearchDirection Direction = SearchDirection::kForwards;  // cmbSearchDirection
  bool SearchFromStart = false;                            // chkSearchFromStart
  bool Notes = false;                                      // chkNotes
  bool LimitLines = false;                                 // chkLimitLines
  std::array<bool, 3> Lines = {true, true, true};          // chkLine 1 to 3
  bool TimeSearch = false;                                 // chkTimeSearch
  std::string Length = "03:00";                            // mskLength
  size_t ToleranceRow = kTenSecondsRow;                    // comboLength
};

enum class FindTab { kBasic = 0, kAdvanced = 1 };

// What the window shows. A text or combo box has the window colour behind it while it is enabled,
// otherwise the button face colour.
struct FindCartView {
  int32_t Height = kFindCollapsedHeight;
  FindTab Tab = FindTab::kBasic;
  bool FindEnabled = true;    // cmdFind
  bool StopEnabled = false;   // cmdStop, which is the cancel button while it is enabled
  bool FindIsDefault = true;  // not while the list has the focus
  // cmbSearchText, lblFindText, lblFindDirection, cmbSearchDirection, chkSearchFromStart, chkNotes,
  // chkTimeSearch, chkLimitLines
  bool SearchEnabled = true;
  bool LinesEnabled = false;   // frameDescriptions, chkLine 1 to 3
  bool LengthEnabled = false;  // frameTimeSearch and all in it
  bool ResultsVisible = false;
  bool ProgressVisible = false;  // lblSearchCart, lblSearchCartNumber
  int32_t ProgressCart = 0;      // in lblSearchCartNumber
};

enum class FindControl { kSearchText, kStop, kResults };

// The window, as far as the search needs it.
class FindCartFace {
 public:
  virtual ~FindCartFace() = default;

  virtual bool IsVisible() = 0;
  // Brings the controls to the search's input, view and history.
  virtual void ShowControls() = 0;
  // Paints the number of the cart that the walk has come to, at once.
  virtual void PaintProgress() = 0;
  virtual void ShowResultAdded(size_t row) = 0;
  // The list is another: emptied, sorted, or another row is selected.
  virtual void ShowResults() = 0;
  virtual void FocusOn(FindControl control) = 0;
  virtual void PlayAnimation() = 0;
  virtual void StopAnimation() = 0;
  virtual void Hide() = 0;
};

}  // namespace logchecker
