#include "common/ui/LeastWidth.h"

#include <QBoxLayout>
#include <QWidget>

namespace logchecker {

void HoldLeastWidth(QWidget& window, int width) {
  auto* column = qobject_cast<QVBoxLayout*>(window.layout());
  Q_ASSERT(column != nullptr);
  const QMargins margins = column->contentsMargins();
  column->addStrut(width - margins.left() - margins.right());
}

}  // namespace logchecker
