// The dial on which an hour is shown and pressed.
#pragma once

#include <QWidget>
#include <cstdint>

namespace logchecker {

class HourDial : public QWidget {
  Q_OBJECT

 public:
  explicit HourDial(QWidget* parent = nullptr);

  // An hour below 0 shows no slice.
  void SetHour(int32_t hour);
  int32_t Hour() const { return hour_; }

 signals:
  void pressed(const QPointF& position);
  void doubleClicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  int32_t hour_ = -1;
};

// The colours that mean morning and afternoon.
inline constexpr int32_t kMorningColour = 0x00FF00;  // 0x00BBGGRR
inline constexpr int32_t kAfternoonColour = 0x0000FF;

}  // namespace logchecker
