#include "common/ui/Contrast.h"

#include <algorithm>
#include <cmath>

namespace logchecker {

namespace {

// As the eye takes it: a screen's steps are finer in the dark.
double Linear(double part) {
  constexpr double kStraightUpTo = 0.04045;
  return part <= kStraightUpTo ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
         0.0722 * Linear(colour.blueF());
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
  constexpr double kStrayLight = 0.05;
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + kStrayLight) / (dark + kStrayLight);
}

QColor SeenOn(const QColor& background, const QColor& first, const QColor& other) {
  return ContrastOf(background, first) >= kPictureContrast ? first : other;
}

QColor ReadableUnder(const QColor& text, QColor background) {
  constexpr int kStep = 104;  // percent
  constexpr int kMostSteps = 60;
  const bool darker = ContrastOf(text, Qt::black) > ContrastOf(text, Qt::white);
  for (int i = 0; i < kMostSteps && ContrastOf(text, background) < kTextContrast; ++i) {
    background = darker ? background.darker(kStep) : background.lighter(kStep);
  }
  return QColor(background.rgb());  // as it is on the screen
}

}  // namespace logchecker
