#include "cartstore/BlankCart.h"

#include "cartstore/AudioSettings.h"

namespace logchecker {

namespace {

CartInfo NewBlankCartInfo() {
  CartInfo blank{};
  blank.Line1.fill(' ');
  blank.Line2.fill(' ');
  blank.Line3.fill(' ');
  blank.TotalLength = kUnusedLength;
  blank.PlayLength = kUnusedLength;
  return blank;
}

}  // namespace

CartInfo gBlankCartInfo{};
CartRecord gBlankCartRecord{};

void InitialiseBlankCart() {
  gBlankCartInfo = NewBlankCartInfo();
  gBlankCartInfo.BackColor = gAudioSettings.EmptyCartBackColor;
  gBlankCartInfo.ForeColor = gAudioSettings.EmptyCartForeColor;
  CartRecordFromInfo(gBlankCartRecord, gBlankCartInfo);
}

}  // namespace logchecker
