#include "cartbrowser/ui/CartRowsPanel.h"

#include <QApplication>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "cartbrowser/BrowserRows.h"
#include "cartbrowser/ui/AccessibleCartRows.h"
#include "cartbrowser/ui/CartRowWidgets.h"
#include "common/ui/CompactFont.h"
#include "common/ui/Guard.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

constexpr int kLeastButtonWidth = 855;  // twips
constexpr int kButtonMargins = 240;     // beside the number, both together
constexpr int kLinesOfDoubleRow = 3;
constexpr int kSmallestFont = 8;  // pixels

}  // namespace

QFont CartRowFont() {
  QFont font = QApplication::font();
  // The width of a text is then the sum of its characters' widths.
  font.setKerning(false);
  font.setStyleStrategy(QFont::PreferNoShaping);
  const int room = ToPixels(TableTwips(kDoubleRowHeight)) / kLinesOfDoubleRow;
  int size = QFontInfo(font).pixelSize();
  do {
    font.setPixelSize(size);
  } while (QFontMetrics(font).height() > room && --size >= kSmallestFont);
  return font;
}

CartRowsPanel::CartRowsPanel(CartBrowser& browser, QWidget* parent)
    : QFrame(parent), browser_(browser) {
  UseAccessibleCartRows();
  setAccessibleName("Carts");
  setFrameShape(QFrame::Box);
  setFrameShadow(QFrame::Plain);
  connect(qApp, &QApplication::focusChanged, this, [this] { StopTelling(); });
}

int CartRowsPanel::ButtonWidth() const {
  const auto digits = static_cast<qsizetype>(CartBrowser::JumpTextMaxLength());
  const int text = QFontMetrics(font()).horizontalAdvance(QString(digits, '0'));
  return std::max(kLeastButtonWidth, GivenTwips(ToTwips(text)) + kButtonMargins);
}

// A wheel without notches, or a pad, turns by parts of a row.
void CartRowsPanel::wheelEvent(QWheelEvent* event) {
  turned_ += event->angleDelta().y() * QApplication::wheelScrollLines();
  const int rows = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ %= QWheelEvent::DefaultDeltasPerStep;
  event->accept();
  if (rows != 0) Guarded([this, rows] { browser_.ScrollRows(-rows); });
}

void CartRowsPanel::MakeRow() {
  const auto row = static_cast<int16_t>(rows_.size() + 1);
  RowWidgets widgets;
  widgets.button = new CartNumberButton(browser_, row, this);
  widgets.button->setObjectName(QString("cmdCartNumber%1").arg(row));
  widgets.panel = new CartPanel(browser_, row, this);
  widgets.panel->setObjectName(QString("pnlCart%1").arg(row));
  rows_.push_back(widgets);
}

void CartRowsPanel::ShowRows() {
  while (rows_.size() < static_cast<size_t>(browser_.RowsMade())) MakeRow();
  for (int16_t row = 1; row <= browser_.RowsMade(); ++row) ShowRow(row);
}

void CartRowsPanel::ShowRow(int16_t row) {
  const BrowserRow& shown = browser_.Row(row);
  const RowWidgets& widgets = rows_[static_cast<size_t>(row) - 1];
  const RowPlace place = browser_.PlaceOf(row);
  const QString number = ToQString(shown.ButtonCaption);
  widgets.button->setText(number);
  widgets.button->SetColour(shown.ButtonColour);
  const int top = ToPixels(TableTwips(place.Top));
  const int height = ToPixels(TableTwips(place.Top + place.Height)) - top;
  const int panelLeft = ToPixels(TableTwips(place.PanelLeft));
  widgets.button->setGeometry(ToPixels(TableTwips(place.ButtonLeft)), top,
                              ToPixels(TableTwips(ButtonWidth())), height);
  widgets.panel->Show(shown);
  widgets.panel->setGeometry(panelLeft, top, ToPixels(TableTwips(place.PanelWidth)), height);
  widgets.button->setVisible(shown.Visible);
  widgets.panel->setVisible(shown.Visible);
}

void CartRowsPanel::ShowButtonColour(int16_t row) {
  if (static_cast<size_t>(row) > rows_.size()) return;
  const uint32_t colour = browser_.Row(row).ButtonColour;
  rows_[static_cast<size_t>(row) - 1].button->SetColour(colour);
  if (colour != kHighlightColour || std::exchange(marked_, true)) return;
  // Behind what comes with the move, and once for moves that come together.
  QMetaObject::invokeMethod(
      this, [this] { TellCurrentRow(); }, Qt::QueuedConnection);
}

QWidget* CartRowsPanel::RowAt(int index) const {
  const bool made = index >= 0 && index < RowsInUse() && index < static_cast<int>(rows_.size());
  return made ? rows_[static_cast<size_t>(index)].panel : nullptr;
}

int CartRowsPanel::IndexOf(const QWidget* row) const {
  const auto* panel = qobject_cast<const CartPanel*>(row);
  return panel != nullptr && panel->Row() <= RowsInUse() ? panel->Row() - 1 : -1;
}

bool CartRowsPanel::IsCurrent(const QWidget* row) const {
  return row != nullptr && row == RowAt(browser_.CurrentRow() - 1);
}

void CartRowsPanel::MakeCurrent(const QWidget* row) {
  const int index = IndexOf(row);
  if (index < 0) return;
  Guarded([&] { browser_.MakeRowCurrent(static_cast<int16_t>(index + 1)); });
}

void CartRowsPanel::Take(const QWidget* row) {
  const int index = IndexOf(row);
  if (index < 0) return;
  Guarded([&] { browser_.ButtonClicked(static_cast<int16_t>(index + 1)); });
}

void CartRowsPanel::TellCurrentRow() {
  marked_ = false;
  if (!isVisible() || !isActiveWindow() || browser_.CurrentCart() == knownCart_) return;
  KnowCurrentCart();
  told_ = true;
  QWidget* row = RowAt(browser_.CurrentRow() - 1);
  TellCartRow(row, std::exchange(toldRow_, row));
}

}  // namespace logchecker
