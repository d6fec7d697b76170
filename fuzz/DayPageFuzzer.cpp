// Any names, descriptions, references and paths on a day's page: a parser of pages finds our
// elements and no other, the same as for harmless texts.
#include <algorithm>
#include <deque>

#include "common/GeneralSettings.h"
#include "fuzz/Fuzzer.h"
#include "tests/support/posix/PageTexts.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  constexpr size_t kLongest = 400;
  FuzzedDataProvider input(data, size);
  std::deque<std::string> harmless;
  const CheckReport hostile = ReportWithTexts([&] {
    std::string text = input.ConsumeRandomLengthString(kLongest);
    // Paths are shown with one form of separator, lengths as they are.
    harmless.push_back(Harmless(text));
    return text;
  });
  const CheckReport twin = ReportWithTexts([&] {
    std::string text = harmless.front();
    harmless.pop_front();
    return text;
  });
  const PageTree page = ParsePage(HtmlReport(hostile));
  Require(page.errors == 0);
  Require(page.comments == 0);
  Require(DifferInTextAlone(page, ParsePage(HtmlReport(twin))));
  return 0;
}
