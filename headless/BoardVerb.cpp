#include "headless/BoardVerb.h"

#include <utility>

#include "common/Lookalikes.h"
#include "headless/Output.h"
#include "headless/ReportReader.h"
#include "headless/Station.h"
#include "headless/TerminalUi.h"
#include "headless/Unchecked.h"
#include "headless/pages/Board.h"
#include "headless/pages/BoardPage.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

bool IsFolder(const std::string& path) {
  Directories& directories = Os().directories;
  std::string file;
  std::string entry;
  return directories.FirstName(path, false, &file) == kNoError && file.empty() &&
         directories.FirstName(path, true, &entry) == kNoError && !entry.empty();
}

// The argument is the name by which the report is spoken of: what the person typed.
void AddFile(Board& board, const std::string& argument) {
  std::string path;
  const bool hasName = FromArgument(argument, &path);
  const TakeReport add = [&](ReportReading&& reading) {
    if (!reading.report) {
      std::string reason;
      FromUtf8(reading.failure, &reason);
      WriteErrorLine("warning: " + path + " " + reason);
    }
    board.Add(argument, std::move(reading));
  };
  if (!hasName) {
    add({std::nullopt, "can't be read: its name has characters that the code page can't hold"});
  } else if (IsFolder(path)) {
    add({std::nullopt, "is a folder: name the reports in it"});
  } else {
    ReadReportFile(path, add);
  }
}

}  // namespace

int RunBoard(const Options& options) {
  Board board;
  for (const std::string& argument : options.reports) AddFile(board, argument);
  board.Settle(Os().clock.UtcNow(), options.staleHours);
  TerminalUi ui(false);
  TellLookalike(options.output);
  WriteWarnings(ui);
  const BoardHead head{ToUtf8(options.title), CheckTime(), options.staleHours};
  const std::string failure = WriteReport(options.output, BoardPage(board, head));
  if (!failure.empty()) throw Trouble(failure);
  return board.Code();
}

}  // namespace logchecker
