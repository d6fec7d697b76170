#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "platform/StationText.h"
#include "splitlogs/AdvertLog_FN.h"

namespace logchecker {
namespace {

std::string RandomLine(char atColumnSix) {
  auto line = *rc::gen::container<std::string>(
      rc::gen::oneOf(rc::gen::element('0', '1', '2', ' ', ':', '|', 'A', 'e', '.', '-'),
                     rc::gen::arbitrary<char>()));
  if (line.size() >= 6) line[5] = atColumnSix;
  return line;
}

RC_GTEST_PROP(AdvertLogProperty, ANormalisedLineReadsLikeItsOldForm, ()) {
  const std::string old = RandomLine('|');
  const std::string current = NormaliseLogLine(old);
  RC_ASSERT(NormaliseLogLine(current) == current);
  RC_ASSERT(GetLineTime(current) == GetLineTime(old));
  RC_ASSERT(GetLineTXChainCode(current) == GetLineTXChainCode(old));
  RC_ASSERT(GetLineCart(current) == GetLineCart(old));
  RC_ASSERT(GetLineDescription(current) == GetLineDescription(old));
  RC_ASSERT(GetLineReference(current) == GetLineReference(old));
}

RC_GTEST_PROP(AdvertLogProperty, ALineWithoutTheMarkIsLeftAlone, ()) {
  const std::string line = RandomLine(':');
  RC_ASSERT(NormaliseLogLine(line) == line);
}

RC_GTEST_PROP(AdvertLogProperty, AnOldLineIsReadByTheColumnsOfItsOwnForm, ()) {
  constexpr size_t kReferenceColumn = 52;
  std::string line = RandomLine('|') + RandomLine(' ');
  line.resize(std::max(line.size(), kReferenceColumn - 1), ' ');
  line[5] = '|';
  const auto columns = [&](size_t first, size_t last) {
    return Mid(line, first, last - first + 1);
  };
  RC_ASSERT(GetLineTime(line) ==
            static_cast<float>(Val(columns(1, 2)) * 3600 + Val(columns(4, 5)) * 60));
  RC_ASSERT(GetLineTXChainCode(line) == ToUpper(Trim(columns(7, 10))));
  RC_ASSERT(GetLineCart(line) == ToInt32(Val(columns(12, 15))));
  RC_ASSERT(GetLineDescription(line) == columns(17, 46));
  RC_ASSERT(GetLineReference(line) == Mid(line, kReferenceColumn));
}

// The plain rule normalises the line anew for each field.
RC_GTEST_PROP(AdvertLogProperty, ALineOfEitherFormIsReadByTheColumnsOfTheCurrentOne, ()) {
  const std::string line =
      RandomLine(*rc::gen::element('|', ':')) + *rc::gen::element<std::string>("", RandomLine(' '));
  const auto columns = [&](size_t first, size_t last) {
    return std::string(Mid(NormaliseLogLine(line), first, last - first + 1));
  };
  const auto number = [&](size_t first, size_t last) { return Val(columns(first, last)); };
  const LogLine once(line);
  const double seconds = number(1, 2) * 3600 + number(4, 5) * 60 + number(7, 8);
  RC_ASSERT(once.Time() == (line.empty() ? -1.0F : static_cast<float>(seconds)));
  RC_ASSERT(once.TXChainCode() == ToUpper(Trim(columns(10, 13))));
  RC_ASSERT(once.Cart() == ToInt32(number(15, 22)));
  RC_ASSERT(once.Description() == columns(24, 53));
  RC_ASSERT(once.Reference() == columns(60, line.size() + 60));
}

}  // namespace
}  // namespace logchecker
