// One row of the cart browser: the button with the number and the panel beside it.
#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <cstdint>

#include "cartbrowser/CartBrowser.h"

namespace logchecker {

// `cmdCartNumber`. It never takes the focus, which belongs to the box with the number.
class CartNumberButton : public QAbstractButton {
  Q_OBJECT

 public:
  // `browser` must outlive it. Rows count from 1.
  CartNumberButton(CartBrowser& browser, int16_t row, QWidget* parent);

  // 0x00BBGGRR, or a system colour with the top bit set.
  void SetColour(uint32_t colour);
  uint32_t Colour() const { return colour_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  CartBrowser& browser_;
  int16_t row_;
  uint32_t colour_ = kButtonFaceColour;
};

// `pnlCart`: the description in the cart's colours. A drag of it carries the cart's number as text.
class CartPanel : public QWidget {
  Q_OBJECT

 public:
  CartPanel(CartBrowser& browser, int16_t row, QWidget* parent);

  // The row's colours and text. Colours of the system follow the palette when they are drawn.
  void Show(const BrowserRow& row);
  const BrowserRow& Shown() const { return shown_; }
  int16_t Row() const { return row_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void BeginDrag();

  CartBrowser& browser_;
  int16_t row_;
  BrowserRow shown_;
};

}  // namespace logchecker
