// A printer as the reports see it: a page, a print position, a font.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace logchecker {

// What a canvas throws when the printer fails.
class PrintError : public std::exception {
 public:
  PrintError(int32_t number, std::string description)
      : number_(number), description_(std::move(description)) {}

  int32_t number() const { return number_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int32_t number_;
  std::string description_;  // in station text
};

// The units that positions can count in, by the platform's numbers; a canvas is asked for twips
// alone and gives back the one that was.
inline constexpr int32_t kScaleTwips = 1;

// Positions are twips from the upper left corner of the printable page. Every call may throw
// PrintError.
class PrintCanvas {
 public:
  virtual ~PrintCanvas() = default;

  virtual int32_t ScaleMode() = 0;
  virtual void SetScaleMode(int32_t mode) = 0;

  // Size of a device pixel, and of the printable page.
  virtual double TwipsPerPixelX() = 0;
  virtual double TwipsPerPixelY() = 0;
  virtual double PageWidth() = 0;
  virtual double PageHeight() = 0;

  virtual float CurrentX() = 0;
  virtual float CurrentY() = 0;
  virtual void SetCurrentX(float twips) = 0;
  virtual void SetCurrentY(float twips) = 0;

  virtual void SetFontName(const std::string& name) = 0;
  virtual void SetFontSize(double points) = 0;
  virtual void SetFontBold(bool bold) = 0;
  virtual void SetFontUnderline(bool underline) = 0;

  // What a text takes from left to right in the font that is set.
  virtual double TextWidth(std::string_view text) = 0;
  // Prints at the print position and moves it behind the text.
  virtual void Print(std::string_view text) = 0;
  // The same, and moves the print position to the beginning of the next line.
  virtual void PrintLine(std::string_view text) = 0;

  // Later lines are solid and this wide.
  virtual void SetPenWidth(int32_t width) = 0;
  // Draws a black line and leaves the print position at its end.
  virtual void DrawLine(float x1, float y1, float x2, float y2) = 0;

  // Goes on at the top of a new page.
  virtual void NewPage() = 0;
  // Sends what was printed as one job.
  virtual void EndDoc() = 0;

  // The printer's name.
  virtual std::string DeviceName() = 0;
};

}  // namespace logchecker
