// The load against its steps, written down plainly, on random files.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/GeneralSettings.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
#include "splitlogs/AdvertLog_FN.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

struct PlainRow {
  std::array<std::string, kLogColumns> texts;
  int32_t colour = kGridOwnColour;  // of the Length cell
};

std::string PlainReadLine(const std::string& file, size_t& at) {
  std::string line;
  char c = file[at++];
  while (c != '\n' && at < file.size()) {
    if (c != '\r') line += c;
    c = file[at++];
  }
  return line;
}

// Rows from 1; the header is left empty.
std::vector<PlainRow> PlainLoad(const std::string& file, const std::string& chain) {
  std::vector<PlainRow> rows(file.size() * 3 + 3);
  size_t row = 1;
  bool inBreak = false;
  volatile float breakTotal = 0;
  size_t at = 0;
  while (at < file.size()) {
    const size_t position = at + 1;
    const std::string line = PlainReadLine(file, at);
    std::array<std::string, kLogColumns>& texts = rows[row].texts;
    if (Trim(line).empty()) {
      if (!inBreak) continue;
      texts[4] = breakTotal > 0
                     ? FormatTimeDisplay(breakTotal, gGeneralSettings.DisplayBreakHH ? 201 : 202)
                     : "--:--";
      row += 2;
      breakTotal = 0;
      inBreak = false;
      continue;
    }
    if (!chain.empty() && GetLineTXChainCode(line) != chain) continue;
    texts[5] = std::to_string(position);
    if (!inBreak) texts[0] = FormatTimeDisplay(GetLineTime(line), 2).substr(0, 5);
    inBreak = true;
    texts[1] = GetLineDescription(line);
    texts[2] = GetLineReference(line);
    texts[3] = std::to_string(GetLineCart(line));
    CartInfo info;
    LoadCartInfo(info, GetLineCart(line));
    if (info.PlayLength > 0) {
      rows[row].colour = 0xFFFFFF;
      texts[4] = FormatTimeDisplay(info.Length, gGeneralSettings.DisplayAdvertHH ? 201 : 202);
      breakTotal = breakTotal + info.Length;
    } else {
      rows[row].colour = 255;
      texts[4] = "--:--";
    }
    ++row;
  }
  rows.resize(row);
  return rows;
}

rc::Gen<std::string> Digits(int count) {
  return rc::gen::container<std::string>(static_cast<size_t>(count), rc::gen::inRange('0', '9'));
}

std::string RandomAdvert() {
  const std::string time = *rc::gen::weightedElement<std::string>(
      {{4, "06:00"}, {1, "00:00"}, {1, "23:59"}, {1, "24:00"}, {1, "24:30"}, {1, "ab:cd"}});
  const std::string chain = *rc::gen::element<std::string>("NTH ", "nth ", "STH ", "    ", "NT");
  const std::string cart = std::to_string(*rc::gen::inRange(0, 13));
  const std::string text = *rc::gen::container<std::string>(rc::gen::inRange(' ', 'z'));
  if (*rc::gen::weightedElement<bool>({{1, true}, {3, false}})) {
    return time + "|" + chain + " " + std::string(4 - cart.size(), ' ') + cart + " " + text;
  }
  return time + ":" + *Digits(2) + "|" + chain + " " + std::string(8 - cart.size(), '0') + cart +
         " " + text + std::string(30, ' ') + "REF";
}

std::string RandomLog() {
  std::string log;
  const int lines = *rc::gen::inRange(0, 40);
  for (int i = 0; i < lines; ++i) {
    const int kind = *rc::gen::weightedElement<int>({{8, 0}, {4, 1}, {1, 2}});
    if (kind == 0) log += RandomAdvert();
    if (kind == 1) log += *rc::gen::element<std::string>("", " ", "   ", "\r");
    if (kind == 2) log += *rc::gen::arbitrary<std::string>();
    log += *rc::gen::element<std::string>("\n", "\r\n");
  }
  if (*rc::gen::arbitrary<bool>() && !log.empty()) log.pop_back();
  return log;
}

class LoadLogFileProperty : public StationTest {
 protected:
  LoadLogFileProperty() {
    OpenStore(10);
    // The carts from 8 on stay blank.
    for (int32_t cart = 1; cart <= 6; ++cart) PutCart(cart, static_cast<float>(cart) * 10.1F);
    CartRecord record = RecordOfLength(30);
    record.Length = 0;
    PutCart(7, record);
  }
};

RC_GTEST_FIXTURE_PROP(LoadLogFileProperty, EqualsItsStepsWrittenPlainly, ()) {
  gGeneralSettings.DisplayAdvertHH = *rc::gen::arbitrary<bool>();
  gGeneralSettings.DisplayBreakHH = *rc::gen::arbitrary<bool>();
  SettingsOf(1).LogTXChainCode = *rc::gen::element<std::string>("", "NTH", "STH", "NTH ");
  const std::string log = RandomLog();
  WriteLog(1, kDay, log);
  gSplits(1).LoadLogFile();
  const LogGrid& grid = gSplits(1).gridLog;
  const std::vector<PlainRow> rows = PlainLoad(log, SettingsOf(1).LogTXChainCode);
  RC_ASSERT(grid.Rows() == static_cast<int32_t>(rows.size()));
  for (int32_t row = 1; row < grid.Rows(); ++row) {
    const PlainRow& plain = rows[static_cast<size_t>(row)];
    for (int32_t column = 0; column < kLogColumns; ++column) {
      RC_ASSERT(grid.Text(row, column) == plain.texts[static_cast<size_t>(column)]);
    }
    RC_ASSERT(grid.BackColour(row, kLengthColumn) == plain.colour);
  }
}

}  // namespace
}  // namespace logchecker
