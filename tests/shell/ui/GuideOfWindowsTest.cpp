// Where F1 leads from each window, and the keys as they are told to those who can't see them.
#include <QDialog>
#include <QFile>
#include <QTextStream>
#include <QTimer>

#include "common/ui/Guide.h"
#include "shell/ui/frmGeneralSettings.h"
#include "tests/shell/ui/MainTest.h"
#include "tests/support/ui/OpenedPages.h"

namespace logchecker {
namespace {

class GuideOfWindowsTest : public MainTest {
 protected:
  QString PageOf(QWidget* widget) {
    QTest::keyClick(widget, Qt::Key_F1);
    return pages.Taken().join(" ");
  }

  OpenedPages pages;
};

TEST_F(GuideOfWindowsTest, EachWindowLeadsToItsOwn) {
  ASSERT_TRUE(Start());
  EXPECT_EQ(PageOf(main->focusWidget()), kGuideBreak) << "a split";
  EXPECT_EQ(PageOf(Control<QWidget>(main.get(), "sftLoad")), kGuideCheckDay) << "the frame";
  Press("sftCheckBreaks");
  EXPECT_EQ(PageOf(main->focusWidget()), kGuideWhy) << "the results";
  const auto opens = [this](const char* page) {
    return [this, page](QDialog* dialog) {
      EXPECT_EQ(PageOf(dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog), page);
      dialog->reject();
    };
  };
  {
    DialogScript script(opens(kGuideSaveAndPrint));
    Control<QToolButton>(Results(), "cmdSave")->click();
  }
  {
    DialogScript script(opens(kGuideSaveAndPrint));
    Control<QToolButton>(Results(), "cmdPrint")->click();
  }
  {
    DialogScript script(opens(kGuideLoadDay));
    Press("sftLoad");
  }
  {
    DialogScript script(opens(kGuideSplit));
    Entry("mnuLogSettings2")->trigger();
  }
  {
    DialogScript script(opens(kGuideCarts));
    Entry("mnuCartLocations")->trigger();
  }
  QTimer::singleShot(0, main.get(),
                     [&] { opens(kGuideSetUp)(main->findChild<frmGeneralSettings*>()); });
  Entry("mnuSettingsGeneral")->trigger();
}

TEST_F(GuideOfWindowsTest, TheKeysAreToldAndStandOnTheirPage) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  QFile page(GuideFile(kGuideKeys));
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  const QString listed = QString::fromUtf8(page.readAll());
  const struct {
    QObject* window;
    const char* control;
    QStringList keys;
  } rows[] = {{main.get(), "sftLoad", {"Ctrl+L"}},
              {main.get(), "sftCheckBreaks", {"Ctrl+D"}},
              {&Window(1), "gridLog", {"Enter", "F8", "Shift+F8", "F6"}},
              {Results(), "lvwResults", {"Enter", "F8", "Shift+F8", "Esc"}},
              {Results(), "cmdPrint", {"Ctrl+P"}}};
  for (const auto& row : rows) {
    const QString told = Control<QWidget>(row.window, row.control)->accessibleDescription();
    for (const QString& key : row.keys) {
      EXPECT_TRUE(told.contains(key)) << row.control << " does not tell " << qPrintable(key);
      EXPECT_TRUE(listed.contains(key)) << qPrintable(key) << " is not on the page";
    }
  }
}

}  // namespace
}  // namespace logchecker
