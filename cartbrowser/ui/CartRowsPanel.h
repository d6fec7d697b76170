// The frame that holds the rows of the cart browser. The last row is cut off at its edge.
#pragma once

#include <QFrame>
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
  int turned_ = 0;  // by the wheel, what is not a whole row yet
};

}  // namespace logchecker
