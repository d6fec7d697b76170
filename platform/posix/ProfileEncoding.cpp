#include "platform/posix/ProfileEncoding.h"

#include <cstddef>
#include <cstdint>

namespace logchecker {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";

// Characters beyond 16 bits are a pair of units, each with ten bits of what lies beyond.
constexpr uint32_t kFirstOfPairs = 0x10000;
constexpr uint32_t kHighHalf = 0xD800;
constexpr uint32_t kLowHalf = 0xDC00;
constexpr uint32_t kHalves = 0x400;

std::string_view MarkOf(ProfileEncoding encoding) {
  switch (encoding) {
    case ProfileEncoding::kUtf8:
      return kUtf8Mark;
    case ProfileEncoding::kUtf16Little:
      return kLittleMark;
    case ProfileEncoding::kUtf16Big:
      return kBigMark;
    default:
      return {};
  }
}

bool HasUnits(ProfileEncoding encoding) {
  return encoding == ProfileEncoding::kUtf16Little || encoding == ProfileEncoding::kUtf16Big;
}

bool IsHalf(uint32_t unit, uint32_t first) { return unit >= first && unit < first + kHalves; }

// Half a pair alone is written like any other character, so that it comes back as it was.
void AppendUtf8(uint32_t codePoint, std::string* text) {
  const auto add = [&](uint32_t byte) { text->push_back(static_cast<char>(byte)); };
  if (codePoint < 0x80) {
    add(codePoint);
    return;
  }
  if (codePoint < 0x800) {
    add(0xC0U | (codePoint >> 6U));
  } else {
    if (codePoint < kFirstOfPairs) {
      add(0xE0U | (codePoint >> 12U));
    } else {
      add(0xF0U | (codePoint >> 18U));
      add(0x80U | ((codePoint >> 12U) & 0x3FU));
    }
    add(0x80U | ((codePoint >> 6U) & 0x3FU));
  }
  add(0x80U | (codePoint & 0x3FU));
}

std::string FromUnits(std::string_view bytes, bool little) {
  const auto unitAt = [&](size_t i) {
    const auto first = static_cast<unsigned char>(bytes[2 * i]);
    const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
    return static_cast<uint32_t>(little ? first | (second << 8U) : (first << 8U) | second);
  };
  const size_t units = bytes.size() / 2;
  std::string text;
  text.reserve(units);
  for (size_t i = 0; i < units; ++i) {
    uint32_t codePoint = unitAt(i);
    if (IsHalf(codePoint, kHighHalf) && i + 1 < units && IsHalf(unitAt(i + 1), kLowHalf)) {
      codePoint = kFirstOfPairs + (codePoint - kHighHalf) * kHalves + unitAt(++i) - kLowHalf;
    }
    AppendUtf8(codePoint, &text);
  }
  return text;
}

// Takes a character off text that AppendUtf8 has written.
uint32_t TakeCodePoint(std::string_view* text) {
  const auto first = static_cast<unsigned char>(text->front());
  size_t more = 0;
  uint32_t codePoint = first;
  if (first >= 0xF0) {
    more = 3;
    codePoint = first & 0x07U;
  } else if (first >= 0xE0) {
    more = 2;
    codePoint = first & 0x0FU;
  } else if (first >= 0xC0) {
    more = 1;
    codePoint = first & 0x1FU;
  }
  text->remove_prefix(1);
  for (; more > 0 && !text->empty(); --more) {
    codePoint = (codePoint << 6U) | (static_cast<unsigned char>(text->front()) & 0x3FU);
    text->remove_prefix(1);
  }
  return codePoint;
}

std::string ToUnits(std::string_view text, bool little) {
  std::string bytes;
  bytes.reserve(2 * text.size());
  const auto add = [&](uint32_t unit) {
    const auto low = static_cast<char>(unit & 0xFFU);
    const auto high = static_cast<char>(unit >> 8U);
    bytes += little ? low : high;
    bytes += little ? high : low;
  };
  while (!text.empty()) {
    const uint32_t codePoint = TakeCodePoint(&text);
    if (codePoint < kFirstOfPairs) {
      add(codePoint);
    } else {
      add(kHighHalf + (codePoint - kFirstOfPairs) / kHalves);
      add(kLowHalf + (codePoint - kFirstOfPairs) % kHalves);
    }
  }
  return bytes;
}

}  // namespace

ProfileEncoding EncodingOfProfile(std::string_view bytes) {
  for (const ProfileEncoding encoding :
       {ProfileEncoding::kUtf8, ProfileEncoding::kUtf16Little, ProfileEncoding::kUtf16Big}) {
    const std::string_view mark = MarkOf(encoding);
    if (bytes.substr(0, mark.size()) == mark) return encoding;
  }
  return ProfileEncoding::kStation;
}

std::string DecodeProfile(std::string_view bytes, ProfileEncoding encoding) {
  bytes.remove_prefix(MarkOf(encoding).size());
  const bool little = encoding == ProfileEncoding::kUtf16Little;
  return HasUnits(encoding) ? FromUnits(bytes, little) : std::string(bytes);
}

std::string_view HalfUnit(std::string_view bytes, ProfileEncoding encoding) {
  return HasUnits(encoding) && bytes.size() % 2 != 0 ? bytes.substr(bytes.size() - 1)
                                                     : std::string_view();
}

std::string EncodeProfile(std::string_view text, ProfileEncoding encoding) {
  const bool little = encoding == ProfileEncoding::kUtf16Little;
  return std::string(MarkOf(encoding)) +
         (HasUnits(encoding) ? ToUnits(text, little) : std::string(text));
}

}  // namespace logchecker
