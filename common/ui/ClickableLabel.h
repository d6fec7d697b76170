// A label that can be pressed.
#pragma once

#include <QLabel>

namespace logchecker {

class ClickableLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ClickableLabel(QWidget* parent = nullptr);

 signals:
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

}  // namespace logchecker
