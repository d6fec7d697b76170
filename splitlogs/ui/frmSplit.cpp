#include "splitlogs/ui/frmSplit.h"

#include <QCloseEvent>
#include <QFrame>

#include "common/ui/Guard.h"
#include "common/ui/Icons.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/ui/LogGridView.h"

namespace logchecker {

namespace {

// All in twips.
constexpr int kLeastHeight = 2000;
constexpr int kLeastWidth = 3000;
constexpr int kBorderMargins = 120;  // of brdMain in the window, both sides together
constexpr int kGridMargins = 60;     // of gridLog in brdMain

}  // namespace

frmSplit::frmSplit() : inner_(new QWidget), brdMain_(new QFrame(inner_)) {
  setObjectName("frmSplit");
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
}

void frmSplit::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  LayOut();
}

void frmSplit::showEvent(QShowEvent* event) {
  QMdiSubWindow::showEvent(event);
  LayOut();
}

// Setting a size raises the event again, which completes the layout.
void frmSplit::LayOut() {
  if (isMinimized() || isShaded()) return;
  if (!isMaximized()) {
    if (ToTwips(height()) < kLeastHeight) {
      resize(width(), (kLeastHeight + kTwipsPerPixel - 1) / kTwipsPerPixel);
      return;
    }
    if (ToTwips(width()) < kLeastWidth) {
      resize((kLeastWidth + kTwipsPerPixel - 1) / kTwipsPerPixel, height());
      return;
    }
  }
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

void frmSplit::focusInEvent(QFocusEvent* event) {
  QMdiSubWindow::focusInEvent(event);
  if (!isMinimized()) gridView_->setFocus();
}

void frmSplit::OnBreakChosen() {
  Guarded([this] { LineUpOnCurrentBreak(*this); });
}

}  // namespace logchecker
