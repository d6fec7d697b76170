// A label of one line that takes what room there is.
#pragma once

#include <QLabel>

namespace logchecker {

// Plain text that ends in dots where it does not fit. The whole of it is the label's name for those
// who can't see it.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  void SetWholeText(const QString& text);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Fit();

  QString whole_;
};

}  // namespace logchecker
