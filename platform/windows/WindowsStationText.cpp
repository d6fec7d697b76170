#include <algorithm>

#include "platform/HostPaths.h"
#include "platform/StationText.h"
#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsText.h"

namespace logchecker {

namespace {

// Stands for what has no place in the code page, and has none itself.
constexpr wchar_t kReplacement = 0xFFFD;

std::wstring Decode(UINT codePage, std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<size_t>(length), L'\0');
  MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), length);
  return wide;
}

std::string Encode(UINT codePage, DWORD flags, std::wstring_view text, BOOL* lost) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const char* substitute = lost == nullptr ? nullptr : "?";
  const int length =
      WideCharToMultiByte(codePage, flags, text.data(), size, nullptr, 0, substitute, nullptr);
  std::string encoded(static_cast<size_t>(length), '\0');
  WideCharToMultiByte(codePage, flags, text.data(), size, encoded.data(), length, substitute, lost);
  return encoded;
}

// A pair of surrogates is one character and leaves one "?".
std::wstring WithoutPairs(std::wstring_view text) {
  std::wstring single;
  for (const wchar_t unit : text) {
    if (IS_LOW_SURROGATE(unit)) continue;
    single.push_back(IS_HIGH_SURROGATE(unit) ? kReplacement : unit);
  }
  return single;
}

}  // namespace

std::wstring Widen(std::string_view stationText) { return Decode(CP_ACP, stationText); }

bool Narrow(std::wstring_view text, std::string* stationText) {
  // Where the user has made UTF-8 the code page, nothing is lost, and the call refuses to tell so.
  if (GetACP() == CP_UTF8) {
    *stationText = Encode(CP_UTF8, 0, text, nullptr);
    return text.find(kReplacement) == std::wstring_view::npos;
  }
  BOOL lost = FALSE;
  *stationText = Encode(CP_ACP, WC_NO_BEST_FIT_CHARS, WithoutPairs(text), &lost);
  return !lost;
}

std::string ToUtf8(std::string_view stationText) {
  return Encode(CP_UTF8, 0, Widen(stationText), nullptr);
}

bool FromUtf8(std::string_view utf8, std::string* stationText) {
  return Narrow(Decode(CP_UTF8, utf8), stationText);
}

bool FromArgument(std::string_view argument, std::string* stationText) {
  // The runtime hands main its arguments in the code page.
  *stationText = argument;
  return true;
}

std::string WithoutControls(std::string_view stationText) {
  constexpr wchar_t kDelete = 0x7F;
  constexpr wchar_t kLastControl = 0x9F;
  const auto isControl = [](wchar_t c) {
    return (c < L' ' && c != L'\n' && c != L'\t') || (c >= kDelete && c <= kLastControl);
  };
  std::wstring wide = Widen(stationText);
  if (std::none_of(wide.begin(), wide.end(), isControl)) return std::string(stationText);
  std::replace_if(wide.begin(), wide.end(), isControl, L' ');
  std::string text;
  Narrow(wide, &text);
  return text;
}

std::string ToUpper(std::string_view stationText) {
  std::string upper(stationText);
  CharUpperBuffA(upper.data(), static_cast<DWORD>(upper.size()));
  return upper;
}

std::string ToLower(std::string_view stationText) {
  std::string lower(stationText);
  CharLowerBuffA(lower.data(), static_cast<DWORD>(lower.size()));
  return lower;
}

std::string ToHostPath(std::string_view stationPath) { return ToUtf8(stationPath); }

std::string FromHostPath(std::string_view hostPath) {
  std::string path(hostPath);
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

}  // namespace logchecker
