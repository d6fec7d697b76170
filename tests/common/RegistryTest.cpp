#include "common/Registry.h"

#include <utility>

#include "platform/Platform.h"
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

// Counts the keys that are open, in force for as long as it lives.
class CountingRegistry : public RegistryCalls {
 public:
  CountingRegistry()
      : real_(Os().registry),
        platform_{Os().files, Os().directories, Os().shell,  Os().profiles, *this,
                  Os().clock, Os().waveDevices, Os().system, Os().processes},
        before_(UsePlatform(platform_)) {}
  CountingRegistry(const CountingRegistry&) = delete;
  CountingRegistry& operator=(const CountingRegistry&) = delete;
  ~CountingRegistry() override { UsePlatform(before_); }

  int32_t OpenKey(uint32_t root, const std::string& subKey, bool fullAccess,
                  RegistryKey* key) override {
    return Opened(real_.OpenKey(root, subKey, fullAccess, key));
  }
  int32_t CreateKey(uint32_t root, const std::string& subKey, RegistryKey* key) override {
    return Opened(real_.CreateKey(root, subKey, key));
  }
  void CloseKey(RegistryKey key) override {
    --open;
    real_.CloseKey(key);
  }
  int32_t QueryType(RegistryKey key, const std::string& name, uint32_t* type,
                    uint32_t* size) override {
    return real_.QueryType(key, name, type, size);
  }
  int32_t QueryData(RegistryKey key, const std::string& name, uint32_t* type,
                    std::string* data) override {
    return real_.QueryData(key, name, type, data);
  }
  int32_t SetValue(RegistryKey key, const std::string& name, uint32_t type,
                   const std::string& data) override {
    return real_.SetValue(key, name, type, data);
  }
  int32_t DeleteValue(RegistryKey key, const std::string& name) override {
    return real_.DeleteValue(key, name);
  }

  int open = 0;
  int opened = 0;

 private:
  int32_t Opened(int32_t error) {
    if (error != 0) return error;
    ++open;
    ++opened;
    return 0;
  }

  RegistryCalls& real_;
  Platform platform_;
  Platform& before_;
};

TEST_F(RegistryValuesTest, EachKeyThatIsOpenedIsClosed) {
  CountingRegistry registry;
  const auto expectClosed = [&](const char* step) {
    EXPECT_EQ(0, registry.open) << step;
    EXPECT_GT(std::exchange(registry.opened, 0), 0) << step;
  };
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "value", "");
  expectClosed("a text is stored");
  EXPECT_EQ("value", Text(""));
  expectClosed("a text is read");
  SetRegistryDWord(kCurrentUserRoot, kKey, "Number", 7, 0);
  expectClosed("a number is stored");
  EXPECT_EQ(7, GetRegistryDWord(kCurrentUserRoot, kKey, "Number", 0));
  expectClosed("a number is read");
  EXPECT_TRUE(RegistryKeyExists(kCurrentUserRoot, kKey));
  expectClosed("a key is looked for");
  SetRegistryString(kCurrentUserRoot, kKey, "Text", "", "");
  expectClosed("a text is deleted");
  EXPECT_EQ("none", Text("none"));
  expectClosed("a text is not there");
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
