#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

class SplitEntriesTest : public MainTest {
 protected:
  void SetSplitsInForce(int16_t splits) {
    gGeneralSettings.NumberActiveSplits = splits;
    Guarded([&] { main->UpdateSplitInfo(); });
  }
  // The first entries are there, with the names of their splits, and no others.
  void ExpectEntries(int splits) {
    for (int n = 1; n <= 10; ++n) {
      const QAction* entry = Entry(qPrintable(QString("mnuLogSettings%1").arg(n)));
      const QString caption = QString("Change the settings for Split %1 && <b>").arg(n);
      EXPECT_EQ(entry->isVisible(), n <= splits) << n << " of " << splits;
      EXPECT_EQ(entry->text(), n <= splits ? caption : QString()) << n << " of " << splits;
    }
    EXPECT_EQ(Entry("mnuLogSettingsSep")->isVisible(), splits > 0) << splits;
  }
  int SplitWindowsSeen() {
    int seen = 0;
    for (const QMdiSubWindow* child : Area()->subWindowList()) {
      if (child->isVisible() && qobject_cast<const frmSplit*>(child) != nullptr) ++seen;
    }
    return seen;
  }
};

TEST_F(SplitEntriesTest, EachActiveSplitHasItsEntryAndAWindow) {
  ASSERT_TRUE(Start());
  ExpectEntries(3);
  EXPECT_EQ(SplitWindowsSeen(), 3);
}

TEST_F(SplitEntriesTest, EntriesAndWindowsComeBackWithTheNumberOfSplits) {
  ASSERT_TRUE(Start());
  for (const int16_t splits : {1, 10, 2, 5}) {
    SetSplitsInForce(splits);
    ExpectEntries(splits);
    EXPECT_EQ(SplitWindowsSeen(), splits);
  }
  EXPECT_EQ(StoppedBy(), 0);
}

TEST_F(SplitEntriesTest, WithNoActiveSplitNoWindowAndNoEntryIsSeenUntilThereIsOneAgain) {
  ASSERT_TRUE(Start());
  SetSplitsInForce(0);
  ExpectEntries(0);
  EXPECT_EQ(SplitWindowsSeen(), 0);
  EXPECT_EQ(StoppedBy(), kInvalidCall);
  SetSplitsInForce(2);
  ExpectEntries(2);
  EXPECT_EQ(SplitWindowsSeen(), 2);
}

}  // namespace
}  // namespace logchecker
