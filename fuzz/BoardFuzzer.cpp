// Any bytes as a file of reports: those that are none are listed, the rest stand on the board, and
// whatever they hold the page has our own elements alone.
#include <algorithm>
#include <array>
#include <utility>

#include "fuzz/Fuzzer.h"
#include "headless/ReportReader.h"
#include "headless/pages/Board.h"
#include "headless/pages/BoardPage.h"

namespace logchecker {
namespace {

constexpr std::array<std::string_view, 33> kElements = {
    "!DOCTYPE", "html", "head",    "meta",    "title", "style",  "body",  "header", "main",
    "h1",       "h2",   "h3",      "p",       "ul",    "ol",     "li",    "a",      "span",
    "bdi",      "div",  "section", "details", "table", "thead",  "tbody", "tr",     "th",
    "td",       "time", "caption", "small",   "br",    "summary"};

// Every "<" begins one of our elements: text has none.
void RequireOurElements(std::string_view page) {
  for (size_t at = page.find('<'); at != std::string_view::npos; at = page.find('<', at + 1)) {
    std::string_view name = page.substr(at + 1);
    if (name[0] == '/') name.remove_prefix(1);
    name = name.substr(0, name.find_first_of(" >\n"));
    Require(std::find(kElements.begin(), kElements.end(), name) != kElements.end());
  }
}

}  // namespace
}  // namespace logchecker

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  constexpr double kNow = 46402;
  std::string_view bytes = AsText(data, size);
  Board board;
  size_t reports = 0;
  size_t days = 0;
  const auto next = [&bytes] { return std::exchange(bytes, {}); };
  ReadReports(next, [&](ReportReading&& reading) {
    ++reports;
    if (reading.report) days += reading.report->days.size();
    // A name from outside too.
    board.Add(std::string(AsText(data, std::min<size_t>(size, 40))), std::move(reading));
  });
  Require(reports > 0);
  board.Settle(kNow, size % 2 == 0 ? std::optional<int32_t>(24) : std::nullopt);
  size_t shown = 0;
  for (const BoardStation& station : board.Stations()) shown += station.days.size();
  for (const BoardOrigin& origin : board.Origins()) {
    shown += static_cast<size_t>(origin.daysSetAside);
  }
  Require(shown == days);
  Require(board.Origins().size() + board.Failures().size() == reports);
  Require(board.Code() == 2 || board.Failures().empty());
  const std::string page = BoardPage(board, {"", "2027-01-15T00:00:00Z", {}});
  RequireOurElements(page);
  return 0;
}
