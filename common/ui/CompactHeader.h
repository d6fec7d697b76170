// The headings of tables whose columns are narrow: a heading that does not fit ends in dots.
#pragma once

#include <QHeaderView>
#include <QStringList>

namespace logchecker {

class CompactHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit CompactHeader(QWidget* parent = nullptr);

  // Whether a heading of several words that does not fit goes on in a second line.
  void SetTwoLines(bool twoLines) { twoLines_ = twoLines; }
  // The least width of a column, in pixels, that shows the whole heading in this font.
  int WidthFor(const QString& heading, const QFontMetrics& metrics) const;

 protected:
  QSize sectionSizeFromContents(int logicalIndex) const override;
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

 private:
  QStringList LinesOf(const QString& heading, const QFontMetrics& metrics, int width) const;

  bool twoLines_ = false;
};

}  // namespace logchecker
