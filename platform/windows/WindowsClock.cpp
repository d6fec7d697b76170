#include "platform/windows/WindowsDates.h"
#include "platform/windows/WindowsParts.h"

namespace logchecker {

namespace {

constexpr int kTextSize = 256;

std::string FormatDate(int32_t day, DWORD style) {
  const SYSTEMTIME time = SystemTimeOf(day);
  char text[kTextSize];
  const int size = GetDateFormatA(LOCALE_USER_DEFAULT, style, &time, nullptr, text, kTextSize);
  return size > 0 ? std::string(text, static_cast<size_t>(size - 1)) : std::string();
}

std::string LocaleText(LCTYPE what) {
  char text[kTextSize];
  const int size = GetLocaleInfoA(LOCALE_USER_DEFAULT, what, text, kTextSize);
  return size > 0 ? std::string(text, static_cast<size_t>(size - 1)) : std::string();
}

class SystemClock : public Clock {
 public:
  double Now() override {
    SYSTEMTIME time;
    GetLocalTime(&time);
    return DateNumberOf(time);
  }

  double UtcNow() override {
    SYSTEMTIME time;
    GetSystemTime(&time);
    return DateNumberOf(time);
  }

  std::string ShortDate(int32_t day) override { return FormatDate(day, DATE_SHORTDATE); }
  std::string LongDate(int32_t day) override { return FormatDate(day, DATE_LONGDATE); }

  std::string MonthName(int32_t month, bool abbreviated) override {
    if (month < 1 || month > 12) return {};
    const LCTYPE january = abbreviated ? LOCALE_SABBREVMONTHNAME1 : LOCALE_SMONTHNAME1;
    return LocaleText(january + static_cast<LCTYPE>(month - 1));
  }

  std::string WeekdayName(int32_t weekday, bool abbreviated) override {
    if (weekday < 1 || weekday > 7) return {};
    // The system's week begins on Monday.
    const LCTYPE monday = abbreviated ? LOCALE_SABBREVDAYNAME1 : LOCALE_SDAYNAME1;
    return LocaleText(monday + static_cast<LCTYPE>((weekday + 5) % 7));
  }
};

}  // namespace

Clock& WindowsClock() {
  static SystemClock clock;
  return clock;
}

}  // namespace logchecker
