// The canvas of a report on a real printer.
#pragma once

#include <QFont>
#include <QHash>
#include <array>
#include <functional>
#include <vector>

#include "printing/PrintCanvas.h"
#include "printing/ui/PrintJob.h"

namespace logchecker {

// The pages are kept until the job is ended, and are gone with the canvas when it is not.
class QtPrintCanvas : public PrintCanvas {
 public:
  // `chosen` must outlive the canvas.
  QtPrintCanvas(QPrinter& chosen, const QString& title);

  int32_t ScaleMode() override { return scaleMode_; }
  void SetScaleMode(int32_t mode) override { scaleMode_ = mode; }
  double TwipsPerPixelX() override;
  double TwipsPerPixelY() override;
  double PageWidth() override;
  double PageHeight() override;
  float CurrentX() override { return x_; }
  float CurrentY() override { return y_; }
  void SetCurrentX(float twips) override { x_ = twips; }
  void SetCurrentY(float twips) override { y_ = twips; }
  void SetFontName(const std::string& name) override;
  void SetFontSize(double points) override;
  void SetFontBold(bool bold) override;
  void SetFontUnderline(bool underline) override;
  double TextWidth(std::string_view text) override;
  void Print(std::string_view text) override;
  void PrintLine(std::string_view text) override;
  void SetPenWidth(int32_t width) override { penWidth_ = width; }
  void DrawLine(float x1, float y1, float x2, float y2) override;
  void NewPage() override;
  void EndDoc() override;
  std::string DeviceName() override;

 private:
  using Widths = std::array<double, 256>;
  using Drawing = std::function<void(QPainter& painter)>;

  void Keep(Drawing drawing);
  const Widths& WidthsOfFont();
  double ToDeviceX(double twips) { return twips / TwipsPerPixelX(); }
  double ToDeviceY(double twips) { return twips / TwipsPerPixelY(); }

  PrintJob job_;
  std::vector<std::vector<Drawing>> pages_ = std::vector<std::vector<Drawing>>(1);
  QFont font_;
  QHash<QString, Widths> widths_;  // twips of each character, by font
  int32_t scaleMode_ = kScaleTwips;
  int32_t penWidth_ = 1;
  float x_ = 0;
  float y_ = 0;
};

}  // namespace logchecker
