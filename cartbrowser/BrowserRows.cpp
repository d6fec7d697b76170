#include "cartbrowser/BrowserRows.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "cartstore/AudiowallParts.h"
#include "cartstore/BlankCart.h"
#include "cartstore/LoadCartInfo.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"

namespace logchecker {

namespace {

constexpr int32_t kMargin = 15;
constexpr int32_t kFrameEdges = 30;
constexpr int32_t kPanelEdges = 120;

}  // namespace

int16_t CountRows(int32_t frameHeight, int32_t rowHeight, float topOffset) {
  double rows = static_cast<double>(frameHeight - kFrameEdges) / rowHeight;
  if (rows != std::floor(rows)) rows += 1;
  if (rows + topOffset > gNumberOfCarts) rows = static_cast<double>(gNumberOfCarts) - topOffset;
  return std::max<int16_t>(ToInt16(rows), 0);
}

int32_t HeightOfWholeRows(int32_t room, int32_t rowHeight) {
  return std::max(room - kFrameEdges, 0) / rowHeight * rowHeight + kFrameEdges;
}

RowPlace PlaceOfRow(int16_t row, int32_t rowHeight, int32_t buttonWidth, int32_t frameWidth) {
  RowPlace place;
  place.Top = (row - 1) * rowHeight + kMargin;
  place.Height = rowHeight;
  place.ButtonLeft = kMargin;
  place.PanelLeft = place.ButtonLeft + buttonWidth + kMargin;
  place.PanelWidth = std::max(frameWidth - kFrameEdges - place.PanelLeft, 0);
  return place;
}

std::string PanelCaption(const CartInfo& info, bool onThreeLines, int32_t panelWidth,
                         const FitText& fit) {
  const int32_t width = panelWidth - kPanelEdges;
  if (!onThreeLines) {
    std::string description;
    GetCartDescription(info, true, description);
    return fit(description, width);
  }
  const auto fitted = [&](const CartLine& line) {
    return fit(std::string(Trim(std::string_view(line.data(), line.size()))), width);
  };
  return fitted(info.Line1) + "\n" + fitted(info.Line2) + "\n" + fitted(info.Line3);
}

std::string SpokenRow(const CartInfo& info, int32_t cartNumber) {
  std::string said = "Cart " + std::to_string(cartNumber);
  bool runsOn = false;
  for (const CartLine* line : {&info.Line1, &info.Line2, &info.Line3}) {
    const std::string_view whole(line->data(), line->size());
    if (Trim(whole).empty()) continue;
    // A line without room for a blank at its end may run on in the next.
    said += (runsOn ? "" : ", ") + std::string(Trim(whole));
    runsOn = whole.back() != ' ';
  }
  if (info.TotalLength == gBlankCartInfo.TotalLength) return said + ", not in use";
  return info.PlayLength > 0 ? said : said + ", no audio";
}

BrowserRow ReadBrowserRow(int32_t cartNumber, bool onThreeLines, int32_t panelWidth,
                          const FitText& fit) {
  BrowserRow row;
  if (cartNumber <= 0 || cartNumber > gNumberOfCarts) {
    row.BackColor = gBlankCartInfo.BackColor;
    row.ForeColor = gBlankCartInfo.ForeColor;
    return row;
  }
  CartInfo info;
  LoadCartInfo(info, cartNumber);
  row.Visible = true;
  row.ButtonCaption = std::to_string(cartNumber);
  if (info.PlayLength > 0) row.Tag = row.ButtonCaption;
  row.BackColor = info.BackColor;
  row.ForeColor = info.ForeColor;
  row.Spoken = SpokenRow(info, cartNumber);
  row.Caption = PanelCaption(info, onThreeLines, panelWidth, fit);
  row.Whole = PanelCaption(info, onThreeLines, panelWidth,
                           [](const std::string& text, int32_t /*maxWidth*/) { return text; });
  return row;
}

}  // namespace logchecker
