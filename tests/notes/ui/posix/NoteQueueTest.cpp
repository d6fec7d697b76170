// A note on a real queue of a real print scheduler.
#include <QCheckBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QSpinBox>

#include "notes/ui/frmPrintPreview.h"
#include "tests/support/ui/PrintedFile.h"
#include "tests/support/ui/posix/PrintQueue.h"

namespace logchecker {
namespace {

class NoteQueueTest : public WindowTest {
 protected:
  NoteQueueTest() {
    std::string note;
    for (int line = 0; line < 90; ++line) note += "line" + std::to_string(line) + "\r\n";
    folder().WriteFile("note.txt", note);
    preview.LoadFile(Path("note.txt"));
  }
  // Prints two copies of the note, which has two pages.
  void PrintTwoCopies(bool collated) {
    DialogScript script([&](QDialog* dialog) {
      PickQueue(dialog, PrintQueue::kName);
      Control<QSpinBox>(dialog, "copies")->setValue(2);
      Control<QCheckBox>(dialog, "collate")->setChecked(collated);
      Control<QRadioButton>(dialog, "noDuplex")->click();
      qobject_cast<QPrintDialog*>(dialog)->accept();
    });
    Control<QPushButton>(&preview, "cmdPrint")->click();
    EXPECT_TRUE(ui.messages.empty()) << ui.messages[0].text;
  }
  // The first line of each sheet's side that came out; a side without a text is left out.
  QStringList FirstLines() {
    QStringList lines;
    for (const QString& page : TextOfFile(queue.Printed()).split('\f')) {
      const QString text = page.trimmed();
      if (!text.isEmpty()) lines += text.section('\n', 0, 0).trimmed();
    }
    return lines;
  }

  PrintQueue queue;
  frmPrintPreview preview;
};

TEST_F(NoteQueueTest, TwoCopiesAreOneJobThatBearsTheNotesName) {
  PrintTwoCopies(true);
  const QList<QueuedJob> jobs = queue.Jobs();
  ASSERT_EQ(jobs.size(), 1);
  EXPECT_EQ(jobs[0].title.toStdString(), "note.txt");
  EXPECT_EQ(jobs[0].options.value("copies"), "2");
}

TEST_F(NoteQueueTest, CollatedCopiesComeOutOneBehindTheOther) {
  PrintTwoCopies(true);
  const QStringList lines = FirstLines();
  ASSERT_EQ(lines.size(), 4) << lines.join(' ').toStdString();
  EXPECT_NE(lines[0], lines[1]);
  EXPECT_EQ(lines.mid(0, 2), lines.mid(2, 2));
}

TEST_F(NoteQueueTest, OthersComeOutPageByPage) {
  PrintTwoCopies(false);
  const QStringList lines = FirstLines();
  ASSERT_EQ(lines.size(), 4) << lines.join(' ').toStdString();
  EXPECT_EQ(lines[0], lines[1]);
  EXPECT_EQ(lines[2], lines[3]);
}

}  // namespace
}  // namespace logchecker
