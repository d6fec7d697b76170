#include "printing/ui/QtPrintCanvas.h"

#include <QFontMetricsF>
#include <QPainter>
#include <utility>

#include "common/ui/StationQString.h"

namespace logchecker {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kTextSize = 12;  // points

// Control characters have no picture.
QString Printable(std::string_view text) {
  QString shown = ToQString(text);
  for (QChar& c : shown) {
    if (!c.isPrint()) c = ' ';
  }
  return shown;
}

}  // namespace

QtPrintCanvas::QtPrintCanvas(QPrinter& chosen, const QString& title) : job_(chosen, title) {
  // Both take the same room. Where neither is there the system says what stands for them.
  font_.setFamilies({"Arial", "Liberation Sans"});
  font_.setStyleHint(QFont::SansSerif);
  // Without kerning and ligatures a text is exactly as wide as its characters together, and can be
  // measured one by one.
  font_.setKerning(false);
  font_.setStyleStrategy(QFont::PreferNoShaping);
  font_.setPointSizeF(kTextSize);
}

double QtPrintCanvas::TwipsPerPixelX() { return kTwipsPerInch / job_.Paper().logicalDpiX(); }

double QtPrintCanvas::TwipsPerPixelY() { return kTwipsPerInch / job_.Paper().logicalDpiY(); }

double QtPrintCanvas::PageWidth() {
  return job_.Paper().pageRect(QPrinter::DevicePixel).width() * TwipsPerPixelX();
}

double QtPrintCanvas::PageHeight() {
  return job_.Paper().pageRect(QPrinter::DevicePixel).height() * TwipsPerPixelY();
}

void QtPrintCanvas::SetFontName(const std::string& name) { font_.setFamilies({ToQString(name)}); }

void QtPrintCanvas::SetFontSize(double points) { font_.setPointSizeF(points); }

void QtPrintCanvas::SetFontBold(bool bold) { font_.setBold(bold); }

void QtPrintCanvas::SetFontUnderline(bool underline) { font_.setUnderline(underline); }

const QtPrintCanvas::Widths& QtPrintCanvas::WidthsOfFont() {
  const QString key = font_.toString();
  const auto known = widths_.constFind(key);
  if (known != widths_.constEnd()) return *known;
  const QFontMetricsF metrics(font_, &job_.Paper());
  Widths widths{};
  for (size_t i = 0; i < widths.size(); ++i) {
    const char character = static_cast<char>(i);
    widths[i] =
        metrics.horizontalAdvance(Printable(std::string_view(&character, 1))) * TwipsPerPixelX();
  }
  return *widths_.insert(key, widths);
}

double QtPrintCanvas::TextWidth(std::string_view text) {
  const Widths& widths = WidthsOfFont();
  double width = 0;
  for (const char character : text) width += widths[static_cast<unsigned char>(character)];
  return width;
}

void QtPrintCanvas::Keep(Drawing drawing) { pages_.back().push_back(std::move(drawing)); }

void QtPrintCanvas::Print(std::string_view text) {
  if (!text.empty()) {
    const QFontMetricsF metrics(font_, &job_.Paper());
    const QPointF place(ToDeviceX(x_), ToDeviceY(y_) + metrics.ascent());
    Keep([font = font_, place, shown = Printable(text)](QPainter& painter) {
      painter.setFont(font);
      painter.setPen(Qt::black);
      painter.drawText(place, shown);
    });
  }
  x_ += static_cast<float>(TextWidth(text));
}

void QtPrintCanvas::PrintLine(std::string_view text) {
  Print(text);
  const QFontMetricsF metrics(font_, &job_.Paper());
  x_ = 0;
  y_ += static_cast<float>(metrics.height() * TwipsPerPixelY());
}

void QtPrintCanvas::DrawLine(float x1, float y1, float x2, float y2) {
  const QLineF line(ToDeviceX(x1), ToDeviceY(y1), ToDeviceX(x2), ToDeviceY(y2));
  Keep([line, width = ToDeviceX(penWidth_)](QPainter& painter) {
    painter.setPen(QPen(Qt::black, width));
    painter.drawLine(line);
  });
  x_ = x2;
  y_ = y2;
}

void QtPrintCanvas::NewPage() {
  pages_.emplace_back();
  x_ = 0;
  y_ = 0;
}

void QtPrintCanvas::EndDoc() {
  job_.Send({static_cast<int>(pages_.size()), [this](QPainter& painter, int page) {
               for (const Drawing& drawing : pages_[static_cast<size_t>(page)]) drawing(painter);
             }});
}

std::string QtPrintCanvas::DeviceName() { return FromQString(job_.DeviceName()); }

}  // namespace logchecker
