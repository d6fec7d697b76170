// The child windows of the frame: which there are, and where they stand.
#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMdiArea>
#include <QScrollBar>
#include <vector>

#include "common/ErrorState.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "shell/SplitArrangement.h"
#include "shell/Tiling.h"
#include "shell/ui/frmMain.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "splitlogs/ui/frmSplit.h"

namespace logchecker {

namespace {

// Twips, those of a split window.
constexpr int kLeastTileWidth = 3000;
constexpr int kLeastTileHeight = 2010;  // in whole pixels

}  // namespace

frmSplit& frmMain::Window(int16_t split) { return static_cast<frmSplit&>(gSplits(split)); }

// Without the scroll bars that the last arrangement may have needed: arranging again must not
// change what is arranged.
QSize frmMain::InnerSize() const { return area_->maximumViewportSize(); }

// Places are counted from the area's corner, which may be scrolled out of sight.
void frmMain::ScrollToCorner() {
  area_->horizontalScrollBar()->setValue(0);
  area_->verticalScrollBar()->setValue(0);
}

// The toolkit would let bars stand that are not needed any more until events run.
void frmMain::DropUnneededScrollBars() {
  QCoreApplication::sendPostedEvents(area_, QEvent::LayoutRequest);
}

void frmMain::UpdateSplitInfo() {
  const int16_t active = gGeneralSettings.NumberActiveSplits;
  splitsPanel_->setText(QString("%1 Splits").arg(active));
  RequireSplitsInRange();
  ArrangeSplits();
  UnloadInactiveSplits();
  ShowOtherDays();
  DropUnneededScrollBars();
  mnuLogSettingsSep_->setVisible(active > 0);
  if (active == 0) throw RunTimeError(kInvalidCall, "no split is active: NumberActiveSplits is 0");
  StackSplits();
}

void frmMain::ArrangeSplits() {
  const int16_t active = gGeneralSettings.NumberActiveSplits;
  // A window that is minimised or fills the frame can't be placed.
  for (int16_t n = 1; n <= active; ++n) {
    if (Window(n).isMinimized() || Window(n).isMaximized()) Window(n).showNormal();
  }
  ScrollToCorner();
  const QSize inner = InnerSize();
  SplitArrangement arrangement(ToTwips(inner.width()), ToTwips(inner.height()),
                               ToTwips(Window(1).width()), active);
  for (int16_t n = 1; n <= active; ++n) {
    frmSplit& window = Window(n);
    QAction* entry = mnuLogSettings_[static_cast<size_t>(n - 1)];
    entry->setVisible(true);
    window.UpdateInfo();
    NameLogSettingsEntry(n);
    const SplitArrangement::Place place = arrangement.Next(ToTwips(window.width()));
    window.setGeometry(ToPixels(place.left), ToPixels(place.top), window.width(),
                       ToPixels(place.height));
    window.show();
  }
}

// Split 1 in front with the focus, the others at the back in their order. It takes the whole stack
// at the end: the toolkit raises each window that it shows for the first time, and once more when
// another becomes active.
void frmMain::StackSplits() {
  area_->setActiveSubWindow(&Window(1));
  Window(1).raise();
  for (int16_t n = 2; n <= gGeneralSettings.NumberActiveSplits; ++n) Window(n).lower();
}

void frmMain::NameLogSettingsEntry(int16_t split) {
  mnuLogSettings_[static_cast<size_t>(split - 1)]->setText(
      "Change the settings for " + AsMenuText(ToQString(SettingsOf(split).SplitName)));
}

// Their logs stay open, and their grids go with the windows.
void frmMain::UnloadInactiveSplits() {
  const auto first = static_cast<int16_t>(gGeneralSettings.NumberActiveSplits + 1);
  for (int16_t n = first; n <= kMostSplits; ++n) {
    QAction* entry = mnuLogSettings_[static_cast<size_t>(n - 1)];
    entry->setText({});
    entry->setVisible(false);
    gSplits.Unload(n);
  }
}

void frmMain::TileChildren() {
  std::vector<QMdiSubWindow*> children;
  for (QMdiSubWindow* child : area_->subWindowList(QMdiArea::CreationOrder)) {
    if (!child->isHidden() && !child->isMinimized()) children.push_back(child);
  }
  ScrollToCorner();
  const QSize inner = InnerSize();
  const auto tile = [&](int width) {
    return TileVertically(static_cast<int>(children.size()), width, inner.height(),
                          ToPixels(kLeastTileWidth), ToPixels(kLeastTileHeight));
  };
  std::vector<TilePlace> places = tile(inner.width());
  const bool reachBelow =
      !places.empty() && places.back().top + places.back().height > inner.height();
  // The scroll bar that they need then must not take another one across.
  if (reachBelow) places = tile(inner.width() - area_->verticalScrollBar()->sizeHint().width());
  for (size_t i = 0; i < children.size(); ++i) {
    const TilePlace& place = places[i];
    children[i]->setGeometry(place.left, place.top, place.width, place.height);
  }
  DropUnneededScrollBars();
}

}  // namespace logchecker
