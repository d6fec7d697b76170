#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

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
  std::string current = NormaliseLogLine(old);
  // Seconds that are there now do not make it an old line again.
  RC_PRE(current.size() < 6 || current[5] != '|');
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

RC_GTEST_PROP(AdvertLogProperty, TheFieldsOfAnOldLineAreWhereTheyWere, ()) {
  const auto cart = *rc::gen::inRange(0, 10000);
  std::string number = std::to_string(cart);
  number.insert(0, 4 - number.size(), ' ');
  const auto description = *rc::gen::container<std::string>(30, rc::gen::inRange('A', 'Z'));
  const std::string line = "10:45|ABCD " + number + " " + description + "     REF";
  RC_ASSERT(GetLineTime(line) == 10 * 3600 + 45 * 60);
  RC_ASSERT(GetLineTXChainCode(line) == "ABCD");
  RC_ASSERT(GetLineCart(line) == cart);
  RC_ASSERT(GetLineDescription(line) == description);
  RC_ASSERT(GetLineReference(line) == "REF");
}

}  // namespace
}  // namespace logchecker
