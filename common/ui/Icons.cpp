#include "common/ui/Icons.h"

#include <QDir>
#include <QIconEngine>
#include <QPainter>
#include <algorithm>
#include <vector>

// Outside any namespace, as the resource system wants it.
static void InitialiseIcons() { Q_INIT_RESOURCE(icons); }

namespace logchecker {

namespace {

// The picture was drawn to every size that is asked for; another size is made of the next larger
// one.
class DrawnEngine : public QIconEngine {
 public:
  explicit DrawnEngine(const QString& folder) : folder_(folder) {
    for (const QString& file : QDir(folder).entryList(QDir::Files)) {
      sizes_.push_back(QStringView(file).chopped(QStringView(u".png").size()).toInt());
    }
    std::sort(sizes_.begin(), sizes_.end());
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double scale = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, pixmap(rect.size() * scale, mode, state));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    constexpr double kFaded = 0.35;
    QPixmap drawn = Drawn(size);
    if (mode != QIcon::Disabled || drawn.isNull()) return drawn;
    QPixmap faded(drawn.size());
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(kFaded);
    painter.drawPixmap(0, 0, drawn);
    return faded;
  }

  QIconEngine* clone() const override { return new DrawnEngine(*this); }

 private:
  QPixmap Drawn(const QSize& size) const {
    if (sizes_.empty()) return {};
    const int side = std::max(size.width(), size.height());
    const auto found = std::lower_bound(sizes_.begin(), sizes_.end(), side);
    const int drawn = found == sizes_.end() ? sizes_.back() : *found;
    QPixmap picture(QString("%1/%2.png").arg(folder_).arg(drawn));
    if (picture.size() == size) return picture;
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }

  QString folder_;
  std::vector<int> sizes_;  // in order
};

}  // namespace

QIcon IconNamed(const char* name) {
  InitialiseIcons();
  return QIcon(new DrawnEngine(QString(":/icons/%1").arg(QLatin1String(name))));
}

}  // namespace logchecker
