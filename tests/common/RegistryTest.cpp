#include "common/Registry.h"

#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr char kKey[] = "SOFTWARE\\Halvern\\Log Checker Tests\\Values";

class RegistryValuesTest : public StationTest {
 protected:
  RegistryValuesTest() { Forget(); }
  ~RegistryValuesTest() override { Forget(); }

  static void Forget() {
    SetRegistryString(kCurrentUserRoot, kKey, "Text", "", "");
    SetRegistryDWord(kCurrentUserRoot, kKey, "Number", 0, 0);
  }
  static std::string Text(const std::string& byDefault) {
    return GetRegistryString(kCurrentUserRoot, kKey, "Text", byDefault);
  }
};

TEST_F(RegistryValuesTest, ATextComesBackAsItWas) {
  for (const char* value : {"C:\\Exports", " blanks ", "a=b;c\"d'[e]%", "\xE9\x80", ""}) {
    SetRegistryString(kCurrentUserRoot, kKey, "Text", value, "the default");
    EXPECT_EQ(value, Text("other"));
    EXPECT_TRUE(RegistryKeyExists(kCurrentUserRoot, kKey));
  }
}

TEST_F(RegistryValuesTest, AValueEqualToItsDefaultIsDeleted) {
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "C:\\Exports", "D");
  EXPECT_EQ("C:\\Exports", Text("missing"));
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "d", "D");  // case counts
  EXPECT_EQ("d", Text("missing"));
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "D", "D");
  EXPECT_EQ("missing", Text("missing"));
}

TEST_F(RegistryValuesTest, TheDefaultCreatesNothing) {
  const std::string key = std::string(kKey) + "\\Never";
  SetRegistryString(kCurrentUserRoot, key, "Text", "D", "D");
  SetRegistryDWord(kCurrentUserRoot, key, "Number", 7, 7);
  EXPECT_FALSE(RegistryKeyExists(kCurrentUserRoot, key));
}

TEST_F(RegistryValuesTest, NumbersComeBackWithTheirSign) {
  for (const int32_t value : {1, -1, 2147483647, -2147483647 - 1}) {
    SetRegistryDWord(kCurrentUserRoot, kKey, "Number", value, 0);
    EXPECT_EQ(value, GetRegistryDWord(kCurrentUserRoot, kKey, "Number", 5));
  }
  SetRegistryDWord(kCurrentUserRoot, kKey, "Number", 0, 0);
  EXPECT_EQ(5, GetRegistryDWord(kCurrentUserRoot, kKey, "Number", 5));
}

TEST_F(RegistryValuesTest, AValueOfAnotherTypeReadsAsEmptyText) {
  SetRegistryDWord(kCurrentUserRoot, kKey, "Number", 7, 0);
  EXPECT_EQ("", GetRegistryString(kCurrentUserRoot, kKey, "Number", "default"));
}

TEST_F(RegistryValuesTest, ACallThatFailsGivesTheDefault) {
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "stored", "");
  for (const char* call : {"Registry.OpenKey", "Registry.QueryType", "Registry.QueryData"}) {
    os.script.Clear();
    os.script.FailNamed(call, 0, 5);
    EXPECT_EQ("default", Text("default")) << call;
    EXPECT_TRUE(os.script.HasFailed()) << call;
  }
}

TEST_F(RegistryValuesTest, ANumberThatCannotBeReadIsTheDefault) {
  SetRegistryDWord(kCurrentUserRoot, kKey, "Number", 7, 0);
  for (const char* call : {"Registry.OpenKey", "Registry.QueryData"}) {
    os.script.Clear();
    os.script.FailNamed(call, 0, 5);
    EXPECT_EQ(-3, GetRegistryDWord(kCurrentUserRoot, kKey, "Number", -3)) << call;
    EXPECT_TRUE(os.script.HasFailed()) << call;
  }
  os.script.Clear();
  EXPECT_EQ(7, GetRegistryDWord(kCurrentUserRoot, kKey, "Number", -3));
}

TEST_F(RegistryValuesTest, AWriteThatFailsIsIgnored) {
  for (const char* call : {"Registry.CreateKey", "Registry.SetValue"}) {
    os.script.Clear();
    os.script.FailNamed(call, 0, 5);
    SetRegistryString(kCurrentUserRoot, kKey, "Text", "value", "");
    os.script.Clear();
    EXPECT_EQ("missing", Text("missing")) << call;
  }
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "value", "");
  os.script.FailNamed("Registry.DeleteValue", 0, 5);
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "", "");
  os.script.Clear();
  EXPECT_EQ("value", Text("missing"));
}

}  // namespace
}  // namespace logchecker
