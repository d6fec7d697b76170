// The search window without its face: what its buttons, boxes, list and keys do.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cartbrowser/CartCallers.h"
#include "cartbrowser/CartWalk.h"
#include "cartbrowser/FindCartControls.h"
#include "cartbrowser/FoundCarts.h"
#include "cartbrowser/SearchHistory.h"

namespace logchecker {

// The cart last chosen in the list, 0 once the window has become active. It is only written.
extern int32_t gLastFoundCart;

// Lives for the run, as its window does, which is hidden and not destroyed. A walk runs inside
// Find(): any other member may be called from the events that it lets run.
class FindCart : private CartWalkObserver {
 public:
  explicit FindCart(FindCartFace& face) : face_(face) {}

  // Set by the caller before it shows the window.
  int32_t StartCart = 0;
  CartJumper* CallingBrowser = nullptr;  // let go each time the window closes

  bool FindNextMode = false;  // a search without result closes the window, and so does Stop
  bool AnimationMissing = false;
  bool StopSearch = false;
  bool WindowInitialised = false;
  bool Closing = false;  // a walk must touch no control any more

  FindCartInput input;
  const FindCartView& view() const { return view_; }
  const SearchHistory& history() const { return history_; }
  const FoundCarts& results() const { return results_; }

  // The window is loaded: everything as it is at first.
  void Load();
  // The window becomes active. Counts once per showing.
  void Activate();
  // cmdFind. Comes back when the walk has ended.
  void Find();
  // cmdStop.
  void Stop();
  // The window's own close box. It hides the window itself.
  void CloseBox();
  // A double click on the list, or Enter in it: hands the selected cart over and closes.
  void Choose();

  // Behind a change of the input of that name.
  void LimitLinesClicked();
  void TimeSearchClicked();
  void TabClicked(FindTab tab) { view_.Tab = tab; }
  void ListFocusChanged(bool hasFocus);
  void ClickHeader(FoundColumn column);
  void SelectRow(std::optional<size_t> row);

  // True when the key is consumed. Codes are those of kKey... in cartstore/KeyCodes.h.
  bool KeyDown(int32_t code, bool control);

  // The mouse over the list; positions in twips. A move gives the cart's number as text, for the
  // list's tag, when a drag is to begin.
  void MouseDown(bool leftButton, float x, float y);
  std::optional<std::string> MouseMove(bool leftHeld, float x, float y);
  void MouseUp();

 private:
  void ShowProgress(int32_t cartNumber) override;
  void AddResult(int32_t cartNumber, const CartInfo& info) override;
  void Yield() override;

  SearchRules Rules() const;
  void PrepareSearch();
  void EndSearch();
  void CloseWith(int32_t cartNumber);
  void EnableControls();
  void DisableControls();
  void SettleLines();

  FindCartFace& face_;
  FindCartView view_;
  SearchHistory history_;
  FoundCarts results_;
  uint32_t showing_ = 0;  // counts the showings
  float dragStartX_ = -1;
  float dragStartY_ = -1;
};

}  // namespace logchecker
