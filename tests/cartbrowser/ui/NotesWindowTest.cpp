#include "cartbrowser/ui/NotesWindow.h"

#include <QPointer>
#include <QTextEdit>

#include "notes/ui/frmPrintPreview.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class NotesWindowTest : public WindowTest {
 protected:
  NotesWindowTest() {
    folder().WriteFile("VEL00002.TXT", "first notes");
    folder().WriteFile("VEL00003.TXT", "other notes");
    owner.show();
  }
  void Open(const char* name, bool modal) { ShowNotesPreview(Path(name), &owner, modal); }
  QList<frmPrintPreview*> Viewers() { return owner.findChildren<frmPrintPreview*>(); }
  static QString TextOf(const QWidget* viewer) {
    return Control<QTextEdit>(viewer, "rtfFile")->toPlainText();
  }

  QWidget owner;
};

TEST_F(NotesWindowTest, EachTimeANewViewerOpensAboveAllOthers) {
  for (const char* name : {"VEL00002.TXT", "VEL00003.TXT", "VEL00003.TXT"}) Open(name, false);
  QStringList texts;
  for (const frmPrintPreview* viewer : Viewers()) {
    EXPECT_TRUE(viewer->isVisible());
    EXPECT_TRUE(viewer->isWindow());
    EXPECT_TRUE(viewer->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(viewer->isModal());
    texts.push_back(TextOf(viewer));
  }
  EXPECT_EQ(texts, (QStringList{"first notes", "other notes", "other notes"}));
}

TEST_F(NotesWindowTest, AModalOneHoldsBackTheOthersAndIsNotWaitedFor) {
  Open("VEL00002.TXT", true);
  ASSERT_EQ(Viewers().size(), 1);
  EXPECT_TRUE(Viewers().front()->isVisible());
  EXPECT_EQ(Viewers().front()->windowModality(), Qt::ApplicationModal);
  EXPECT_EQ(QApplication::activeModalWidget(), Viewers().front());
}

TEST_F(NotesWindowTest, AViewerGoesWhenItIsClosed) {
  Open("VEL00002.TXT", false);
  Open("VEL00003.TXT", false);
  const QPointer<frmPrintPreview> first = Viewers().front();
  first->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(first.isNull());
  ASSERT_EQ(Viewers().size(), 1) << "the others stay";
  EXPECT_EQ(TextOf(Viewers().front()), "other notes");
}

}  // namespace
}  // namespace logchecker
