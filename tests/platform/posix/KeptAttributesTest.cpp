// What a file keeps when its content is replaced: all that it keeps when it is written plainly.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/Platform.h"
#include "platform/posix/Replacement.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/posix/AsUser.h"

namespace logchecker {
namespace {

class KeptAttributesTest : public ::testing::Test {
 protected:
  KeptAttributesTest() { chmod(folder().Path().c_str(), 0777); }
  const TempFolder& folder() const { return windows_.folder(); }
  std::string Path(const char* name) const { return folder().Path(name); }

  struct stat FactsOf(const char* name) const {
    struct stat facts {};
    EXPECT_EQ(0, stat(Path(name).c_str(), &facts)) << name;
    return facts;
  }
  // What another program of the system says of the file's access list.
  std::string AccessListOf(const char* name) const {
    const std::string command =
        "getfacl -cnp '" + Path(name) + "' >'" + listing_.Path("list") + "' 2>&1";
    EXPECT_EQ(0, std::system(command.c_str()));
    return listing_.ReadFile("list");
  }
  void SetAccessList(const char* name, const std::string& entries) const {
    const std::string command = "setfacl -m " + entries + " '" + Path(name) + "'";
    ASSERT_EQ(0, std::system(command.c_str()));
  }
  // As Bob, whose files the settings are not.
  int BobWrites(const char* name, const std::string& bytes) const {
    return AsUser(kBob, [&] { return ReplaceFile(Path(name), bytes); });
  }
  void WriteOfAlice(const char* name, mode_t mode) const {
    folder().WriteFile(name, "alice's");
    GiveTo(kAlice, Path(name).c_str());
    chmod(Path(name).c_str(), mode);
  }
  void ExpectSame(const struct stat& before, const char* name) const {
    const struct stat after = FactsOf(name);
    EXPECT_EQ(before.st_uid, after.st_uid);
    EXPECT_EQ(before.st_gid, after.st_gid);
    EXPECT_EQ(before.st_mode, after.st_mode);
    EXPECT_EQ(before.st_nlink, after.st_nlink);
  }

  OwnWindowsFolder windows_;
  TempFolder listing_;
};

TEST_F(KeptAttributesTest, AnotherUsersSettingsStayHis) {
  WriteOfAlice("VELMAR.INI", 0660);
  folder().WriteFile("VELMAR.INI", "[FileLocations]\r\n");
  const struct stat before = FactsOf("VELMAR.INI");
  EXPECT_EQ(kNoError, AsUser(kBob, [] {
              return Os().profiles.WriteString("FileLocations", "Carts1", "C:\\A", "VELMAR.INI");
            }));
  ExpectSame(before, "VELMAR.INI");
  EXPECT_EQ("[FileLocations]\r\nCarts1=C:\\A\r\n", folder().ReadFile("VELMAR.INI"));
  EXPECT_EQ(kNoError, AsUser(kAlice, [] {
              const std::string carts =
                  Os().profiles.GetString("FileLocations", "Carts1", "", 255, "VELMAR.INI");
              return carts == "C:\\A" ? 0 : 1;
            }));
  EXPECT_EQ(1U, folder().Count());
}

TEST_F(KeptAttributesTest, AGroupThatIsNotTheWritersFirstStays) {
  folder().WriteFile("mine.ini", "old");
  GiveTo(kBob, Path("mine.ini").c_str());
  chmod(Path("mine.ini").c_str(), 0640);
  const struct stat before = FactsOf("mine.ini");
  EXPECT_EQ(kNoError, BobWrites("mine.ini", "new"));
  ExpectSame(before, "mine.ini");
  EXPECT_NE(before.st_ino, FactsOf("mine.ini").st_ino) << "the owner can make a new file the same";
  EXPECT_EQ("new", folder().ReadFile("mine.ini"));
}

TEST_F(KeptAttributesTest, AnAccessListStays) {
  WriteOfAlice("list.ini", 0640);
  SetAccessList("list.ini", "u:54321:rw,u:12346:rw");
  const std::string before = AccessListOf("list.ini");
  EXPECT_NE(std::string::npos, before.find("user:54321:rw-"));
  EXPECT_EQ(kNoError, BobWrites("list.ini", "bob's"));
  EXPECT_EQ(before, AccessListOf("list.ini"));
  EXPECT_EQ(kNoError, ReplaceFile(Path("list.ini"), "new"));
  EXPECT_EQ(before, AccessListOf("list.ini"));
  EXPECT_EQ("new", folder().ReadFile("list.ini"));
  EXPECT_EQ(1U, folder().Count());
}

TEST_F(KeptAttributesTest, AFileWithoutAListGetsNoneFromItsFolder) {
  folder().WriteFile("plain.ini", "old");
  chmod(Path("plain.ini").c_str(), 0604);
  const std::string before = AccessListOf("plain.ini");
  SetAccessList("", "d:u:54321:rw");
  EXPECT_EQ(kNoError, ReplaceFile(Path("plain.ini"), "new"));
  EXPECT_EQ(before, AccessListOf("plain.ini"));
}

TEST_F(KeptAttributesTest, ANewFileIsAsOneThatIsWrittenPlainly) {
  SetAccessList("", "d:u:54321:rwx,d:g::rwx,d:o::-");
  folder().WriteFile("plain", "x");
  EXPECT_EQ(kNoError, ReplaceFile(Path("replaced"), "x"));
  EXPECT_EQ(AccessListOf("plain"), AccessListOf("replaced"));
  EXPECT_EQ(FactsOf("plain").st_mode, FactsOf("replaced").st_mode);
}

TEST_F(KeptAttributesTest, EveryNameOfAFileHasTheNewContent) {
  folder().WriteFile("one.ini", "old and longer");
  std::filesystem::create_hard_link(Path("one.ini"), Path("two.ini"));
  EXPECT_EQ(kNoError, ReplaceFile(Path("one.ini"), "new"));
  EXPECT_EQ("new", folder().ReadFile("two.ini"));
  EXPECT_EQ(kNoError, ReplaceFile(Path("two.ini"), "newer and longer yet"));
  EXPECT_EQ("newer and longer yet", folder().ReadFile("one.ini"));
  EXPECT_EQ(2U, FactsOf("one.ini").st_nlink);
}

TEST_F(KeptAttributesTest, AChainOfLinksStays) {
  std::filesystem::create_directory(Path("there"));
  std::filesystem::create_symlink("there/second", Path("first"));
  std::filesystem::create_symlink("real.ini", Path("there/second"));
  for (const char* content : {"made", "changed"}) {
    EXPECT_EQ(kNoError, ReplaceFile(Path("first"), content));
    EXPECT_TRUE(std::filesystem::is_symlink(Path("first")));
    EXPECT_TRUE(std::filesystem::is_symlink(Path("there/second")));
    EXPECT_EQ(content, folder().ReadFile("there/real.ini"));
  }
}

TEST_F(KeptAttributesTest, ACircleOfLinksIsRefusedAndStays) {
  std::filesystem::create_symlink("b", Path("a"));
  std::filesystem::create_symlink("a", Path("b"));
  EXPECT_EQ(kPathNotFound, ReplaceFile(Path("a"), "x"));
  EXPECT_TRUE(std::filesystem::is_symlink(Path("a")));
  EXPECT_EQ(2U, folder().Count());
}

TEST_F(KeptAttributesTest, AFileThatMayBeWrittenInAFolderThatMayNotIsWritten) {
  WriteOfAlice("out.csv", 0666);
  const struct stat before = FactsOf("out.csv");
  chmod(folder().Path().c_str(), 0555);
  EXPECT_EQ(kNoError, BobWrites("out.csv", "longer than it was"));
  EXPECT_EQ("longer than it was", folder().ReadFile("out.csv"));
  EXPECT_EQ(kNoError, BobWrites("out.csv", "short"));
  EXPECT_EQ("short", folder().ReadFile("out.csv"));
  EXPECT_EQ(kPermissionDenied, BobWrites("new.csv", "no"));
  chmod(folder().Path().c_str(), 0777);
  ExpectSame(before, "out.csv");
  EXPECT_EQ(1U, folder().Count());
}

TEST_F(KeptAttributesTest, WhereNobodyMayTakeAnothersFileAwayItIsWritten) {
  chmod(folder().Path().c_str(), 01777);
  WriteOfAlice("out.csv", 0666);
  const struct stat before = FactsOf("out.csv");
  EXPECT_EQ(kNoError, BobWrites("out.csv", "bob's"));
  EXPECT_EQ("bob's", folder().ReadFile("out.csv"));
  ExpectSame(before, "out.csv");
  EXPECT_EQ(1U, folder().Count());
}

}  // namespace
}  // namespace logchecker
