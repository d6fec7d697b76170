#include "cartbrowser/CartBrowser.h"

#include <algorithm>
#include <optional>

#include "cartbrowser/CartNotes.h"
#include "cartstore/AudiowallParts.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"

namespace logchecker {

namespace {

constexpr float kNoRow = -1;
constexpr float kNoPosition = -1;
constexpr int32_t kScreenMargin = 30;
constexpr float kDragPixels = 5;

}  // namespace

CartBrowser::CartBrowser(CartBrowserFace& face)
    : face_(face), fit_([this](const std::string& text, int32_t maxWidth) {
        return face_.Fit(text, maxWidth);
      }) {}

void CartBrowser::Load() {
  rowHeight_ = kSingleRowHeight;
  topOffset_ = 0;
  currentRow_ = 1;
  windowTop_ = kScreenMargin;
  PlaceWindow();
  face_.MoveTo(windowLeft_, windowTop_);
  RefreshRows();
}

void CartBrowser::PlaceWindow() {
  windowLeft_ = face_.ScreenWidth() - face_.WindowWidth() - kScreenMargin;
}

void CartBrowser::Activate() {
  if (face_.IsActive()) face_.FocusJumpBox();
  if (activated_) return;
  face_.MoveTo(windowLeft_, windowTop_);
  if (Val(Tag) > 0) {
    if (Val(Tag) > gNumberOfCarts) Tag = std::to_string(gNumberOfCarts);
    JumpToCart(ToInt32(Val(Tag)));
    Tag.clear();
  }
  activated_ = true;
  RefreshRows();
}

void CartBrowser::LayOutRows(int32_t frameWidth, int32_t frameHeight, int32_t buttonWidth) {
  frameWidth_ = frameWidth;
  frameHeight_ = frameHeight;
  buttonWidth_ = buttonWidth;
  rowCount_ = CountRows(frameHeight_, rowHeight_, topOffset_);
  const auto inUse = static_cast<size_t>(rowCount_);
  rows_.resize(std::max(rows_.size(), inUse));
  for (size_t i = inUse; i < rows_.size(); ++i) rows_[i].Visible = false;
  RefreshRows();
}

void CartBrowser::SetDouble(bool ticked) {
  rowHeight_ = ticked ? kDoubleRowHeight : kSingleRowHeight;
  LayOutRows(frameWidth_, frameHeight_, buttonWidth_);
}

RowPlace CartBrowser::PlaceOf(int16_t row) const {
  return PlaceOfRow(row, rowHeight_, buttonWidth_, frameWidth_);
}

void CartBrowser::RefreshRows() {
  {
    const BusyPointer busy;
    highlightedRow_ = kNoRow;
    for (int16_t row = 1; row <= rowCount_; ++row) {
      rows_[static_cast<size_t>(row) - 1] = ReadBrowserRow(
          ToInt32(row + topOffset_), rowHeight_ == kDoubleRowHeight, PlaceOf(row).PanelWidth, fit_);
    }
    face_.ShowRows();
  }
  SelectCurrentRow();
}

void CartBrowser::SelectCurrentRow() {
  const BusyPointer busy;
  if (currentRow_ != highlightedRow_) {
    SetButtonColour(highlightedRow_, kButtonFaceColour);
    SetButtonColour(currentRow_, kHighlightColour);
    highlightedRow_ = currentRow_;
  }
  SetJumpText(std::to_string(CurrentCart()));
  if (face_.IsActive()) face_.FocusJumpBox();
}

// A row that was never made has no button.
void CartBrowser::SetButtonColour(float row, uint32_t colour) {
  if (row < 1 || row > static_cast<float>(rows_.size())) return;
  rows_[static_cast<size_t>(row) - 1].ButtonColour = colour;
  face_.ShowButtonColour(static_cast<int16_t>(row));
}

int32_t CartBrowser::CurrentCart() const { return ToInt32(topOffset_ + currentRow_); }

void CartBrowser::JumpToCart(int32_t cartNumber) {
  if (cartNumber <= 0) return;
  const auto cart = static_cast<float>(cartNumber);
  if (cart <= topOffset_ || cart > topOffset_ + rowCount_) {
    currentRow_ = 1;
    topOffset_ = cart - 1;
    RefreshRows();
  } else {
    currentRow_ = cart - topOffset_;
    SelectCurrentRow();
  }
}

void CartBrowser::SmallScroll(ScrollDirection direction) {
  if (direction == ScrollDirection::kUp) {
    currentRow_ -= 1;
    if (currentRow_ <= 0) {
      currentRow_ = 1;
      if (topOffset_ > 0) {
        topOffset_ -= 1;
        RefreshRows();
      }
    }
  } else {
    if (CurrentCart() >= gNumberOfCarts) return;
    currentRow_ += 1;
    if (currentRow_ > rowCount_) {
      currentRow_ = rowCount_;
      if (ToInt32(rowCount_ + topOffset_) < gNumberOfCarts) {
        topOffset_ += 1;
        RefreshRows();
      }
    }
  }
  SelectCurrentRow();
}

void CartBrowser::BigScroll(ScrollDirection direction) {
  if (direction == ScrollDirection::kUp) {
    topOffset_ -= rowCount_;
    if (topOffset_ < 0) {
      topOffset_ = 0;
      currentRow_ = 1;
    }
  } else {
    topOffset_ += rowCount_;
    if (ToInt32(topOffset_ + rowCount_) > gNumberOfCarts) {
      topOffset_ = static_cast<float>(std::max(gNumberOfCarts - rowCount_, 0));
      currentRow_ = static_cast<float>(gNumberOfCarts) - topOffset_;
    }
  }
  RefreshRows();
}

void CartBrowser::ScrollRows(int32_t carts) {
  const auto last = static_cast<float>(std::max(gNumberOfCarts - rowCount_, 0));
  const float wanted = topOffset_ + static_cast<float>(carts);
  // A jump may have left the top below that, where there is no way further down.
  const float top = std::clamp(wanted, 0.0F, std::max(last, topOffset_));
  if (top == topOffset_) return;
  topOffset_ = top;
  RefreshRows();
}

void CartBrowser::ReturnCartNumber(int32_t cartNumber) {
  PlaceWindow();
  Tag = std::to_string(cartNumber);
  face_.Hide();
  activated_ = false;
  if (ParentForm == nullptr) return;
  CallIgnoringErrors([this, cartNumber] { ParentForm->UpdateDisplay(cartNumber); });
  ParentForm = nullptr;
}

void CartBrowser::Cancel() {
  activated_ = false;
  ReturnCartNumber(0);
}

void CartBrowser::CloseBox() {
  face_.Hide();
  activated_ = false;
}

void CartBrowser::ButtonDown(int16_t row) {
  currentRow_ = row;
  SelectCurrentRow();
}

void CartBrowser::PanelDown(int16_t row, bool leftButton, float x, float y) {
  ButtonDown(row);
  dragStartX_ = x;
  dragStartY_ = y;
  dragReady_ = leftButton && Val(Row(row).Tag) > 0;
}

bool CartBrowser::PanelMove(bool buttonHeld, float x, float y, float twipsPerPixel) const {
  if (!buttonHeld || !dragReady_ || !AllowDrag || dragStartX_ < 0) return false;
  return !IsPointInTolerance(x, y, dragStartX_, dragStartY_, kDragPixels * twipsPerPixel);
}

void CartBrowser::PanelUp(int16_t row, bool leftButton) {
  dragStartX_ = dragStartY_ = kNoPosition;
  if (!leftButton) return;
  dragReady_ = false;
  ActivateRow(row);
}

void CartBrowser::ActivateRow(int16_t row) {
  currentRow_ = row;
  if (!PlayOnActivate) ReturnCartNumber(CurrentCart());
}

size_t CartBrowser::JumpTextMaxLength() { return std::to_string(gNumberOfCarts).size(); }

void CartBrowser::SetJumpText(const std::string& text) {
  jumpText_ = text;
  face_.ShowJumpBox();
}

bool CartBrowser::JumpEnabled() const {
  const double number = Val(jumpText_);
  return number > 0 && number <= gNumberOfCarts;
}

// The second press on the same number takes the cart.
void CartBrowser::JumpClicked() {
  if (!JumpEnabled()) return;
  const double number = Val(jumpText_);
  if (number == CurrentCart()) {
    ReturnCartNumber(CurrentCart());
    return;
  }
  JumpToCart(ToInt32(number));
  face_.SelectJumpText();
  if (face_.IsActive()) face_.FocusJumpBox();
}

bool CartBrowser::KeyDown(int32_t code, bool control) {
  const BrowserKeyResult result = BrowserKeyDown(code, control);
  Perform(result.action);
  return result.swallowed;
}

bool CartBrowser::KeyPress(char character) {
  const BrowserKeyResult result = BrowserKeyPress(character);
  Perform(result.action);
  return result.swallowed;
}

void CartBrowser::Perform(BrowserAction action) {
  switch (action) {
    case BrowserAction::kRowUp:
      return SmallScroll(ScrollDirection::kUp);
    case BrowserAction::kRowDown:
      return SmallScroll(ScrollDirection::kDown);
    case BrowserAction::kPageUp:
      return BigScroll(ScrollDirection::kUp);
    case BrowserAction::kPageDown:
      return BigScroll(ScrollDirection::kDown);
    case BrowserAction::kJump:
      return JumpClicked();
    case BrowserAction::kCancel:
      return Cancel();
    case BrowserAction::kNotes:
      return OpenNotes();
    case BrowserAction::kFind:
    case BrowserAction::kFindNext:
    case BrowserAction::kFindBack:
      return OpenFind(action);
    default:
      return;
  }
}

// N shows the search modally exactly when the others don't: this is meant.
void CartBrowser::OpenFind(BrowserAction action) {
  const int32_t cart = CurrentCart();
  const bool allowed = action == BrowserAction::kFindBack ? cart > 0 : cart <= gNumberOfCarts;
  if (!allowed) return;
  face_.ShowFindCart({cart, action == BrowserAction::kFindNext ? !ChildrenModal : ChildrenModal});
}

void CartBrowser::OpenNotes() {
  const std::optional<std::string> file = FindCartNotes(CurrentCart());
  if (file) face_.ShowNotes(*file, ChildrenModal);
}

}  // namespace logchecker
