#include "common/ui/Icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <memory>

// Outside any namespace, as the resource system wants it.
static void InitialiseIcons() { Q_INIT_RESOURCE(icons); }

namespace logchecker {

namespace {

// Draws the picture anew for each size, so that it is crisp at every scale of the screen.
class SvgEngine : public QIconEngine {
 public:
  explicit SvgEngine(const QString& file) : renderer_(std::make_shared<QSvgRenderer>(file)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    constexpr double kFaded = 0.35;
    painter->save();
    if (mode == QIcon::Disabled) painter->setOpacity(kFaded);
    painter->setRenderHint(QPainter::Antialiasing);
    renderer_->render(painter, rect);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new SvgEngine(*this); }

 private:
  std::shared_ptr<QSvgRenderer> renderer_;
};

}  // namespace

QIcon IconNamed(const char* name) {
  InitialiseIcons();
  return QIcon(new SvgEngine(QString(":/icons/%1.svg").arg(QLatin1String(name))));
}

}  // namespace logchecker
