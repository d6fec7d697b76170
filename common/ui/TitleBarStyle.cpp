#include "common/ui/TitleBarStyle.h"

#include <QApplication>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOptionTitleBar>
#include <algorithm>

#include "common/ui/Contrast.h"

namespace logchecker {

namespace {

// The bar of an active window has a gradient that begins lighter than its colour by this much.
constexpr int kGradient = 115;  // percent

class TitleBarStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  // As high as a larger text needs.
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (metric != PM_TitleBarHeight) return usual;
    const QFont words = QApplication::font("QMdiSubWindowTitleBar");
    return std::max(usual, QFontMetrics(words).height());
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const auto* bar =
        control == CC_TitleBar ? qstyleoption_cast<const QStyleOptionTitleBar*>(option) : nullptr;
    if (bar == nullptr || baseStyle()->name() != "fusion") {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
      return;
    }
    const QStyleOptionTitleBar readable = Readable(*bar);
    QProxyStyle::drawComplexControl(control, &readable, painter, widget);
  }

  // Those that a window which fills the frame has in the menu bar. The base has black ones alone.
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override {
    QIcon usual = QProxyStyle::standardIcon(which, option, widget);
    const bool ofWindow = which == SP_TitleBarMinButton || which == SP_TitleBarNormalButton ||
                          which == SP_TitleBarCloseButton;
    const QColor text = QApplication::palette().color(QPalette::WindowText);
    const QColor back = QApplication::palette().color(QPalette::Window);
    if (!ofWindow || ContrastOf(Qt::black, back) >= kTextContrast) return usual;
    QIcon coloured;
    for (const QSize& size : usual.availableSizes()) {
      QPixmap picture = usual.pixmap(size, 1.0);
      QPainter painter(&picture);
      painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
      painter.fillRect(picture.rect(), text);
      painter.end();
      coloured.addPixmap(picture);
    }
    return coloured;
  }

 private:
  // The base draws white on the selection's colour for the active window, and black on the window's
  // colour for the others, whatever that is. On a dark one they are drawn as the active one is, in
  // their own colour.
  static QStyleOptionTitleBar Readable(const QStyleOptionTitleBar& bar) {
    QStyleOptionTitleBar readable = bar;
    const bool active = (bar.titleBarState & State_Active) != 0;
    QColor back = bar.palette.color(active ? QPalette::Highlight : QPalette::Window);
    if (!active && ContrastOf(Qt::black, back) >= kTextContrast) return readable;
    back = ReadableUnder(Qt::white, back.lighter(kGradient)).darker(kGradient);
    readable.titleBarState |= State_Active;
    readable.palette.setColor(QPalette::Highlight, back);
    // The shadow under the words.
    readable.palette.setColor(QPalette::Text, back.darker());
    return readable;
  }
};

}  // namespace

QStyle* ReadableTitleBars() {
  static QPointer<QStyle> style;
  if (!style) {
    style = new TitleBarStyle(QApplication::style()->name());
    style->setParent(qApp);
  }
  return style;
}

}  // namespace logchecker
