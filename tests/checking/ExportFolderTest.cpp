#include "checking/ExportFolder.h"

#include "common/Registry.h"
#include "common/SystemHelpers.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

// On Windows the value is the user's own, so it is put back.
class ExportFolderTest : public StationTest {
 protected:
  ExportFolderTest() : before_(Stored()) { Forget(); }
  ~ExportFolderTest() override {
    Forget();
    SetRegistryString(kCurrentUserRoot, kExportKey, kExportValue, before_, kNone);
  }

  static std::string Stored() {
    return GetRegistryString(kCurrentUserRoot, kExportKey, kExportValue, kNone);
  }
  static void Forget() {
    SetRegistryString(kCurrentUserRoot, kExportKey, kExportValue, kNone, kNone);
  }

  static constexpr char kNone[] = "(none)";

 private:
  std::string before_;
};

TEST_F(ExportFolderTest, TheDocumentsFolderStandsForNone) {
  EXPECT_FALSE(GetSpecialPath(kDocumentsFolder).empty());
  EXPECT_EQ(GetSpecialPath(kDocumentsFolder), RememberedExportFolder());
}

TEST_F(ExportFolderTest, AnotherFolderIsStoredWithoutItsSeparator) {
  RememberExportFolder("D:\\EXPORTS\\a.csv");
  EXPECT_EQ("D:\\EXPORTS", Stored());
  EXPECT_EQ("D:\\EXPORTS", RememberedExportFolder());
}

TEST_F(ExportFolderTest, AnExportIntoTheDocumentsFolderLeavesNoValue) {
  RememberExportFolder("D:\\EXPORTS\\a.csv");
  RememberExportFolder(GetSpecialPath(kDocumentsFolder) + "\\a.csv");
  EXPECT_EQ(kNone, Stored());
}

TEST_F(ExportFolderTest, ANameWithoutAFolderLeavesAnEmptyText) {
  RememberExportFolder("a.csv");
  EXPECT_EQ("", Stored());
  EXPECT_EQ("", RememberedExportFolder());
}

TEST_F(ExportFolderTest, ASpecialFolderThatTheSystemFailsToNameIsEmpty) {
  os.script.FailNamed("Shell.SpecialFolder", 0, kPathNotFound);
  EXPECT_EQ("", GetSpecialPath(kDocumentsFolder));
  EXPECT_EQ("", RememberedExportFolder());
}

}  // namespace
}  // namespace logchecker
