#include "cartstore/CartRecord.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "common/TextHelpers.h"

namespace logchecker {

namespace {

using LineHead = std::array<char, kLineHeadLength>;
using LineTail = std::array<char, kLineTailLength>;

// The head is not cut at a NUL, the tail is.
void JoinLine(CartLine& line, const LineHead& head, const LineTail& tail) {
  const void* const nul = std::memchr(tail.data(), '\0', tail.size());
  const size_t tailLength = nul == nullptr
                                ? tail.size()
                                : static_cast<size_t>(static_cast<const char*>(nul) - tail.data());
  std::memcpy(line.data(), head.data(), head.size());
  std::memcpy(line.data() + head.size(), tail.data(), tailLength);
  std::memset(line.data() + head.size() + tailLength, ' ', tail.size() - tailLength);
}

void SplitLine(LineHead& head, LineTail& tail, const CartLine& line) {
  std::copy_n(line.begin(), head.size(), head.begin());
  std::copy_n(line.begin() + kLineHeadLength, tail.size(), tail.begin());
}

// The fields that both forms hold, from one to the other.
template <typename To, typename From>
void CopyCarriedFields(To& to, const From& from) {
  to.BackColor = from.BackColor;
  to.ForeColor = from.ForeColor;
  to.Aux68 = from.Aux68;
  to.Aux184 = from.Aux184;
  to.Aux188 = from.Aux188;
  to.Aux190 = from.Aux190;
  to.Aux194 = from.Aux194;
  to.Aux202 = from.Aux202;
  to.Aux212 = from.Aux212;
  to.Aux252 = from.Aux252;
  to.Aux262 = from.Aux262;
  to.Aux266 = from.Aux266;
  to.Length = from.Length;
  to.TotalLength = from.TotalLength;
  to.StartPoint = from.StartPoint;
  to.EndPoint = from.EndPoint;
  to.PlayLength = from.PlayLength;
  to.Aux290 = from.Aux290;
  to.Aux294 = from.Aux294;
  to.Aux298 = from.Aux298;
}

}  // namespace

void CartInfoFromRecord(CartInfo& info, const CartRecord& record) {
  JoinLine(info.Line1, record.Line1Head, record.Line1Tail);
  JoinLine(info.Line2, record.Line2Head, record.Line2Tail);
  JoinLine(info.Line3, record.Line3Head, record.Line3Tail);
  CopyCarriedFields(info, record);
}

void CartRecordFromInfo(CartRecord& record, const CartInfo& info) {
  record = CartRecord();
  SplitLine(record.Line1Head, record.Line1Tail, info.Line1);
  SplitLine(record.Line2Head, record.Line2Tail, info.Line2);
  SplitLine(record.Line3Head, record.Line3Tail, info.Line3);
  CopyCarriedFields(record, info);
}

std::string GetCartDescription(const CartInfo& info, bool tidy, std::string& text) {
  std::string joined;
  for (const CartLine* line : {&info.Line1, &info.Line2, &info.Line3}) {
    const std::string_view whole(line->data(), line->size());
    if (!tidy || whole.back() != ' ') {
      joined += whole;
    } else if (const std::string_view trimmed = Trim(whole); !trimmed.empty()) {
      joined += trimmed;
      joined += ' ';
    }
  }
  text = tidy ? std::string(Trim(joined)) : joined;
  return text;
}

}  // namespace logchecker
