#include "cartbrowser/FindCart.h"

#include <utility>

#include "cartbrowser/KeyCodes.h"
#include "cartstore/OpenAudiowall.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
#include "common/UserInterface.h"

namespace logchecker {

namespace {

constexpr float kNoDrag = -1;
constexpr float kDragThreshold = 30;  // twips
constexpr int32_t kMaskMinutesSeconds = 3;

}  // namespace

int32_t gLastFoundCart = 0;

void FindCart::Load() {
  StopSearch = false;
  WindowInitialised = false;
  Closing = false;
  input = FindCartInput();
  view_ = FindCartView();
  results_ = FoundCarts();
  dragStartX_ = dragStartY_ = kNoDrag;
}

void FindCart::Activate() {
  if (WindowInitialised) return;
  if (!AnimationMissing) face_.StopAnimation();
  WindowInitialised = true;
  Closing = false;
  StopSearch = false;
  FindNextMode = false;
  gLastFoundCart = 0;
  ++showing_;
  view_.ResultsVisible = false;
  view_.Height = kFindCollapsedHeight;
  view_.Tab = FindTab::kBasic;
  history_.Fill();
  input.SearchText = history_.Entries().empty() ? "" : history_.Entries().front();
  input.Direction = SearchDirection::kForwards;
  const bool visible = face_.IsVisible();
  if (visible) {
    view_.ProgressVisible = false;
    view_.FindEnabled = true;
    view_.StopEnabled = false;
    input.LimitLines = false;
    input.Notes = false;
    input.SearchFromStart = false;
    EnableControls();
  }
  face_.ShowControls();
  if (visible) face_.FocusOn(FindControl::kSearchText);
}

void FindCart::Find() {
  if (!view_.FindEnabled) return;
  PrepareSearch();
  ReopenReplacedParts();
  const int32_t first = FirstCartOfWalk(StartCart, input.Direction, input.SearchFromStart);
  CartWalk walk(CartSearch(Rules()), first, input.Direction);
  // A window that was closed and shown again on the way is not this walk's any more.
  const uint32_t showing = showing_;
  walk.Run(*this, [this, showing] { return StopSearch || showing != showing_; });
  if (Closing || showing != showing_ || !face_.IsVisible()) return;
  EndSearch();
}

void FindCart::PrepareSearch() {
  history_.Remember(input.SearchText);
  results_.Clear();
  view_.ResultsVisible = true;
  view_.Height = kFindExpandedHeight;
  StopSearch = false;
  if (!AnimationMissing) face_.PlayAnimation();
  view_.FindEnabled = false;
  view_.StopEnabled = true;
  DisableControls();
  view_.ProgressVisible = true;
  view_.ProgressCart = FirstCartOfWalk(StartCart, input.Direction, false);
  face_.ShowControls();
  face_.ShowResults();
  face_.FocusOn(FindControl::kStop);
}

SearchRules FindCart::Rules() const {
  SearchRules rules;
  rules.Text = input.SearchText;
  rules.LimitLines = input.LimitLines;
  rules.Lines = input.Lines;
  rules.Notes = input.Notes;
  rules.TimeRules = input.TimeSearch;
  rules.Length = static_cast<float>(ParseTimeDisplay(input.Length, kMaskMinutesSeconds));
  rules.Tolerance = kLengthTolerances[input.ToleranceRow % kLengthTolerances.size()].seconds;
  return rules;
}

void FindCart::EndSearch() {
  view_.ProgressVisible = false;
  if (!AnimationMissing) face_.StopAnimation();
  view_.FindEnabled = true;
  view_.StopEnabled = false;
  EnableControls();
  face_.ShowControls();
  if (view_.Tab == FindTab::kBasic) face_.FocusOn(FindControl::kSearchText);
  if (StopSearch) return;
  if (results_.Count() == 0 && FindNextMode) {
    Ui().Show({"There were no further items found on the Audiowall that matched your search",
               MessageIcon::kInformation});
    StopSearch = true;
    CloseWith(0);
    face_.Hide();
    return;
  }
  if (results_.Count() == 0) face_.ShowResultAdded(results_.AddNoneFound());
  if (!results_.SelectedRow()) SelectRow(0);
  face_.FocusOn(FindControl::kResults);
}

void FindCart::Stop() {
  StopSearch = true;
  if (!FindNextMode) return;
  CloseWith(0);
  face_.Hide();
}

void FindCart::CloseBox() {
  StopSearch = true;
  CloseWith(0);
}

void FindCart::Choose() {
  const std::optional<size_t> row = results_.SelectedRow();
  if (!row) return;
  StopSearch = true;
  const int32_t cartNumber = results_.Row(*row).Number();
  if (cartNumber <= 0) return;
  gLastFoundCart = cartNumber;
  CloseWith(cartNumber);
  face_.Hide();
}

void FindCart::CloseWith(int32_t cartNumber) {
  Closing = true;
  WindowInitialised = false;
  history_.StoreLastSearches();
  CartJumper* const browser = std::exchange(CallingBrowser, nullptr);
  if (browser == nullptr) return;
  CallIgnoringErrors([browser, cartNumber] { browser->JumpToCart(cartNumber); });
}

void FindCart::EnableControls() {
  view_.SearchEnabled = true;
  SettleLines();
  view_.LengthEnabled = input.TimeSearch;
}

void FindCart::DisableControls() {
  view_.SearchEnabled = false;
  view_.LinesEnabled = false;
  view_.LengthEnabled = false;
}

// An unlimited search has all three lines ready.
void FindCart::SettleLines() {
  view_.LinesEnabled = input.LimitLines;
  if (!input.LimitLines) input.Lines = {true, true, true};
}

void FindCart::LimitLinesClicked() {
  SettleLines();
  face_.ShowControls();
}

void FindCart::TimeSearchClicked() {
  view_.LengthEnabled = input.TimeSearch;
  face_.ShowControls();
}

void FindCart::ListFocusChanged(bool hasFocus) {
  view_.FindIsDefault = !hasFocus;
  face_.ShowControls();
}

void FindCart::ClickHeader(FoundColumn column) {
  results_.ClickHeader(column);
  face_.ShowResults();
}

void FindCart::SelectRow(std::optional<size_t> row) {
  results_.Select(row);
  face_.ShowResults();
}

bool FindCart::KeyDown(int32_t code, bool control) {
  if (code == kKeyTab && control) {
    view_.Tab = view_.Tab == FindTab::kBasic ? FindTab::kAdvanced : FindTab::kBasic;
    face_.ShowControls();
    return true;
  }
  if (code == kKeyQ && control) return true;
  if (code != kKeyEscape) return false;
  if (view_.StopEnabled) {
    Stop();
  } else {
    CloseWith(0);
    face_.Hide();
  }
  return true;
}

void FindCart::MouseDown(bool leftButton, float x, float y) {
  if (!leftButton || !results_.SelectedRow()) return;
  dragStartX_ = x;
  dragStartY_ = y;
}

std::optional<std::string> FindCart::MouseMove(bool leftHeld, float x, float y) {
  const std::optional<size_t> row = results_.SelectedRow();
  if (!leftHeld || dragStartX_ == kNoDrag || !row) return std::nullopt;
  if (IsPointInTolerance(x, y, dragStartX_, dragStartY_, kDragThreshold)) return std::nullopt;
  const int32_t cartNumber = results_.Row(*row).Number();
  if (cartNumber <= 0) return std::nullopt;
  dragStartX_ = dragStartY_ = kNoDrag;
  return std::to_string(cartNumber);
}

void FindCart::MouseUp() { dragStartX_ = dragStartY_ = kNoDrag; }

void FindCart::ShowProgress(int32_t cartNumber) {
  view_.ProgressCart = cartNumber;
  face_.PaintProgress();
}

void FindCart::AddResult(int32_t cartNumber, const CartInfo& info) {
  face_.ShowResultAdded(results_.Add(cartNumber, info));
}

void FindCart::Yield() { Ui().Yield(); }

}  // namespace logchecker
