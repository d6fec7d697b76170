// How well two colours can be told from each other.
#pragma once

#include <QColor>

namespace logchecker {

// What a text needs, and what a picture or a large text does.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kPictureContrast = 3;

// From 1 for a colour and itself to 21 for black and white.
double ContrastOf(const QColor& one, const QColor& other);

// The first of two colours if what is drawn in it stands out from the background, else the other.
QColor SeenOn(const QColor& background, const QColor& first, const QColor& other);

// The colour, made darker or lighter until a text of `text` can be read on it.
QColor ReadableUnder(const QColor& text, QColor background);

}  // namespace logchecker
