#include "splitlogs/SplitLog.h"

#include <algorithm>
#include <optional>

#include "cartstore/LoadCartInfo.h"
#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
#include "common/Numbers.h"
#include "common/PathText.h"
#include "common/TextHelpers.h"
#include "common/TextLines.h"
#include "common/TimeText.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"
#include "splitlogs/AdvertLog_FN.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

constexpr size_t kTimeTextLength = 5;  // of "06:00"

// Puts the lines of one log into the grid, row by row.
class GridFiller {
 public:
  GridFiller(LogGrid& grid, const std::string& chainCode) : grid_(grid), chainCode_(chainCode) {}

  int32_t row() const { return row_; }

  // The grid grows only once the row is beyond its count: a row that equals it stops the program,
  // whatever the line that comes there. This is meant.
  void PrepareRow() {
    if (row_ > kMostRows) {
      throw RunTimeError(kInvalidGridRow, "more than " + std::to_string(kMostRows) + " rows");
    }
    if (row_ > grid_.Rows()) grid_.SetRows(grid_.Rows() + kRowsToGrowBy);
    grid_.SetRow(row_);
  }

  // `position` is where the line began in the file, counted from 1.
  void Add(std::string_view text, int64_t position) {
    if (Trim(text).empty()) {
      EndBreak();
      return;
    }
    const LogLine line(text);
    if (Counts(line)) AddAdvert(line, position);
  }

 private:
  // Whether the line is of the split's chain. Most lines have the code of the one before.
  bool Counts(const LogLine& line) {
    if (chainCode_.empty()) return true;
    if (line.TXChainColumns() != lastColumns_) {
      lastColumns_ = line.TXChainColumns();
      lastCounts_ = line.TXChainCode() == chainCode_;
    }
    return lastCounts_;
  }

  void AddAdvert(const LogLine& line, int64_t position) {
    if (!inBreak_) {
      inBreak_ = true;
      const TimeDisplay time = TimeDisplay::OfTime(line.Time(), kMaskHoursMinutesSeconds);
      grid_.SetText(row_, kTimeColumn, std::string_view(time).substr(0, kTimeTextLength));
    }
    AdvertCells cells;
    cells.position = position;
    cells.description = line.Description();
    cells.reference = line.Reference();
    cells.cart = line.Cart();
    cells.hundredths = gGeneralSettings.DisplayAdvertHH;
    cells.lengthColour = kRed;
    CartLengths cart;
    LoadCartLengths(cart, cells.cart);
    if (cart.PlayLength > 0) {
      cells.length = cart.Length;
      cells.lengthColour = kWhite;
      breakTotal_ += cart.Length;
    }
    grid_.SetColumn(kLengthColumn);
    grid_.SetAdvert(row_, cells);
    ++row_;
  }

  void EndBreak() {
    grid_.SetText(row_, kPositionColumn, "");
    if (!inBreak_) return;
    if (breakTotal_ > 0) {
      grid_.SetLength(row_, kLengthColumn, breakTotal_, gGeneralSettings.DisplayBreakHH);
    } else {
      grid_.SetText(row_, kLengthColumn, kNoTimeText);
    }
    row_ += 2;
    breakTotal_ = 0;
    inBreak_ = false;
  }

  LogGrid& grid_;
  const std::string& chainCode_;
  int32_t row_ = 1;
  bool inBreak_ = false;
  float breakTotal_ = 0;  // seconds, rounded to single precision at each addition
  // What an empty line would have in the columns of the code.
  std::string lastColumns_;
  bool lastCounts_ = chainCode_.empty();
};

// Holds back the grid's painting for as long as it lives.
class PaintingHeldBack {
 public:
  explicit PaintingHeldBack(LogGrid& grid) : grid_(grid) { grid_.SetRedraw(false); }
  PaintingHeldBack(const PaintingHeldBack&) = delete;
  PaintingHeldBack& operator=(const PaintingHeldBack&) = delete;
  ~PaintingHeldBack() { grid_.SetRedraw(true); }

 private:
  LogGrid& grid_;
};

[[noreturn]] void StopWith(int32_t error) {
  Succeeded(error);
  throw RunTimeError(error, "");
}

void RequireSuccess(int32_t error) {
  if (error != kNoError) StopWith(error);
}

}  // namespace

SplitLog::SplitLog() = default;
SplitLog::~SplitLog() = default;

void SplitLog::SetSplitNumberLabel(const std::string& text) {
  splitNumber_ = std::max(ToInt16(Val(text)), int16_t{1});
  UpdateInfo();
}

void SplitLog::UpdateInfo() {
  caption_ = SettingsOf(splitNumber_).SplitName;
  CaptionChanged();
}

void SplitLog::CaptionChanged() {}

void SplitLog::LogLoaded() {}

void SplitLog::LoadLogFile() {
  SplitSettings& settings = SettingsOf(splitNumber_);
  const std::string path = GetLogSourcePath(splitNumber_, settings.LogDate, false);
  TellLookalike(path);
  OpenLogFile(splitNumber_, path);
  // An older log that stays open keeps its day.
  if (settings.CurrentLogPath == path) settings.CurrentLogDay = settings.LogDate;
  gridLog.SetRows(1);
  shown_.reset();
  if (settings.LogFileNumber != 0) ShowOpenLog();
  LogLoaded();
}

void SplitLog::ShowOpenLog() {
  const SplitSettings& settings = SettingsOf(splitNumber_);
  std::optional<PaintingHeldBack> heldBack(gridLog);
  const BusyPointer busy;
  try {
    FillGrid();
  } catch (const RunTimeError& error) {
    const std::string where = error.concerning().empty() ? "" : ", " + error.concerning();
    throw RunTimeError(error.number(), "split " + std::to_string(splitNumber_) + " \"" +
                                           settings.SplitName + "\", " +
                                           ShownPath(settings.CurrentLogPath) + where);
  }
  shown_ = ShownLog{settings.CurrentLogPath, settings.CurrentLogDay};
  // What has been held back is painted under the hourglass still.
  heldBack.reset();
}

void SplitLog::FillGrid() {
  const SplitSettings& settings = SettingsOf(splitNumber_);
  const int16_t file = settings.LogFileNumber;
  RequireSuccess(Os().files.Seek(file, 1));
  gridLog.SetRows(kRowsAtFirst);
  GridFiller filler(gridLog, settings.LogTXChainCode);
  TextLines lines(file);
  while (true) {
    bool atEnd = false;
    RequireSuccess(lines.AtEnd(&atEnd));
    if (atEnd) break;
    filler.PrepareRow();
    const int64_t position = lines.Position();
    ClearError();
    const std::string_view line = lines.Next();
    // A log of which a part can't be read must not pass for a short one.
    RequireSuccess(gErrorState.Number);
    filler.Add(line, position);
  }
  gridLog.SetRows(filler.row());
}

bool SplitLog::CheckForNewLogFile(int32_t /*input*/, int32_t& /*output*/) const { return false; }

}  // namespace logchecker
