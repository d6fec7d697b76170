// Settings files whose names fit two entries, where letter case tells them apart.
#include <gtest/gtest.h>

#include "common/UnreadableSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class LookalikeSettingsTest : public StationTest {};

TEST_F(LookalikeSettingsTest, TheOneThatIsTakenIsSaidAndIsNoHindrance) {
  for (const char* name : {"Other.Ini", "other.ini"}) folder().WriteFile(name, "[General]\r\n");
  EXPECT_FALSE(TellIfUnreadable("OTHER.INI"));
  ASSERT_EQ(1U, ui.messages.size());
  const std::string& text = ui.messages[0].text;
  EXPECT_NE(std::string::npos, text.find("\"" + Path("Other.Ini") + "\" is used")) << text;
  EXPECT_NE(std::string::npos, text.find("\"" + Path("other.ini") + "\" is not")) << text;
  EXPECT_FALSE(TellIfUnreadable("other.ini"));
  EXPECT_EQ(1U, ui.messages.size());
}

}  // namespace
}  // namespace logchecker
