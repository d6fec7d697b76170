// The dial on which an hour is shown and pressed.
#pragma once

#include <QWidget>
#include <cstdint>

#include "dialogs/ui/TurnedNumber.h"

namespace logchecker {

class HourDial : public QWidget, public TurnedNumber {
  Q_OBJECT

 public:
  explicit HourDial(QWidget* parent = nullptr);

  // An hour below 0 shows no slice.
  void SetHour(int32_t hour);
  int32_t Hour() const { return hour_; }

  int Number() const override { return hour_; }
  int LeastNumber() const override { return 0; }
  int MostNumber() const override { return kLastDialHour; }
  void TurnTo(int number) override { emit turned(number); }
  QAccessible::Role Role() const override { return QAccessible::Dial; }

 signals:
  void pressed(const QPointF& position);
  void doubleClicked();
  // The hour is to be another one.
  void turned(int32_t hour);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  static constexpr int kLastDialHour = 23;

  int32_t hour_ = -1;
};

// The colours that mean morning and afternoon.
inline constexpr int32_t kMorningColour = 0x00FF00;  // 0x00BBGGRR
inline constexpr int32_t kAfternoonColour = 0x0000FF;

}  // namespace logchecker
