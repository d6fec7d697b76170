// The made-up station that the program can be tried on.
#include "shell/ui/Trial.h"

#include <QDir>
#include <filesystem>

#include "common/ErrorState.h"
#include "common/Registry.h"
#include "common/Trouble.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/RecordingUi.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class TrialTest : public WindowTest {
 protected:
  TrialTest() {
    std::filesystem::create_directory(folder().Path("temporary"));
    SetTemporary("temporary");
  }
  ~TrialTest() override {
    UsePlatform(before_);
    if (temporary_.isNull()) {
      qunsetenv(kVariable);
    } else {
      qputenv(kVariable, temporary_);
    }
  }

  void SetTemporary(const std::string& name) {
    qputenv(kVariable, QByteArray::fromStdString(ToHostPath(folder().Path(name))));
    ASSERT_EQ(QDir(QDir::tempPath()),
              QDir(QString::fromStdString(ToHostPath(folder().Path(name)))));
  }
  // The folders of trials that there are.
  static QStringList Folders() {
    return QDir(QDir::tempPath()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  }
  static QDir WindowsFolder() {
    return QDir(QString::fromStdString(ToHostPath(Os().system.WindowsFolder())));
  }

  // Which of the two is read is the system's way.
  static inline const char* const kVariable = QDir::separator() == '/' ? "TMPDIR" : "TMP";

  Platform& before_ = Os();
  QByteArray temporary_ = qgetenv(kVariable);
};

TEST_F(TrialTest, HasASettingsFolderOfItsOwnThatGoesWithAllThatIsInIt) {
  QString folder;
  {
    Trial trial;
    ASSERT_TRUE(trial.Begin([](const std::string& into) {
      EXPECT_EQ(into, Os().system.WindowsFolder());
      Os().directories.MakeDirectory(into);
      Os().profiles.WriteString("General", "SplitName1", "Tried", into + "\\VELKLT.INI");
    }));
    folder = WindowsFolder().absolutePath();
    EXPECT_TRUE(QFileInfo::exists(folder + "/VELKLT.INI"));
    EXPECT_EQ(Folders().size(), 1);
  }
  EXPECT_FALSE(QFileInfo::exists(folder));
  EXPECT_EQ(Folders(), QStringList());
}

TEST_F(TrialTest, LeavesNothingInTheRegistry) {
  SetRegistryString(kCurrentUserRoot, "SOFTWARE\\Test", "Path", "C:\\KEPT", "");
  Platform& own = Os();
  Trial trial;
  ASSERT_TRUE(trial.Begin([](const std::string&) {}));
  EXPECT_EQ(GetRegistryString(kCurrentUserRoot, "SOFTWARE\\Test", "Path", "default"), "default");
  SetRegistryString(kCurrentUserRoot, "SOFTWARE\\Test", "Path", "C:\\TRIED", "");
  SetRegistryDWord(kCurrentUserRoot, "SOFTWARE\\Test", "Number", 7, 0);
  EXPECT_EQ(GetRegistryDWord(kCurrentUserRoot, "SOFTWARE\\Test", "Number", 3), 3);
  EXPECT_FALSE(RegistryKeyExists(kCurrentUserRoot, "SOFTWARE\\Test"));
  UsePlatform(own);
}

TEST_F(TrialTest, AStationThatCantBeWrittenIsToldWithWhatToDo) {
  {
    RecordingUi told;
    Trial trial;
    EXPECT_FALSE(trial.Begin([](const std::string&) { throw Trouble("disk full"); }));
    ASSERT_EQ(told.messages.size(), 1U);
    const std::string& text = told.messages[0].text;
    EXPECT_NE(text.find("disk full"), std::string::npos) << text;
    EXPECT_NE(text.find("Make room in the folder for temporary files, " +
                        QDir::toNativeSeparators(QDir::tempPath()).toStdString()),
              std::string::npos)
        << text;
  }
  EXPECT_EQ(Folders(), QStringList());
}

TEST_F(TrialTest, WithoutAFolderForTemporaryFilesNothingIsWritten) {
  folder().WriteFile("file", "");
  SetTemporary("file");
  RecordingUi told;
  Trial trial;
  EXPECT_FALSE(trial.Begin([](const std::string&) { ADD_FAILURE(); }));
  EXPECT_EQ(told.messages.size(), 1U);
}

}  // namespace
}  // namespace logchecker
