// What a person sees while a save waits for another program.
#include <gtest/gtest.h>

#include <memory>

#include "platform/Platform.h"
#include "platform/posix/FolderLock.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/RecordingUi.h"

namespace logchecker {
namespace {

// The other program is done as soon as the person sees that it is waited for.
class PatientUi : public RecordingUi {
 public:
  void SetMousePointer(MousePointer shown) override {
    RecordingUi::SetMousePointer(shown);
    if (shown == MousePointer::kHourglass) other.reset();
  }

  std::unique_ptr<FolderLock> other;
};

TEST(WaitSignTest, ASaveThatWaitsForAnotherProgramShowsTheHourglass) {
  const OwnWindowsFolder windows;
  const std::string file = windows.folder().Path("VELKLT.INI");
  PatientUi ui;
  EXPECT_EQ(kNoError, Os().profiles.WriteString("General", "A", "1", "VELKLT.INI"));
  EXPECT_TRUE(ui.pointers.empty());
  ui.other = std::make_unique<FolderLock>(file);
  ASSERT_TRUE(ui.other->held());
  EXPECT_EQ(kNoError, Os().profiles.WriteString("General", "A", "2", "VELKLT.INI"));
  EXPECT_EQ(ui.other, nullptr);
  EXPECT_EQ(ui.pointers,
            std::vector<MousePointer>({MousePointer::kHourglass, MousePointer::kDefault}));
  EXPECT_EQ("[General]\r\nA=2\r\n", windows.folder().ReadFile("VELKLT.INI"));
}

}  // namespace
}  // namespace logchecker
