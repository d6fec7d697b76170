#include "cartstore/AudioSettings.h"

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/GeneralSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class AudioSettingsTest : public StationTest {
 protected:
  void Load(const std::string& family, const std::string& store) {
    Os().directories.MakeDirectory(Path("wall"));
    folder().WriteFile("VELMAR.INI", "[FileLocations]\r\nCarts1=" + Path("wall") + "\r\n" + family);
    folder().WriteFile("wall/Audwall.ini", store);
    LoadAudioSettings("VELMAR.INI", "");
  }
  std::string StoreFile() const { return folder().ReadFile("wall/Audwall.ini"); }
};

TEST_F(AudioSettingsTest, AFileWithoutKeysGivesTheDefaults) {
  LoadAudioSettings("VELMAR.INI", "");
  EXPECT_EQ(9999, gNumberOfCarts);
  EXPECT_FALSE(gAudioSettings.UseIndividualCartListFiles);
  for (int16_t part = 1; part <= 11; ++part) EXPECT_EQ("", PartEntry(part).Path);
  EXPECT_EQ(static_cast<int32_t>(0x8000000FU), gBlankCartInfo.BackColor);
  EXPECT_EQ(static_cast<int32_t>(0x80000012U), gBlankCartInfo.ForeColor);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(AudioSettingsTest, EachKeyIsReadFromItsPlace) {
  Load(
      "Carts11=D:\\ELEVEN\r\n[Audio]\r\nUseIndividualCartListFiles=7\r\nEmptyCartBackColor=255\r\n"
      "EmptyCartForeColor=-2147483640\r\n",
      "[Audiowall]\r\nNoCarts=12000\r\nVersion=3.1\r\n");
  EXPECT_EQ(Path("wall"), PartEntry(1).Path);
  EXPECT_EQ("D:\\ELEVEN", PartEntry(11).Path);
  EXPECT_TRUE(gAudioSettings.UseIndividualCartListFiles);
  EXPECT_EQ(12000, gNumberOfCarts);
  EXPECT_EQ(255, gBlankCartInfo.BackColor);
  EXPECT_EQ(255, gBlankCartRecord.BackColor);
  EXPECT_EQ(static_cast<int32_t>(0x80000008U), gBlankCartInfo.ForeColor);
  EXPECT_EQ(gBlankCartInfo.ForeColor, gBlankCartRecord.ForeColor);
}

TEST_F(AudioSettingsTest, EachPartHasItsOwnKey) {
  std::string text = "[FileLocations]\r\n";
  for (int part = 1; part <= 11; ++part) {
    text += "Carts" + std::to_string(part) + "=P" + std::to_string(part) + "\r\n";
  }
  folder().WriteFile("VELMAR.INI", text);
  LoadAudioSettings("VELMAR.INI", "");
  for (int16_t part = 1; part <= 11; ++part) {
    EXPECT_EQ("P" + std::to_string(part), PartEntry(part).Path);
  }
}

TEST_F(AudioSettingsTest, TheRegistryIsNeverRead) {
  Os().directories.MakeDirectory(Path("wall"));
  LoadAudioSettings("VELMAR.INI", "Software");
  for (const std::string& call : os.script.Calls()) EXPECT_NE(0U, call.find("Registry.")) << call;
}

TEST_F(AudioSettingsTest, AStoreWithoutItsFileHasTheUsualNumberOfCarts) {
  Load("", "[Audiowall]\r\nNoCarts=20\r\nVersion=2.6\r\n");
  EXPECT_EQ(20, gNumberOfCarts);
  Load("", "");
  EXPECT_EQ(9999, gNumberOfCarts);
  EXPECT_EQ(10, PartsInUse());
}

TEST_F(AudioSettingsTest, ALocationArrivesCutAt254Characters) {
  folder().WriteFile("VELMAR.INI", "[FileLocations]\r\nCarts2=" + std::string(300, 'P') + "\r\n");
  LoadAudioSettings("VELMAR.INI", "");
  EXPECT_EQ(std::string(254, 'P'), PartEntry(2).Path);
}

TEST_F(AudioSettingsTest, AStoreBelow26IsBackedUpAndMarkedOnce) {
  struct Case {
    const char* version;
    bool upgraded;
  };
  for (const Case& row :
       {Case{"2.6", false}, Case{"2.60", false}, Case{"3", false}, Case{"2.5999", true},
        Case{"2.5", true}, Case{"0.0", true}, Case{"", true}, Case{"new", true}}) {
    Load("", std::string("[Audiowall]\r\nVersion=") + row.version + "\r\n");
    EXPECT_EQ(row.upgraded ? "[Audiowall]\r\nVersion=2.6\r\n"
                           : std::string("[Audiowall]\r\nVersion=") + row.version + "\r\n",
              StoreFile())
        << row.version;
  }
  Load("", "");
  EXPECT_NE(std::string::npos, StoreFile().find("Version=2.6"));
}

TEST_F(AudioSettingsTest, TheListFilesAreCopiedIntoADatedFolder) {
  os.now = 46402.5;
  Os().directories.MakeDirectory(Path("wall"));
  folder().WriteFile("wall/Carts1.lst", "one");
  Load("", "");
  EXPECT_EQ("one", folder().ReadFile("wall/Backups/2027-01-15/Carts1.lst"));
  EXPECT_EQ("one", folder().ReadFile("wall/Carts1.lst"));
}

TEST_F(AudioSettingsTest, AStoreOfThePresentVersionIsNotBackedUp) {
  Os().directories.MakeDirectory(Path("wall"));
  folder().WriteFile("wall/Carts1.lst", "one");
  Load("", "[Audiowall]\r\nVersion=2.6\r\n");
  EXPECT_FALSE(folder().Exists("wall/Backups"));
  Load("", StoreFile());
  EXPECT_FALSE(folder().Exists("wall/Backups"));
  Load("", "[Audiowall]\r\nVersion=2.5\r\n");
  EXPECT_TRUE(folder().Exists("wall/Backups"));
}

TEST_F(AudioSettingsTest, TheVersionIsMarkedAlsoWhenTheBackupFailed) {
  Os().directories.MakeDirectory(Path("wall"));
  folder().WriteFile("wall/Carts1.lst", "one");
  os.script.FailNamed("Shell.Run", 0, kDiskFull);
  Load("", "");
  EXPECT_TRUE(os.script.HasFailed());
  EXPECT_NE(std::string::npos, StoreFile().find("Version=2.6"));
}

TEST_F(AudioSettingsTest, WithoutPartOneTheStoreIsNeverUpgraded) {
  LoadAudioSettings("VELMAR.INI", "");
  EXPECT_EQ(0, os.script.CountOf("Profiles.WriteString"));
  EXPECT_EQ("\\Audwall.ini", AudiowallSettingsFile());
}

class BackupTest : public AudioSettingsTest {
 protected:
  BackupTest() {
    os.now = 46402.5;
    for (const int16_t part : {int16_t{1}, int16_t{2}, int16_t{3}}) {
      const std::string n = std::to_string(part);
      Os().directories.MakeDirectory(Path("p" + n));
      PartEntry(part).Path = Path("p" + n);
      if (part != 2) folder().WriteFile("p" + n + "/Carts" + n + ".LST", n);
    }
  }
  bool IsCopied(const std::string& n) const {
    return folder().Exists("p" + n + "/Backups/2027-01-15/Carts" + n + ".LST") ||
           folder().Exists("p" + n + "/Backups/2027-01-15/Carts" + n + ".lst");
  }
};

TEST_F(BackupTest, PartsWithoutAListFileArePassedOver) {
  BackupCartLists(false);
  EXPECT_TRUE(IsCopied("1"));
  EXPECT_FALSE(folder().Exists("p2/Backups"));
  EXPECT_TRUE(IsCopied("3"));
}

TEST_F(BackupTest, PartsWithoutALocationAreNotLookedFor) {
  gAudiowallParts = {};
  os.script.Clear();
  BackupCartLists(true);
  EXPECT_TRUE(os.script.Calls().empty());
}

TEST_F(BackupTest, TheEleventhPartIsCopiedToo) {
  gNumberOfCarts = 1000;  // the parts in use don't matter
  PartEntry(11).Path = Path("p2");
  folder().WriteFile("p2/Carts11.LST", "11");
  BackupCartLists(false);
  EXPECT_TRUE(folder().Exists("p2/Backups/2027-01-15/Carts11.LST"));
}

TEST_F(BackupTest, ACopyIsLookedForOneFolderTooHigh) {
  BackupCartLists(false);
  folder().WriteFile("p1/Carts1.LST", "newer");
  BackupCartLists(false);  // the copy below the date is not seen, and is made again
  EXPECT_EQ("newer", folder().ReadFile("p1/Backups/2027-01-15/Carts1.LST"));
  folder().WriteFile("p1/Backups/Carts1.LST", "seen");
  folder().WriteFile("p1/Carts1.LST", "newest");
  BackupCartLists(false);
  EXPECT_EQ("newer", folder().ReadFile("p1/Backups/2027-01-15/Carts1.LST"));
  BackupCartLists(true);
  EXPECT_EQ("newest", folder().ReadFile("p1/Backups/2027-01-15/Carts1.LST"));
}

class TitleUi : public RecordingUi {
 public:
  void ShowFileProgress(const std::string& title, int64_t /*done*/, int64_t /*total*/) override {
    if (titles.empty() || titles.back() != title) titles.push_back(title);
  }
  std::vector<std::string> titles;
};

TEST_F(BackupTest, TheProgressOfEachCopyNamesItsPartAndNothingIsAsked) {
  TitleUi titled;
  BackupCartLists(false);
  BackupCartLists(true);
  EXPECT_EQ((std::vector<std::string>{
                "Backing up Audio Wall lists - Part 1", "Backing up Audio Wall lists - Part 3",
                "Backing up Audio Wall lists - Part 1", "Backing up Audio Wall lists - Part 3"}),
            titled.titles);
  EXPECT_TRUE(titled.messages.empty()) << "a copy of the same day is replaced";
}

TEST_F(BackupTest, TheFirstFailureEndsIt) {
  for (const char* call : {"Directories.FirstName", "Directories.MakeDirectory", "Shell.Run"}) {
    os.script.Clear();
    os.script.FailNamed(call, 1, kDiskFull);
    BackupCartLists(false);
    EXPECT_FALSE(IsCopied("3")) << call;
  }
}

}  // namespace
}  // namespace logchecker
