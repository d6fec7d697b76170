// The guide and the keys of the store's windows, and the whole of a row that is cut.
#include <QFile>
#include <QTabWidget>
#include <QToolButton>

#include "common/ui/Guide.h"
#include "common/ui/StationQString.h"
#include "tests/cartbrowser/ui/FindCartForm.h"
#include "tests/support/ui/OpenedPages.h"

namespace logchecker {
namespace {

QString PageOfKeys() {
  QFile page(GuideFile(kGuideKeys));
  EXPECT_TRUE(page.open(QIODevice::ReadOnly));
  return QString::fromUtf8(page.readAll());
}

struct ToldKeys {
  const char* control;
  QStringList keys;
};

void ExpectTold(QWidget* window, const std::vector<ToldKeys>& rows) {
  const QString listed = PageOfKeys();
  for (const ToldKeys& row : rows) {
    const QString told = Control<QWidget>(window, row.control)->accessibleDescription();
    for (const QString& key : row.keys) {
      EXPECT_TRUE(told.contains(key)) << row.control << " does not tell " << qPrintable(key);
      EXPECT_TRUE(listed.contains(key)) << qPrintable(key) << " is not on the page";
    }
  }
}

using BrowserGuideTest = BrowserWindowTest;

TEST_F(BrowserGuideTest, AQuestionMarkOpensThePageAndF1IsTheStores) {
  OpenedPages pages;
  Key(Qt::Key_F1);
  EXPECT_EQ(pages.Taken(), QStringList()) << "swallowed";
  const QString number = Number()->text();
  QTest::sendKeyEvent(QTest::Click, window->focusWidget(), Qt::Key_Question, "?",
                      Qt::ShiftModifier);
  EXPECT_EQ(pages.Taken(), QStringList(kGuideBrowser));
  EXPECT_EQ(Number()->text(), number);
}

TEST_F(BrowserGuideTest, TheKeysAreToldAndStandOnTheirPage) {
  ExpectTold(window.get(), {{"txtCartNumber", {"Enter", "Up", "Page Down", "F", "T", "Esc"}},
                            {"cmdJumpCart", {"Enter", "J"}},
                            {"cmdFindCart", {"F"}},
                            {"cmdSmallScroll0", {"Up"}},
                            {"cmdSmallScroll1", {"Down"}},
                            {"cmdBigScroll0", {"Page Up"}},
                            {"cmdBigScroll1", {"Page Down"}},
                            {"cmdCancel", {"Esc"}}});
}

TEST_F(BrowserGuideTest, ARowThatIsCutTellsTheWholeOfIt) {
  PutCart(2, RecordOfLines("SHORT", "", ""));
  PutCart(3, RecordOfLines(std::string(50, 'W'), "<b>" + std::string(47, 'M'), "END"));
  window->resize(window->minimumSize());
  Key(Qt::Key_Down);
  window->JumpToCart(50);
  window->JumpToCart(1);
  EXPECT_EQ(Panel(2)->toolTip(), "");
  const QString tip = Panel(3)->toolTip();
  EXPECT_TRUE(tip.contains(QString(50, 'W'))) << qPrintable(tip);
  EXPECT_TRUE(tip.contains("END"));
  EXPECT_FALSE(tip.contains("<b>")) << "plain text";
}

using SearchKeysTest = FindCartFormTest;

TEST_F(SearchKeysTest, CtrlAndADigitDoWhatAClickOnThatHeadingDoes) {
  Key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_FALSE(window->results().SortedColumn()) << "no list to sort yet";
  FindText("cart");
  ASSERT_EQ(Numbers(), QStringList({"5", "50", "200", "299"}));
  for (const bool inList : {true, false}) {
    (inList ? static_cast<QWidget*>(List()) : Text())->setFocus();
    Key(Qt::Key_2, Qt::ControlModifier);
    Key(Qt::Key_1, Qt::ControlModifier);
    const bool descending = window->results().Descending();
    Key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_NE(window->results().Descending(), descending) << "again turns the order round";
    EXPECT_EQ(window->results().SortedColumn(), kFoundNumber);
  }
  const FoundColumn columns[] = {kFoundNumber, kFoundLine1, kFoundLine2, kFoundLine3, kFoundLength};
  for (int digit = 1; digit <= 5; ++digit) {
    Key(static_cast<Qt::Key>(Qt::Key_0 + digit), Qt::ControlModifier);
    EXPECT_EQ(window->results().SortedColumn(), columns[digit - 1]);
  }
  Key(Qt::Key_3);
  Key(Qt::Key_6, Qt::ControlModifier);
  EXPECT_EQ(window->results().SortedColumn(), kFoundLength) << "no other key sorts";
  EXPECT_TRUE(List()
                  ->model()
                  ->headerData(kFoundLength, Qt::Horizontal, Qt::ToolTipRole)
                  .toString()
                  .contains("Ctrl+5"));
}

TEST_F(SearchKeysTest, F1OpensItsPageAndTheKeysAreTold) {
  OpenedPages pages;
  Key(Qt::Key_F1);
  EXPECT_EQ(pages.Taken(), QStringList(kGuideSearch));
  ExpectTold(window.get(), {{"lviewItems", {"Enter", "Ctrl+1", "Ctrl+5"}},
                            {"tabFind", {"Ctrl+Tab"}},
                            {"cmdFind", {"Enter"}},
                            {"cmdStop", {"Esc"}}});
}

}  // namespace
}  // namespace logchecker
