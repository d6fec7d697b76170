// What has the focus shows it.
#include "common/ui/VisibleFocus.h"

#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class VisibleFocusTest : public WindowTest {
 protected:
  VisibleFocusTest() {
    static const bool held = (HoldVisibleFocus(), true);
    Q_UNUSED(held);
    auto* layout = new QVBoxLayout(&window);
    for (QWidget* control :
         {static_cast<QWidget*>(list), static_cast<QWidget*>(lit), static_cast<QWidget*>(other)}) {
      layout->addWidget(control);
    }
    lit->setDefault(true);
    lit->setAutoDefault(false);
    other->setAutoDefault(false);
    window.show();
    QApplication::setActiveWindow(&window);
  }

  // How a control looks while another, or it itself, has the focus.
  QImage Look(QWidget* shown, QWidget* focus) {
    focus->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    return window.grab(shown->geometry()).toImage();
  }

  QDialog window;
  QTreeView* list = new QTreeView;
  QPushButton* lit = new QPushButton("OK");
  QPushButton* other = new QPushButton("Help");
};

TEST_F(VisibleFocusTest, AListHasALineAroundItWhileItHasTheFocus) {
  const QColor line = list->palette().color(QPalette::Active, QPalette::Highlight);
  for (int turn = 0; turn < 2; ++turn) {
    EXPECT_EQ(Look(list, list).pixelColor(0, 0), line);
    EXPECT_EQ(Look(list, list).pixelColor(1, list->height() / 2), line);
    EXPECT_NE(Look(list, other).pixelColor(1, list->height() / 2), line);
  }
  list->setFocus();
  window.resize(window.width() + 80, window.height() + 60);
  EXPECT_EQ(Look(list, list).pixelColor(list->width() - 1, list->height() - 1), line)
      << "the line grows with the list";
}

TEST_F(VisibleFocusTest, AButtonHasOneInsideEvenWhereItIsLit) {
  EXPECT_NE(Look(lit, lit), Look(lit, other));
  EXPECT_NE(Look(other, other), Look(other, lit));
}

}  // namespace
}  // namespace logchecker
