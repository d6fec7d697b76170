// The controls of the cart browser and their places.
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <algorithm>

#include "cartbrowser/ui/AccessibleCartRows.h"
#include "cartbrowser/ui/CartRowsPanel.h"
#include "cartbrowser/ui/frmCartBrowser.h"
#include "common/ui/CompactFont.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/Icons.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextBoxes.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

// All in twips.
constexpr int kMargin = 30;
constexpr int kGap = 15;
constexpr int kControlGap = 90;
constexpr int kBarMargin = 60;  // above and below the controls on the bar
constexpr int kBarLeft = 75;
constexpr int kBarRight = 90;
constexpr int kDesignWidth = 6600;
constexpr int kDesignHeight = 8100;
constexpr int kLeastRowsHeight = 3 * 630;
constexpr int kNumberMargins = 360;  // beside the digits of the number's box

template <typename Control>
Control* Named(Control* control, const char* name) {
  control->setObjectName(name);
  return control;
}

void Place(QWidget* control, int left, int top, int width, int height) {
  control->setGeometry(ToPixels(left), ToPixels(top), ToPixels(width), ToPixels(height));
}

int WishedWidth(const QWidget* control) { return ToTwips(control->sizeHint().width()); }
int WishedHeight(const QWidget* control) { return ToTwips(control->sizeHint().height()); }

}  // namespace

void frmCartBrowser::MakeControls() {
  setObjectName("frmCartBrowser");
  SetGuidePage(*this, kGuideBrowser);
  KeepF1(*this);
  setWindowTitle("Cart Browser");
  setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint);
  setSizeGripEnabled(false);

  pnlDescription_ = Named(new QFrame(this), "pnlDescription");
  pnlDescription_->setFrameShape(QFrame::StyledPanel);
  lblDescription_ = Named(new QLabel(pnlDescription_), "lblDescription");
  lblDescription_->setTextFormat(Qt::PlainText);

  picBrowser_ = Named(new QFrame(this), "picBrowser");
  pnlJumpCart_ = Named(new QFrame(picBrowser_), "pnlJumpCart");
  lblJumpToCart_ = Named(new QLabel("Jump to &Cart:", pnlJumpCart_), "lblJumpToCart");
  txtCartNumber_ = Named(new QLineEdit(pnlJumpCart_), "txtCartNumber");
  txtCartNumber_->setAccessibleName("Jump to cart");
  txtCartNumber_->setMaxLength(static_cast<int>(JumpTextMaxLength()));
  lblJumpToCart_->setBuddy(txtCartNumber_);
  SelectAllOnFocus(*txtCartNumber_);
  TypeDigitsOnly(*txtCartNumber_);
  cmdJumpCart_ = Named(new QPushButton("&Jump", pnlJumpCart_), "cmdJumpCart");
  cmdJumpCart_->setDefault(true);
  cmdFindCart_ = Named(new QPushButton("&Find", pnlJumpCart_), "cmdFindCart");
  cmdBigScroll_[0] = MakeScrollButton("cmdBigScroll0", "page-up", "One page up");
  cmdSmallScroll_[0] = MakeScrollButton("cmdSmallScroll0", "row-up", "One cart up");
  cmdSmallScroll_[1] = MakeScrollButton("cmdSmallScroll1", "row-down", "One cart down");
  cmdBigScroll_[1] = MakeScrollButton("cmdBigScroll1", "page-down", "One page down");
  pnlCartLabels_ = Named(new CartRowsPanel(*this, picBrowser_), "pnlCartLabels");

  StatusBar1_ = Named(new QStatusBar(this), "StatusBar1");
  StatusBar1_->setSizeGripEnabled(false);
  chkDouble_ = Named(new QCheckBox(this), "chkDouble");
  chkDouble_->setAccessibleName("Double height");
  chkDouble_->setToolTip(
      "When checked, this doubles the height of each cart, giving more display space for the cart "
      "descriptions.");
  chkDouble_->installEventFilter(this);
  cmdCancel_ = Named(new QPushButton("Cancel", this), "cmdCancel");
  DescribeKeys();
}

// For those who can't see the page of all keys.
void frmCartBrowser::DescribeKeys() {
  txtCartNumber_->setAccessibleDescription(
      "Keys: Enter goes to that cart, and a second time takes it; Up, Down, Page Up and Page Down "
      "move; F searches, T shows notes, question mark opens the guide, Escape leaves");
  cmdJumpCart_->setAccessibleDescription("Keys: Enter, J");
  cmdFindCart_->setAccessibleDescription("Key: F");
  cmdSmallScroll_[0]->setAccessibleDescription("Key: Up");
  cmdSmallScroll_[1]->setAccessibleDescription("Key: Down");
  cmdBigScroll_[0]->setAccessibleDescription("Key: Page Up");
  cmdBigScroll_[1]->setAccessibleDescription("Key: Page Down");
  cmdCancel_->setAccessibleDescription("Key: Escape");
}

QToolButton* frmCartBrowser::MakeScrollButton(const QString& name, const char* icon,
                                              const QString& spoken) {
  auto* button = new QToolButton(picBrowser_);
  button->setObjectName(name);
  button->setIcon(IconNamed(icon));
  button->setAccessibleName(spoken);
  button->setToolTip(spoken);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void frmCartBrowser::ConnectControls() {
  connect(txtCartNumber_, &QLineEdit::textChanged, this,
          [this](const QString& text) { SetJumpText(FromQString(text)); });
  connect(txtCartNumber_, &QLineEdit::textEdited, this, [this] {
    if (!pnlCartLabels_->IsTold()) return;
    pnlCartLabels_->StopTelling();
    TellFocus(*txtCartNumber_);
  });
  connect(cmdJumpCart_, &QPushButton::clicked, this,
          [this] { Guarded([this] { JumpClicked(); }); });
  connect(cmdFindCart_, &QPushButton::clicked, this,
          [this] { Guarded([this] { FindClicked(); }); });
  connect(cmdCancel_, &QPushButton::clicked, this, [this] { Guarded([this] { Cancel(); }); });
  connect(chkDouble_, &QCheckBox::toggled, this, [this] { DoubleChanged(); });
  for (const ScrollDirection direction : {ScrollDirection::kUp, ScrollDirection::kDown}) {
    const auto index = static_cast<size_t>(direction);
    connect(cmdSmallScroll_[index], &QToolButton::clicked, this,
            [this, direction] { Guarded([&] { SmallScroll(direction); }); });
    connect(cmdBigScroll_[index], &QToolButton::clicked, this,
            [this, direction] { Guarded([&] { BigScroll(direction); }); });
  }
}

void frmCartBrowser::DoubleChanged() {
  Guarded([this] {
    SetDouble(chkDouble_->isChecked());
    LayOut();
  });
}

void frmCartBrowser::SetTabOrder() {
  QWidget* const order[] = {txtCartNumber_,   cmdJumpCart_,       cmdFindCart_,
                            cmdBigScroll_[0], cmdSmallScroll_[0], cmdSmallScroll_[1],
                            cmdBigScroll_[1], chkDouble_,         cmdCancel_};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

// The smallest size in which nothing is cut but rows.
void frmCartBrowser::HoldLeastSize() {
  const int jump = JumpControlsWidth();
  const int scroll = 4 * (WishedHeight(cmdJumpCart_) + kGap);
  const int width = jump + scroll + 4 * kMargin + kControlGap;
  const int height = ControlsHeight() + BarHeight() + TableTwips(kLeastRowsHeight) + 4 * kMargin;
  setMinimumSize(ToPixels(width) + 1, ToPixels(height) + 1);
}

// The size that it begins with.
void frmCartBrowser::SetSizes() {
  HoldLeastSize();
  const int left = kDesignHeight - HeightBesideRows();
  const int rows = TableTwips(HeightOfWholeRows(GivenTwips(left), RowHeight()));
  resize(std::max(ToPixels(kDesignWidth), minimumWidth()), ToPixels(kDesignHeight - left + rows));
}

// All of the window but the frame of the rows.
int frmCartBrowser::HeightBesideRows() const {
  return kMargin + TopOfRows() + kGap + kMargin + BarHeight();
}

// Of the frame of the rows, in the one around it.
int frmCartBrowser::TopOfRows() const { return 2 * kMargin + ControlsHeight() + kGap; }

int frmCartBrowser::ControlsHeight() const {
  return std::max(WishedHeight(cmdJumpCart_), WishedHeight(txtCartNumber_));
}

int frmCartBrowser::BarHeight() const { return WishedHeight(cmdCancel_) + 2 * kBarMargin; }

int frmCartBrowser::NumberWidth() const {
  const int digits =
      txtCartNumber_->fontMetrics().horizontalAdvance(QString(txtCartNumber_->maxLength(), '0'));
  return ToTwips(digits) + kNumberMargins;
}

int frmCartBrowser::JumpControlsWidth() const {
  return WishedWidth(lblJumpToCart_) + NumberWidth() + WishedWidth(cmdJumpCart_) +
         WishedWidth(cmdFindCart_) + 3 * kControlGap;
}

void frmCartBrowser::LayOut() {
  const int width = ToTwips(this->width());
  const int barTop = ToTwips(height()) - BarHeight();
  int top = kMargin;
  pnlDescription_->setVisible(ShowDescription);
  if (ShowDescription) {
    const int panel = WishedHeight(lblDescription_) + 2 * kBarMargin;
    Place(pnlDescription_, kMargin, top, width - 2 * kMargin, panel);
    Place(lblDescription_, kBarLeft, kBarMargin, width - 2 * kMargin - 2 * kBarLeft,
          panel - 2 * kBarMargin);
    top += panel + kGap;
  }
  Place(picBrowser_, kMargin, top, width - 2 * kMargin, barTop - kMargin - top);
  LayOutJumpControls();
  LayOutBar(barTop, width);
}

void frmCartBrowser::LayOutJumpControls() {
  const int width = ToTwips(picBrowser_->width());
  const int height = ControlsHeight();
  Place(pnlJumpCart_, kMargin, kMargin, JumpControlsWidth(), height);
  int left = 0;
  const auto next = [&](QWidget* control, int controlWidth) {
    Place(control, left, 0, controlWidth, height);
    left += controlWidth + kControlGap;
  };
  next(lblJumpToCart_, WishedWidth(lblJumpToCart_));
  next(txtCartNumber_, NumberWidth());
  next(cmdJumpCart_, WishedWidth(cmdJumpCart_));
  next(cmdFindCart_, WishedWidth(cmdFindCart_));
  left = width - kMargin;
  for (QToolButton* button :
       {cmdBigScroll_[1], cmdSmallScroll_[1], cmdSmallScroll_[0], cmdBigScroll_[0]}) {
    left -= height;
    Place(button, left, kMargin, height, height);
    left -= kGap;
  }
  const int room = ToTwips(picBrowser_->height()) - TopOfRows() - kGap;
  const int rows = HeightOfWholeRows(GivenTwips(room), RowHeight());
  Place(pnlCartLabels_, kMargin, TopOfRows(), width - 2 * kMargin, TableTwips(rows));
  LayOutRows(GivenTwips(ToTwips(pnlCartLabels_->width())), rows, pnlCartLabels_->ButtonWidth());
}

void frmCartBrowser::LayOutBar(int top, int width) {
  const int height = BarHeight();
  Place(StatusBar1_, 0, top, width, height);
  Place(chkDouble_, kBarLeft, top + kBarMargin, WishedWidth(chkDouble_), height - 2 * kBarMargin);
  Place(cmdCancel_, width - kBarRight - WishedWidth(cmdCancel_), top + kBarMargin,
        WishedWidth(cmdCancel_), height - 2 * kBarMargin);
}

}  // namespace logchecker
