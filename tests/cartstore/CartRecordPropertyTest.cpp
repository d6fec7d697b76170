#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstring>

#include "cartstore/CartRecord.h"

namespace logchecker {
namespace {

CartRecord RandomRecord() {
  const auto bytes =
      *rc::gen::container<std::string>(kCartRecordLength, rc::gen::arbitrary<char>());
  CartRecord record;
  std::memcpy(&record, bytes.data(), bytes.size());
  return record;
}

bool SameBytes(const void* a, const void* b, size_t size) { return std::memcmp(a, b, size) == 0; }

RC_GTEST_PROP(CartRecordProperty, BothConversionsKeepEveryCarriedField, ()) {
  CartRecord record = RandomRecord();
  CartInfo info;
  CartInfoFromRecord(info, record);
  CartRecord back;
  CartRecordFromInfo(back, info);
  // Heads and numbers byte by byte; what is dropped comes back as zero.
  record.Aux160.fill('\0');
  record.Aux198 = 0;
  record.Aux200 = 0;
  record.Line1Tail = back.Line1Tail;
  record.Line2Tail = back.Line2Tail;
  record.Line3Tail = back.Line3Tail;
  RC_ASSERT(SameBytes(&record, &back, sizeof record));
}

RC_GTEST_PROP(CartRecordProperty, TextsWithoutNulsComeBackAsTheyWere, ()) {
  const auto text = *rc::gen::container<std::string>(
      kLineLength, rc::gen::suchThat<char>([](char c) { return c != '\0'; }));
  CartInfo info{};
  std::copy(text.begin(), text.end(), info.Line1.begin());
  info.Line2.fill(' ');
  info.Line3.fill(' ');
  CartRecord record;
  CartRecordFromInfo(record, info);
  CartInfo back;
  CartInfoFromRecord(back, record);
  RC_ASSERT(back.Line1 == info.Line1);
}

}  // namespace
}  // namespace logchecker
