// The frame that holds the rows of the cart browser. The last row is cut off at its edge. To those
// who can't see it, it is a list, whose current row is told when it has moved.
#pragma once

#include <QFrame>
#include <QPointer>
#include <cstdint>
#include <string>
#include <vector>

#include "cartbrowser/CartBrowser.h"

namespace logchecker {

class CartNumberButton;
class CartPanel;

// The font in which three lines fit a row of double height.
QFont CartRowFont();

class CartRowsPanel : public QFrame {
  Q_OBJECT

 public:
  // `browser` must outlive it.
  explicit CartRowsPanel(CartBrowser& browser, QWidget* parent = nullptr);

  // Brings all rows, and those alone, to what the browser says of them. Widgets of a row are made
  // when it is first in use, and are kept.
  void ShowRows();
  void ShowButtonColour(int16_t row);

  // The rows as a list: how many it has now, and what stands for each, from 0.
  int RowsInUse() const { return browser_.RowCount(); }
  QWidget* RowAt(int index) const;
  // The place of a row in it, or -1.
  int IndexOf(const QWidget* row) const;
  bool IsCurrent(const QWidget* row) const;
  void MakeCurrent(const QWidget* row);
  void Take(const QWidget* row);

  // The current row has been told as the one that the user is on. That ends when the user types a
  // number, or goes to another control.
  bool IsTold() const { return told_; }
  void StopTelling() { told_ = false; }
  // Tells the current row, when it shows another cart than when it was last told, as soon as the
  // window is active.
  void TellCurrentRow();
  // The cart that is current now needs no telling.
  void KnowCurrentCart() { knownCart_ = browser_.CurrentCart(); }

  // The width that the buttons have, in twips.
  int ButtonWidth() const;

 protected:
  // The wheel scrolls the rows.
  void wheelEvent(QWheelEvent* event) override;

 private:
  struct RowWidgets {
    CartNumberButton* button = nullptr;
    CartPanel* panel = nullptr;
  };
  void MakeRow();
  void ShowRow(int16_t row);

  CartBrowser& browser_;
  std::vector<RowWidgets> rows_;
  bool marked_ = false;    // a row is, and will be looked at
  int32_t knownCart_ = 0;  // the user knows that it is the current one
  bool told_ = false;
  QPointer<QWidget> toldRow_;  // the last one that was
  int turned_ = 0;             // by the wheel, what is not a whole row yet
};

}  // namespace logchecker
