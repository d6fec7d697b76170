#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Platform.h"
#include "tests/support/OwnWindowsFolder.h"

namespace logchecker {
namespace {

constexpr int32_t kNotFound = 2;
constexpr int32_t kMoreData = 234;

class RegistryTest : public testing::Test {
 protected:
  RegistryKey Create() {
    RegistryKey key = 0;
    EXPECT_EQ(registry_.CreateKey(kCurrentUserRoot, path_, &key), 0);
    return key;
  }

  int32_t Open(const std::string& path, bool fullAccess) {
    RegistryKey key = 0;
    const int32_t result = registry_.OpenKey(kCurrentUserRoot, path, fullAccess, &key);
    if (result == 0) registry_.CloseKey(key);
    return result;
  }

  // A text as it comes out of a buffer of the size that the value names.
  std::string Text(RegistryKey key, const std::string& name) {
    uint32_t type = 0;
    uint32_t size = 0;
    EXPECT_EQ(registry_.QueryType(key, name, &type, &size), 0);
    EXPECT_EQ(type, kRegistryText);
    std::string data(size, ' ');
    EXPECT_EQ(registry_.QueryData(key, name, &type, &data), 0);
    return data.substr(0, data.find('\0'));
  }

  OwnWindowsFolder windowsFolder_;
  // A key that no other run has made.
  std::string parent_ = "Software\\LogCheckerTests\\" +
                        std::filesystem::path(windowsFolder_.folder().Path()).filename().string();
  std::string path_ = parent_ + "\\Settings";
  RegistryCalls& registry_ = Os().registry;
};

TEST_F(RegistryTest, AMissingKeyCannotBeOpened) {
  EXPECT_EQ(Open(path_, false), kNotFound);
  EXPECT_EQ(Open(path_, true), kNotFound);
}

TEST_F(RegistryTest, AKeyIsMadeWithThoseAboveIt) {
  registry_.CloseKey(Create());
  EXPECT_EQ(Open(path_, false), 0);
  EXPECT_EQ(Open(path_, true), 0);
  EXPECT_EQ(Open(parent_, true), 0);
  EXPECT_EQ(Open(parent_ + "\\Other", true), kNotFound);
}

TEST_F(RegistryTest, MakingAKeyAgainKeepsItsValues) {
  RegistryKey key = Create();
  EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryText, "text"), 0);
  registry_.CloseKey(key);
  key = Create();
  EXPECT_EQ(Text(key, "Name"), "text");
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, TextsComeBackAsTheyWere) {
  const RegistryKey key = Create();
  for (const char* text : {"text", "", "  blanks  ", "\"quoted\"", "'quoted'", "a=b;c%41[d]",
                           "C:\\Logs\\Split 1", "caf\xE9 \x80", "two\r\nlines"}) {
    EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryText, text), 0) << text;
    EXPECT_EQ(Text(key, "Name"), text);
  }
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, NamesCanHoldAnyLetters) {
  const RegistryKey key = Create();
  EXPECT_EQ(registry_.SetValue(key, "A name = [with] ; signs", kRegistryText, "text"), 0);
  EXPECT_EQ(Text(key, "A name = [with] ; signs"), "text");
  EXPECT_EQ(Text(key, "A NAME = [WITH] ; SIGNS"), "text") << "whatever the case";
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, NumbersAreFourBytesLowestFirst) {
  const RegistryKey key = Create();
  const std::string bytes("\x78\x56\x34\xF2", 4);
  EXPECT_EQ(registry_.SetValue(key, "Number", kRegistryNumber, bytes), 0);
  uint32_t type = 0;
  uint32_t size = 0;
  EXPECT_EQ(registry_.QueryType(key, "Number", &type, &size), 0);
  EXPECT_EQ(type, kRegistryNumber);
  EXPECT_EQ(size, 4U);
  std::string data(4, '\0');
  EXPECT_EQ(registry_.QueryData(key, "Number", &type, &data), 0);
  EXPECT_EQ(data, bytes);
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, AValueCanChangeItsType) {
  const RegistryKey key = Create();
  EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryNumber, std::string(4, '\1')), 0);
  EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryText, "text"), 0);
  EXPECT_EQ(Text(key, "Name"), "text");
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, BytesBehindTheValueStayAsTheyWere) {
  const RegistryKey key = Create();
  EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryText, "abc"), 0);
  uint32_t type = 0;
  std::string data(8, '.');
  EXPECT_EQ(registry_.QueryData(key, "Name", &type, &data), 0);
  EXPECT_EQ(type, kRegistryText);
  EXPECT_EQ(data.substr(0, 3), "abc");
  EXPECT_EQ(data.substr(4), "....");
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, ASmallBufferIsRefused) {
  const RegistryKey key = Create();
  EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryText, "a longer text"), 0);
  uint32_t type = 0;
  std::string data(4, '.');
  EXPECT_EQ(registry_.QueryData(key, "Name", &type, &data), kMoreData);
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, AMissingValueIsNotFound) {
  const RegistryKey key = Create();
  uint32_t type = 0;
  uint32_t size = 0;
  std::string data(4, '.');
  EXPECT_EQ(registry_.QueryType(key, "Name", &type, &size), kNotFound);
  EXPECT_EQ(registry_.QueryData(key, "Name", &type, &data), kNotFound);
  EXPECT_EQ(registry_.DeleteValue(key, "Name"), kNotFound);
  registry_.CloseKey(key);
}

TEST_F(RegistryTest, ADeletedValueIsGoneAndTheKeyStays) {
  const RegistryKey key = Create();
  EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryText, "text"), 0);
  EXPECT_EQ(registry_.SetValue(key, "Other", kRegistryText, "kept"), 0);
  EXPECT_EQ(registry_.DeleteValue(key, "Name"), 0);
  uint32_t type = 0;
  uint32_t size = 0;
  EXPECT_EQ(registry_.QueryType(key, "Name", &type, &size), kNotFound);
  EXPECT_EQ(Text(key, "Other"), "kept");
  EXPECT_EQ(registry_.DeleteValue(key, "Other"), 0);
  registry_.CloseKey(key);
  EXPECT_EQ(Open(path_, true), 0);
}

TEST_F(RegistryTest, AClosedKeyGivesNothing) {
  const RegistryKey key = Create();
  EXPECT_EQ(registry_.SetValue(key, "Name", kRegistryText, "text"), 0);
  registry_.CloseKey(key);
  uint32_t type = 0;
  uint32_t size = 0;
  EXPECT_NE(registry_.QueryType(key, "Name", &type, &size), 0);
}

}  // namespace
}  // namespace logchecker
