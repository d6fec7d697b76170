#include <charconv>
#include <string_view>

#include "cartstore/LoadCartInfo.h"
#include "common/TextHelpers.h"
#include "headless/Output.h"
#include "headless/Reports.h"

namespace logchecker {

namespace {

std::string SecondsText(float seconds) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, seconds).ptr;
  return {text, end};
}

std::string LineText(const CartLine& line) {
  return FieldText(Trim(std::string_view(line.data(), line.size())));
}

}  // namespace

std::string CartReport(const std::vector<int32_t>& carts) {
  std::string report;
  for (const int32_t cart : carts) {
    CartInfo info;
    const int16_t result = LoadCartInfo(info, cart);
    report += std::to_string(cart) + '\t' + std::to_string(result);
    for (const CartLine* line : {&info.Line1, &info.Line2, &info.Line3}) {
      report += '\t' + LineText(*line);
    }
    for (const float seconds :
         {info.Length, info.TotalLength, info.StartPoint, info.EndPoint, info.PlayLength}) {
      report += '\t' + SecondsText(seconds);
    }
    report += '\n';
  }
  return report;
}

}  // namespace logchecker
