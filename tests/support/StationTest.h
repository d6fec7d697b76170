// A test with a station of its own: an empty Windows folder, every global as at the start of the
// program, a recording user interface, and a scripted platform.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "cartstore/CartRecord.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/RecordingUi.h"
#include "tests/support/ScriptedPlatform.h"

namespace logchecker {

class StationTest : public ::testing::Test {
 protected:
  StationTest();
  ~StationTest() override;

  const TempFolder& folder() const { return windowsFolder_.folder(); }
  // A station path below the Windows folder.
  std::string Path(std::string_view name) const { return folder().Path(name); }

  // Makes the folders of parts 1 to the last in use ("part1" and so on), writes their locations
  // into VELMAR.INI and the number of carts into Audwall.ini, and reads the settings. The list
  // files are not made.
  void MakeStore(int32_t numberOfCarts);
  // The same, with list files full of blank records, opened.
  void OpenStore(int32_t numberOfCarts);
  // Writes a cart's record into its part's list file.
  void PutCart(int32_t number, const CartRecord& record);
  // A cart with audio of this length in seconds.
  void PutCart(int32_t number, float length);

  // Puts another list file in the place of a part's, as a restore does: all of its carts are this
  // long. The one that was lies beside it afterwards.
  void ReplaceListFile(int16_t part, float length);

  // Names the split's log folder and writes its log of `day`, called YYMMDD.LOG.
  void WriteLog(int16_t split, int32_t day, std::string_view text);

  RecordingUi ui;
  ScriptedPlatform os;

 private:
  OwnWindowsFolder windowsFolder_;
};

// A record with these texts in its first line and this length, played from beginning to end.
CartRecord RecordOfLength(float seconds, std::string_view line1 = "A CART");

// Sets every global of every room back to what it is at the start of the program.
void ResetGlobals();

}  // namespace logchecker
