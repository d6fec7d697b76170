#include "common/Messages.h"

#include <utility>

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
  const std::pair<int32_t, const char*> texts[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {11, "Division by zero"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {57, "Device I/O error"},
      {61, "Disk full"},
      {62, "Input past end of file"},
      {67, "Too many files"},
      {70, "Permission denied"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {482, "Printer error"},
      {32755, "Cancel was selected"},
      {30009, "Invalid row value"},
  };
  for (const auto& [number, text] : texts) EXPECT_EQ(text, ErrorText(number)) << number;
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
