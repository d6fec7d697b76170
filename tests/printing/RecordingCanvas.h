// A canvas that takes down what is printed, to the twip. Every character is 100 twips wide per 10
// points, twice that in bold; a line is 20 twips high per point.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "printing/PrintCanvas.h"

namespace logchecker {

class RecordingCanvas : public PrintCanvas {
 public:
  int32_t ScaleMode() override { return scaleMode; }
  void SetScaleMode(int32_t mode) override {
    Enter("scale");
    scaleMode = mode;
    scaleModes.push_back(mode);
  }
  double TwipsPerPixelX() override { return pixelWidth; }
  double TwipsPerPixelY() override { return pixelHeight; }
  double PageWidth() override { return pageWidth; }
  double PageHeight() override { return pageHeight; }
  float CurrentX() override { return x; }
  float CurrentY() override { return y; }
  void SetCurrentX(float twips) override { x = twips; }
  void SetCurrentY(float twips) override { y = twips; }
  void SetFontName(const std::string& name) override { fontName = name; }
  void SetFontSize(double points) override { size = points; }
  void SetFontBold(bool on) override { bold = on; }
  void SetFontUnderline(bool on) override { underline = on; }
  double TextWidth(std::string_view text) override {
    return static_cast<double>(text.size()) * size * (bold ? 20 : 10);
  }
  void Print(std::string_view text) override {
    Enter("print");
    if (!text.empty()) Add(text);
    x += static_cast<float>(TextWidth(text));
  }
  void PrintLine(std::string_view text) override {
    Print(text);
    x = 0;
    y += static_cast<float>(20 * size);
  }
  void SetPenWidth(int32_t width) override { penWidth = width; }
  void DrawLine(float x1, float y1, float x2, float y2) override {
    Enter("line");
    char line[96];
    std::snprintf(line, sizeof line, "rule %g,%g-%g,%g", x1, y1, x2, y2);
    log.emplace_back(line);
    x = x2;
    y = y2;
  }
  void NewPage() override {
    Enter("page");
    log.emplace_back("page");
    ++pages;
    x = 0;
    y = 0;
  }
  void EndDoc() override {
    Enter("end");
    log.emplace_back("end");
    ++jobs;
  }
  std::string DeviceName() override { return "Recorder"; }

  // The n-th call that puts something on paper fails, counted from 1.
  void FailCall(int n) { failAt = n; }

  double pixelWidth = 2;
  double pixelHeight = 3;
  double pageWidth = 10000;
  double pageHeight = 14000;
  int32_t scaleMode = 7;
  std::vector<int32_t> scaleModes;
  float x = 0;
  float y = 0;
  std::string fontName;
  double size = 10;
  bool bold = false;
  bool underline = false;
  int32_t penWidth = 1;
  int pages = 1;
  int jobs = 0;
  int calls = 0;
  // "x,y size b u text" a print, with "b" for bold and "u" for underlined.
  std::vector<std::string> log;

 private:
  void Add(std::string_view text) {
    char place[64];
    std::snprintf(place, sizeof place, "%g,%g %g%s%s ", x, y, size, bold ? " b" : "",
                  underline ? " u" : "");
    log.push_back(place + std::string(text));
  }
  void Enter(const char* what) {
    if (++calls == failAt) throw PrintError(482, std::string("the printer failed at ") + what);
  }

  int failAt = -1;
};

}  // namespace logchecker
