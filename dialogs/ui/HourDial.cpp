#include "dialogs/ui/HourDial.h"

#include <QMouseEvent>
#include <QPainter>

#include "common/ui/SystemColours.h"
#include "dialogs/HourDialRules.h"

namespace logchecker {

namespace {

constexpr int32_t kRimColour = 0x000000;
constexpr int32_t kWedgeColour = 0x800000;
constexpr int kWholeTurn = 360 * 16;  // in the painter's unit

}  // namespace

HourDial::HourDial(QWidget* parent) : QWidget(parent) { UseTurnedNumbers(); }

void HourDial::SetHour(int32_t hour) {
  hour_ = hour;
  setAccessibleDescription(hour < 0 ? QString() : QString::number(hour));
  QAccessibleValueChangeEvent changed(this, hour);
  QAccessible::updateAccessibility(&changed);
  update();
}

void HourDial::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre(width() / 2.0, height() / 2.0);
  const double radius = DialRadius(width());
  const auto disc = [&](double r, int32_t colour) {
    painter.setBrush(ToQColor(colour, palette()));
    painter.drawEllipse(centre, r, r);
  };
  painter.setPen(ToQColor(kRimColour, palette()));
  disc(radius, kAfternoonColour);
  disc(radius / 2, kMorningColour);
  const std::optional<HourWedge> wedge = WedgeOfHour(hour_);
  if (!wedge) return;
  const double r = radius * wedge->radiusShare;
  painter.setBrush(ToQColor(kWedgeColour, palette()));
  painter.drawPie(QRectF(centre.x() - r, centre.y() - r, 2 * r, 2 * r),
                  qRound(wedge->from * kWholeTurn), qRound((wedge->to - wedge->from) * kWholeTurn));
}

void HourDial::mousePressEvent(QMouseEvent* event) { emit pressed(event->position()); }

void HourDial::mouseDoubleClickEvent(QMouseEvent* /*event*/) { emit doubleClicked(); }

}  // namespace logchecker
