#include "splitlogs/ui/frmSplit.h"

#include <QCloseEvent>
#include <QFrame>
#include <QHelpEvent>
#include <QStyleOptionTitleBar>
#include <QToolTip>

#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/Icons.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "splitlogs/LogWords.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/ui/LogGridView.h"

namespace logchecker {

namespace {

// All in twips.
constexpr int kBorderMargins = 120;  // of brdMain in the window, both sides together
constexpr int kGridMargins = 60;     // of gridLog in brdMain

}  // namespace

frmSplit::frmSplit() : inner_(new QWidget), brdMain_(new QFrame(inner_)) {
  setObjectName("frmSplit");
  SetGuidePage(*this, kGuideBreak);
  setWindowIcon(IconNamed("program"));
  brdMain_->setObjectName("brdMain");
  brdMain_->setFrameShape(QFrame::StyledPanel);
  brdMain_->move(ToPixels(kBorderMargins / 2), ToPixels(kBorderMargins / 2));
  gridView_ = new LogGridView(gridLog, brdMain_);
  gridView_->setObjectName("gridLog");
  gridView_->move(ToPixels(kGridMargins / 2), ToPixels(kGridMargins / 2));
  connect(gridView_, &LogGridView::breakChosen, this, [this] { OnBreakChosen(); });
  inner_->setFocusProxy(gridView_);
  setWidget(inner_);
  setWindowTitle(ToQString(Caption()));
  // The area would otherwise give it a size of its own when it takes it in.
  resize(ToPixels(kDesignWidth), ToPixels(kDesignHeight));
}

frmSplit::~frmSplit() = default;

void frmSplit::CaptionChanged() {
  const QString caption = ToQString(Caption());
  setWindowTitle(AsTitle(caption));
  gridView_->setAccessibleName(caption);
  LogLoaded();
}

void frmSplit::LogLoaded() { setAccessibleDescription(ToQString(LogInWords(*this))); }

QWidget* frmSplit::FirstControl() { return gridView_; }

void frmSplit::LayOut() {
  const QSize inner = inner_->size();
  brdMain_->resize(inner.width() - ToPixels(kBorderMargins),
                   inner.height() - ToPixels(kBorderMargins));
  gridView_->resize(brdMain_->width() - ToPixels(kGridMargins),
                    brdMain_->height() - ToPixels(kGridMargins));
  gridView_->FillDescriptionColumn();
}

void frmSplit::closeEvent(QCloseEvent* event) {
  event->ignore();
  showMinimized();
}

// The words between the buttons of the title bar, which have tool tips of their own.
bool frmSplit::IsOnTitle(const QPoint& place) const {
  QStyleOptionTitleBar bar;
  bar.initFrom(this);
  bar.titleBarFlags = windowFlags();
  bar.titleBarState = static_cast<int>(windowState());
  bar.subControls = QStyle::SC_All;
  bar.rect = QRect(0, 0, width(), style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, this));
  return bar.rect.contains(place) &&
         style()->hitTestComplexControl(QStyle::CC_TitleBar, &bar, place, this) ==
             QStyle::SC_TitleBarLabel;
}

// A tool tip that a control in the window has none of comes here too.
bool frmSplit::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (!isMaximized() && IsOnTitle(help->pos())) {
      QToolTip::showText(help->globalPos(), AsToolTip(ToQString(LogInWords(*this))), this);
      return true;
    }
  }
  return ChildWindow::event(event);
}

void frmSplit::OnBreakChosen() {
  Guarded([this] { LineUpOnCurrentBreak(*this); });
}

}  // namespace logchecker
