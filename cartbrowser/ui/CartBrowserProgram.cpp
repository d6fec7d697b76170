#include "cartbrowser/ui/CartBrowserProgram.h"

#include <QApplication>
#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cartstore/AudioSettings.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "cartstore/ui/frmCartLocations.h"
#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "common/TextHelpers.h"
#include "common/UnreadableSettings.h"
#include "common/VersionData.h"
#include "common/ui/Buttons.h"
#include "common/ui/CutTextTips.h"
#include "common/ui/DesktopManners.h"
#include "common/ui/DisplayWatch.h"
#include "common/ui/Guard.h"
#include "common/ui/Guide.h"
#include "common/ui/Icons.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/SingleLineBoxes.h"
#include "common/ui/StopProgram.h"
#include "common/ui/VisibleFocus.h"
#include "platform/Platform.h"
#include "platform/StandardStreams.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr int kChosen = 0;
constexpr int kNothingChosen = 1;
constexpr int kTrouble = 2;

constexpr std::string_view kHelp =
    "Usage: cartbrowser [--settings FOLDER] [NUMBER]\n"
    "Shows the carts of the store and prints the number of the one that is chosen.\n"
    "\n"
    "  NUMBER             the cart to begin at\n"
    "  --settings FOLDER  the folder of VELMAR.INI\n"
    "  --help, --version  print this, or the version\n"
    "\n"
    "Exit status: 0 when a cart was chosen, 1 when none was, 2 for trouble.\n";

struct Arguments {
  std::optional<std::string> settingsFolder;  // as given
  std::string number;
};

int Refuse(std::string line) {
  std::replace(line.begin(), line.end(), '\n', ' ');
  WriteStandardError("cartbrowser: " + line + "\n");
  return kTrouble;
}

// The exit code of a program that has only this left to say.
int Print(const std::string& text) {
  return WriteStandardOutput(text) ? kChosen : Refuse("standard output could not be written");
}

// What is said instead of running; nothing when the program is to run. Needs no screen.
std::optional<std::string> Information(const std::vector<std::string>& arguments) {
  const auto given = [&](const char* name) {
    return std::find(arguments.begin(), arguments.end(), name) != arguments.end();
  };
  if (given("--help")) return std::string(kHelp);
  if (given("--version")) return "cartbrowser " + std::string(kVersion) + "\n";
  return std::nullopt;
}

// Empty when the arguments are good, else what is wrong with them.
std::string Parse(const std::vector<std::string>& given, Arguments* arguments) {
  constexpr std::string_view kSettings = "--settings=";
  constexpr int kDigits = 1;
  for (size_t i = 0; i < given.size(); ++i) {
    const std::string& argument = given[i];
    if (argument == "--settings") {
      if (i + 1 == given.size()) return "--settings needs a folder";
      arguments->settingsFolder = given[++i];
    } else if (argument.rfind(kSettings, 0) == 0) {
      arguments->settingsFolder = argument.substr(kSettings.size());
    } else if (!argument.empty() && IsTextOfKind(argument, kDigits) && arguments->number.empty()) {
      arguments->number = argument;
    } else {
      std::string text;
      FromArgument(argument, &text);
      return "unknown argument " + text + "; see cartbrowser --help";
    }
  }
  return "";
}

// A store that can't be opened is asked for once.
bool OpenStore() {
  if (TellIfUnreadable(kFamilySettingsFile)) return false;
  LoadAudioSettings(kFamilySettingsFile, "");
  if (TellIfUnreadable(AudiowallSettingsFile())) return false;
  if (OpenAudiowall(0, false) == 0) return true;
  {
    frmCartLocations dialog;
    dialog.SettingsFile = kFamilySettingsFile;
    dialog.exec();
  }
  return OpenAudiowall(0, false) == 0;
}

class Choice : public CartDisplay {
 public:
  void UpdateDisplay(int32_t cartNumber) override { cart = cartNumber; }

  int32_t cart = 0;
};

int Browse(const std::string& number, const ShowNotesWindow& showNotes) {
  Choice choice;
  frmCartBrowser browser(showNotes);
  browser.ParentForm = &choice;
  browser.Tag = number;
  // Its close button hides it too, and tells nobody.
  QObject::connect(&browser, &frmCartBrowser::hidden, [] { QCoreApplication::quit(); });
  browser.show();
  QApplication::exec();
  if (choice.cart <= 0) return kNothingChosen;
  return Print(std::to_string(choice.cart) + "\n");
}

void CloseStore(const CartBrowserParts& parts) {
  CloseAudiowall();
  parts.CloseFiles();
}

[[noreturn]] void Stop(const RunTimeError& error, const CartBrowserParts& parts) {
  StopProgram(error, [&parts] { CloseStore(parts); });
}

int Run(const Arguments& arguments, const CartBrowserParts& parts) {
  if (arguments.settingsFolder && !Os().system.SetWindowsFolder(*arguments.settingsFolder)) {
    return Refuse("the settings folder's name has characters that the code page can't hold");
  }
  QtUserInterface userInterface;
  UseStopRoutine([&parts](const RunTimeError& error) { Stop(error, parts); });
  int result = kTrouble;
  Guarded([&] {
    parts.LoadSettings();
    result = OpenStore() ? Browse(arguments.number, parts.ShowNotes)
                         : Refuse("the cart store can't be opened");
    CloseStore(parts);
  });
  return result;
}

}  // namespace

int RunCartBrowser(int argc, char** argv, const CartBrowserParts& parts) {
  if (const auto information = Information({argv + 1, argv + argc})) return Print(*information);
  Arguments arguments;
  const std::string wrong = Parse({argv + 1, argv + argc}, &arguments);
  if (!wrong.empty()) return Refuse(wrong);
  // Each picture of the search's animation would be made by way of the display's graphics library,
  // which does not survive the display.
  constexpr char kGraphics[] = "QT_XCB_GL_INTEGRATION";
  if (!qEnvironmentVariableIsSet(kGraphics)) qputenv(kGraphics, "none");
  DisplayWatch display("cartbrowser", [&parts] { CloseStore(parts); });
  JoinDesktop("org.logchecker.CartBrowser");
  const QApplication application(argc, argv);
  FollowTheme();
  display.DisplayIsThere();
  QApplication::setApplicationName("cartbrowser");
  QApplication::setApplicationVersion(kVersion);
  QApplication::setDesktopFileName("org.logchecker.CartBrowser");
  QApplication::setWindowIcon(IconNamed("program"));
  // The browser is only hidden, and a dialog before it does not end the program.
  QApplication::setQuitOnLastWindowClosed(false);
  KeepBoxesToOneLine();
  HoldButtonRules();
  HoldGuideKey();
  HoldCutTextTips();
  HoldVisibleFocus();
  return Run(arguments, parts);
}

}  // namespace logchecker
