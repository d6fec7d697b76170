// F1 and the guide's pages.
#include "common/ui/Guide.h"

#include <QDialog>
#include <QFile>
#include <QLineEdit>

#include "tests/support/RecordingUi.h"
#include "tests/support/ui/OpenedPages.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class GuideTest : public WindowTest {
 protected:
  GuideTest() {
    SetGuidePage(window, kGuideLoadDay);
    box = new QLineEdit(&window);
  }

  QWidget window;
  QLineEdit* box;
  OpenedPages pages;
};

TEST_F(GuideTest, EachPageThatAWindowLeadsToIsThere) {
  for (const char* page : {kGuideTasks, kGuideCheckDay, kGuideWhy, kGuideBreak, kGuideLoadDay,
                           kGuideSaveAndPrint, kGuideSetUp, kGuideCarts, kGuideSplit, kGuideBrowser,
                           kGuideSearch, kGuideNotes, kGuideTrouble, kGuideKeys}) {
    EXPECT_TRUE(QFile::exists(GuideFile(page))) << page;
  }
}

TEST_F(GuideTest, F1OpensThePageOfTheWindowOnce) {
  QTest::keyClick(box, Qt::Key_F1);
  EXPECT_EQ(pages.Taken(), QStringList(kGuideLoadDay));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, true);
  SendByUser(box, held);
  QTest::keyClick(box, Qt::Key_F1, Qt::ShiftModifier);
  QTest::keyClick(box, Qt::Key_F2);
  EXPECT_EQ(pages.Taken(), QStringList());
}

TEST_F(GuideTest, ADialogWithoutAPageHasThatOfTheWindowThatOpenedIt) {
  QDialog dialog(&window);
  QTest::keyClick(&dialog, Qt::Key_F1);
  EXPECT_EQ(pages.Taken(), QStringList(kGuideLoadDay));
  SetGuidePage(dialog, kGuideKeys);
  QTest::keyClick(&dialog, Qt::Key_F1);
  EXPECT_EQ(pages.Taken(), QStringList(kGuideKeys));
  QDialog alone;
  QTest::keyClick(&alone, Qt::Key_F1);
  EXPECT_EQ(pages.Taken(), QStringList(kGuideTasks));
}

TEST_F(GuideTest, AGuideThatIsNotThereIsToldWithWhatToDo) {
  RecordingUi told;
  SetGuidePage(window, "no-such-page");
  QTest::keyClick(box, Qt::Key_F1);
  EXPECT_EQ(pages.Taken(), QStringList());
  ASSERT_EQ(told.messages.size(), 1U);
  const std::string& text = told.messages[0].text;
  EXPECT_NE(text.find(GuideFile("no-such-page").toStdString()), std::string::npos) << text;
  EXPECT_NE(text.find("Install Log Checker again"), std::string::npos) << text;
}

TEST_F(GuideTest, WithoutAProgramThatShowsItItIsToldWhereItLies) {
  pages.Stop();  // and the platform without a screen opens none
  RecordingUi told;
  QTest::keyClick(box, Qt::Key_F1);
  ASSERT_EQ(told.messages.size(), 1U);
  const std::string& text = told.messages[0].text;
  EXPECT_NE(text.find(GuideFile(kGuideLoadDay).toStdString()), std::string::npos) << text;
  EXPECT_NE(text.find("Open it with any browser"), std::string::npos) << text;
}

}  // namespace
}  // namespace logchecker
