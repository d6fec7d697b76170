#include "printing/ui/QtPrintCanvas.h"

#include <QFontMetricsF>

#include "common/ErrorState.h"
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

QtPrintCanvas::QtPrintCanvas(const QPrinter& chosen, const QString& title) : job_(chosen, title) {
  font_.setFamilies({"Arial", "Liberation Sans", "Helvetica", "DejaVu Sans"});
  // A text is then exactly as wide as its characters together, and can be measured one by one.
  font_.setKerning(false);
  font_.setPointSizeF(kTextSize);
}

QtPrintCanvas::~QtPrintCanvas() {
  if (!painter_.isActive()) return;
  job_.Paper().abort();
  painter_.end();
}

double QtPrintCanvas::TwipsPerPixelX() { return kTwipsPerInch / job_.Paper().logicalDpiX(); }

double QtPrintCanvas::TwipsPerPixelY() { return kTwipsPerInch / job_.Paper().logicalDpiY(); }

double QtPrintCanvas::PageWidth() {
  return job_.Paper().pageRect(QPrinter::DevicePixel).width() * TwipsPerPixelX();
}

double QtPrintCanvas::PageHeight() {
  return job_.Paper().pageRect(QPrinter::DevicePixel).height() * TwipsPerPixelY();
}

void QtPrintCanvas::SetFontName(const std::string& name) {
  font_.setFamilies({ToQString(name)});
  FontChanged();
}

void QtPrintCanvas::SetFontSize(double points) {
  font_.setPointSizeF(points);
  FontChanged();
}

void QtPrintCanvas::SetFontBold(bool bold) {
  font_.setBold(bold);
  FontChanged();
}

void QtPrintCanvas::SetFontUnderline(bool underline) {
  font_.setUnderline(underline);
  FontChanged();
}

void QtPrintCanvas::FontChanged() {
  if (painter_.isActive()) painter_.setFont(font_);
}

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

void QtPrintCanvas::Open() {
  if (painter_.isActive()) return;
  if (!painter_.begin(&job_.Paper())) throw PrintError(kPrinterError, ErrorText(kPrinterError));
  painter_.setFont(font_);
}

void QtPrintCanvas::Print(std::string_view text) {
  Open();
  if (!text.empty()) {
    const QFontMetricsF metrics(font_, &job_.Paper());
    painter_.setPen(Qt::black);
    painter_.drawText(QPointF(ToDeviceX(x_), ToDeviceY(y_) + metrics.ascent()), Printable(text));
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
  Open();
  painter_.setPen(QPen(Qt::black, ToDeviceX(penWidth_)));
  painter_.drawLine(QPointF(ToDeviceX(x1), ToDeviceY(y1)), QPointF(ToDeviceX(x2), ToDeviceY(y2)));
  x_ = x2;
  y_ = y2;
}

void QtPrintCanvas::NewPage() {
  Open();
  if (!job_.Paper().newPage()) throw PrintError(kPrinterError, ErrorText(kPrinterError));
  x_ = 0;
  y_ = 0;
}

void QtPrintCanvas::EndDoc() {
  Open();
  if (!painter_.end()) throw PrintError(kPrinterError, ErrorText(kPrinterError));
  job_.Send();
}

std::string QtPrintCanvas::DeviceName() { return FromQString(job_.DeviceName()); }

}  // namespace logchecker
