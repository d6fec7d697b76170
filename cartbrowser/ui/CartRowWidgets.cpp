#include "cartbrowser/ui/CartRowWidgets.h"

#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include "common/ui/Guard.h"
#include "common/ui/StationQString.h"
#include "common/ui/SystemColours.h"
#include "common/ui/Twips.h"
#include "common/ui/VisibleText.h"

namespace logchecker {

namespace {

constexpr int kTextMargin = 4;  // pixels at each side of a panel's text

// Black or white, whichever is the easier to read on a colour.
QColor TextOn(const QColor& background) {
  constexpr int kMiddle = 128;
  return qGray(background.rgb()) < kMiddle ? Qt::white : Qt::black;
}

}  // namespace

CartNumberButton::CartNumberButton(CartBrowser& browser, int16_t row, QWidget* parent)
    : QAbstractButton(parent), browser_(browser), row_(row) {
  setFocusPolicy(Qt::NoFocus);
  connect(this, &QAbstractButton::clicked, this,
          [this] { Guarded([this] { browser_.ButtonClicked(row_); }); });
}

void CartNumberButton::SetColour(uint32_t colour) {
  if (colour_ == colour) return;
  colour_ = colour;
  update();
}

void CartNumberButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor face = ToQColor(static_cast<int32_t>(colour_), palette());
  const bool own = colour_ != kButtonFaceColour;
  const QRect edge = rect().adjusted(0, 0, -1, -1);
  const bool down = isDown();
  painter.fillRect(rect(), face);
  painter.setPen(palette().color(down ? QPalette::Dark : QPalette::Midlight));
  painter.drawLine(edge.topLeft(), edge.topRight());
  painter.drawLine(edge.topLeft(), edge.bottomLeft());
  painter.setPen(palette().color(down ? QPalette::Midlight : QPalette::Dark));
  painter.drawLine(edge.bottomLeft(), edge.bottomRight());
  painter.drawLine(edge.topRight(), edge.bottomRight());
  painter.setPen(own ? TextOn(face) : palette().color(QPalette::ButtonText));
  const int shift = down ? 1 : 0;
  painter.drawText(rect().translated(shift, shift), Qt::AlignCenter | Qt::TextSingleLine, text());
}

void CartNumberButton::mousePressEvent(QMouseEvent* event) {
  Guarded([this] { browser_.ButtonDown(row_); });
  QAbstractButton::mousePressEvent(event);
}

CartPanel::CartPanel(CartBrowser& browser, int16_t row, QWidget* parent)
    : QWidget(parent), browser_(browser), row_(row) {}

void CartPanel::Show(const BrowserRow& row) {
  shown_ = row;
  setAccessibleName(ToVisibleQString(row.Spoken));
  const bool cut = row.Whole.size() > row.Caption.size();
  setToolTip(cut ? AsToolTip(ToVisibleQString(row.Whole)) : QString());
  update();
}

void CartPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), ToQColor(shown_.BackColor, palette()));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(rect().bottomLeft(), rect().bottomRight());
  painter.setPen(ToQColor(shown_.ForeColor, palette()));
  painter.drawText(rect().adjusted(kTextMargin, 0, -kTextMargin, 0),
                   Qt::AlignLeft | Qt::AlignVCenter, ToQString(shown_.Caption));
}

void CartPanel::mousePressEvent(QMouseEvent* event) {
  Guarded([this, event] {
    browser_.PanelDown(row_, event->button() == Qt::LeftButton, XInTwips(*event), YInTwips(*event));
  });
}

void CartPanel::mouseMoveEvent(QMouseEvent* event) {
  const bool held = event->buttons() != Qt::NoButton;
  if (browser_.PanelMove(held, XInTwips(*event), YInTwips(*event), kTwipsPerPixel)) BeginDrag();
}

void CartPanel::mouseReleaseEvent(QMouseEvent* event) {
  Guarded([this, event] { browser_.PanelUp(row_, event->button() == Qt::LeftButton); });
}

void CartPanel::BeginDrag() {
  auto* carried = new QMimeData;
  carried->setText(ToQString(shown_.Tag));
  auto* drag = new QDrag(this);
  drag->setMimeData(carried);
  drag->setPixmap(grab());
  drag->exec(Qt::CopyAction);
}

}  // namespace logchecker
