// The cart browser without its face: the store as a scrolling column of rows.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cartbrowser/BrowserKeys.h"
#include "cartbrowser/BrowserRows.h"
#include "cartbrowser/CartCallers.h"

namespace logchecker {

// The window, as far as the browser needs it. Lengths are twips.
class CartBrowserFace {
 public:
  virtual ~CartBrowserFace() = default;

  // Whether it is visible and the active window.
  virtual bool IsActive() = 0;
  virtual int32_t ScreenWidth() = 0;
  virtual int32_t WindowWidth() = 0;
  virtual void MoveTo(int32_t left, int32_t top) = 0;
  // The longest head of a text that the list's frame draws within a width.
  virtual std::string Fit(const std::string& text, int32_t maxWidth) = 0;
  // Brings all rows, and those alone, to what the browser says of them.
  virtual void ShowRows() = 0;
  // The same for the colour of one row's button.
  virtual void ShowButtonColour(int16_t row) = 0;
  virtual void ShowJumpBox() = 0;
  virtual void SelectJumpText() = 0;
  // Where the box can take the focus.
  virtual void FocusJumpBox() = 0;
  virtual void Hide() = 0;
  // Shows the search window for this browser.
  virtual void ShowFindCart(const FindRequest& request) = 0;
  // Shows a notes file on top of all other windows.
  virtual void ShowNotes(const std::string& file, bool modal) = 0;
};

enum class ScrollDirection { kUp = 0, kDown = 1 };

// Lives from one use to the next, as its window does, which is hidden and not unloaded.
class CartBrowser : public CartJumper {
 public:
  explicit CartBrowser(CartBrowserFace& face);

  // Set by the opener before it shows the window.
  std::string Tag;                    // the cart to start on; the chosen one when it closes
  CartDisplay* ParentForm = nullptr;  // who is told the result; let go with it
  bool ShowDescription = false;
  bool AllowDrag = false;
  bool ChildrenModal = false;
  bool PlayOnActivate = false;  // a click on a row plays, which does nothing here

  // The window is loaded, and becomes active.
  void Load();
  void Activate();
  // The frame of the rows has got another size.
  void LayOutRows(int32_t frameWidth, int32_t frameHeight, int32_t buttonWidth);
  // `chkDouble`. The window lays itself out again behind it.
  void SetDouble(bool ticked);
  void RefreshRows();

  void JumpToCart(int32_t cartNumber) override;
  void SmallScroll(ScrollDirection direction);
  void BigScroll(ScrollDirection direction);
  // Moves the rows under the cursor, which stays on its row: so many carts down, or up where it is
  // negative, as far as there are carts for all rows.
  void ScrollRows(int32_t carts);
  // Hides the window and tells the opener; 0 when nothing was chosen.
  void ReturnCartNumber(int32_t cartNumber);
  void Cancel();
  // The window's own close button: hides it, and the opener is not called.
  void CloseBox();

  // The mouse on a row, from 1. Positions are twips in its panel.
  void ButtonDown(int16_t row);
  void ButtonClicked(int16_t row) { ActivateRow(row); }
  // Makes the row the current one and takes nothing.
  void MakeRowCurrent(int16_t row) { ButtonDown(row); }
  void PanelDown(int16_t row, bool leftButton, float x, float y);
  // True when the panel's drag is to begin.
  bool PanelMove(bool buttonHeld, float x, float y, float twipsPerPixel) const;
  void PanelUp(int16_t row, bool leftButton);

  void SetJumpText(const std::string& text);
  void JumpClicked();
  void FindClicked() { OpenFind(BrowserAction::kFind); }
  // Each does what the key means; true when the key is swallowed.
  bool KeyDown(int32_t code, bool control);
  bool KeyPress(char character);

  // What the window shows.
  int16_t RowCount() const { return rowCount_; }
  const BrowserRow& Row(int16_t row) const { return rows_[static_cast<size_t>(row) - 1]; }
  // How many rows ever were in use; those above RowCount() are hidden.
  int16_t RowsMade() const { return static_cast<int16_t>(rows_.size()); }
  RowPlace PlaceOf(int16_t row) const;
  int32_t RowHeight() const { return rowHeight_; }
  const std::string& JumpText() const { return jumpText_; }
  bool JumpEnabled() const;
  static size_t JumpTextMaxLength();
  int32_t CurrentCart() const;
  int16_t CurrentRow() const { return static_cast<int16_t>(currentRow_); }
  float TopOffset() const { return topOffset_; }
  bool Activated() const { return activated_; }

 private:
  void SelectCurrentRow();
  void SetButtonColour(float row, uint32_t colour);
  void ActivateRow(int16_t row);
  void Perform(BrowserAction action);
  void OpenFind(BrowserAction action);
  void OpenNotes();
  void PlaceWindow();

  CartBrowserFace& face_;
  FitText fit_;
  std::vector<BrowserRow> rows_;
  std::string jumpText_;
  float topOffset_ = 0;  // row r shows cart r + topOffset_
  float currentRow_ = 1;
  float highlightedRow_ = -1;  // whose button is lit; -1 for none
  int16_t rowCount_ = 0;
  int32_t rowHeight_ = kSingleRowHeight;
  int32_t buttonWidth_ = 0;
  int32_t frameWidth_ = 0;
  int32_t frameHeight_ = 0;
  int32_t windowLeft_ = 0;
  int32_t windowTop_ = 0;
  float dragStartX_ = -1;
  float dragStartY_ = -1;
  bool dragReady_ = false;
  bool activated_ = false;
};

}  // namespace logchecker
