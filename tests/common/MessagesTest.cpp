#include "common/Messages.h"

#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class MessagesTest : public StationTest {};

TEST_F(MessagesTest, WithoutANumberTheActionIsAll) {
  EXPECT_EQ("There was a problem opening the file X",
            ShowErrorMessage("  opening the file X ", 0, false));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ("There was a problem opening the file X", ui.messages[0].text);
  EXPECT_EQ(MessageIcon::kExclamation, ui.messages[0].icon);
  EXPECT_EQ(MessageButtons::kOk, ui.messages[0].buttons);
  EXPECT_EQ(kProgramTitle, ui.messages[0].title);
}

TEST_F(MessagesTest, TheNumberShownIsThatOfTheErrorState) {
  EXPECT_FALSE(Succeeded(kDiskFull));
  EXPECT_EQ(
      "There was a problem writing and the error's description was reported as : \n\n"
      "\"File not found\" (61)",
      ShowErrorMessage("writing", kFileNotFound, true));
  ClearError();
  EXPECT_EQ(
      "There was a problem writing and the error's description was reported as : \n\n"
      "\"File not found\" (0)",
      ShowErrorMessage("writing", kFileNotFound, true));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(MessagesTest, ANumberWithoutATextTakesTheDescriptionOfTheState) {
  gErrorState = {4711, "Something of its own"};
  EXPECT_EQ(
      "There was a problem a and the error's description was reported as : \n\n"
      "\"Something of its own\" (4711)",
      ShowErrorMessage("a", 4711, true));
  EXPECT_EQ("There was a problem a and the error's description was reported as : \n\n\"\" (4711)",
            ShowErrorMessage("a", 4712, true));
}

TEST_F(MessagesTest, ThePointerIsTheArrowForTheMessageAndThenAsItWas) {
  ui.SetMousePointer(MousePointer::kHourglass);
  ui.pointers.clear();
  ShowErrorMessage("a", 0, false);
  EXPECT_EQ((std::vector<MousePointer>{MousePointer::kDefault, MousePointer::kHourglass}),
            ui.pointers);
}

TEST(ErrorTexts, EachNumberInUseHasItsText) {
  for (const int32_t number :
       {kInvalidCall, kOverflow, kSubscriptOutOfRange, kDivisionByZero, kBadFileNumber,
        kFileNotFound, kDeviceIoError, kDiskFull, kInputPastEnd, kTooManyFiles, kPermissionDenied,
        kPathFileAccess, kPathNotFound, kCancelled, kInvalidGridRow}) {
    EXPECT_FALSE(ErrorText(number).empty()) << number;
  }
  EXPECT_EQ("", ErrorText(0));
  EXPECT_EQ("", ErrorText(4711));
}

TEST(RunTimeErrorText, NamesNumberTextAndWhatItIsAbout) {
  EXPECT_STREQ("Run-time error 9: Subscript out of range (NumberActiveSplits=12)",
               RunTimeError(9, "NumberActiveSplits=12").what());
  EXPECT_STREQ("Run-time error 52: Bad file name or number", RunTimeError(52, "").what());
}

}  // namespace
}  // namespace logchecker
