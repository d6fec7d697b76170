// The headings of tables whose columns are narrow: a heading that does not fit ends in dots.
#pragma once

#include <QHeaderView>

namespace logchecker {

class CompactHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit CompactHeader(QWidget* parent = nullptr);

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
};

}  // namespace logchecker
