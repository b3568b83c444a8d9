// Five formats of date and time.
#include "runtime/clock.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace runtime {
namespace {

constexpr std::array<const char*, 7> Weekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                 "Thursday", "Friday", "Saturday"};
constexpr std::array<const char*, 12> Months = {"January", "February", "March",     "April",   "May",      "June",
                                                "July",    "August",   "September", "October", "November", "December"};

struct Moment {
  std::chrono::year_month_day Date;
  std::chrono::hh_mm_ss<std::chrono::seconds> Time;
};

Moment Split(std::chrono::local_seconds time) {
  auto day = std::chrono::floor<std::chrono::days>(time);
  return {std::chrono::year_month_day(day), std::chrono::hh_mm_ss<std::chrono::seconds>(time - day)};
}

template <typename... Part>
std::string Format(const char* layout, Part... part) {
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), layout, part...);
  return text.data();
}

}  // namespace

std::chrono::local_seconds LocalTime() { return LocalTime(std::time(nullptr)); }

std::chrono::local_seconds LocalTime(std::int64_t since_1970) {
  std::time_t moment = since_1970;
  std::tm local{};
  localtime_r(&moment, &local);
  return std::chrono::local_seconds(std::chrono::seconds(moment + local.tm_gmtoff));
}

std::string DateText(std::chrono::local_seconds time) {
  auto date = Split(time).Date;
  return Format("%02u-%02u-%04d", unsigned(date.month()), unsigned(date.day()), int(date.year()));
}

std::string TimeText(std::chrono::local_seconds time) {
  auto clock = Split(time).Time;
  return Format("%02d:%02d:%02d", int(clock.hours().count()), int(clock.minutes().count()),
                int(clock.seconds().count()));
}

std::string StampText(std::chrono::local_seconds time) {
  auto date = Split(time).Date;
  return Format("%04d-%02u-%02u ", int(date.year()), unsigned(date.month()), unsigned(date.day())) + TimeText(time);
}

std::string LongDateText(std::chrono::local_seconds time) {
  auto date = Split(time).Date;
  auto weekday = std::chrono::weekday(std::chrono::local_days(date)).c_encoding();
  return Format("%s, %s %u, %04d", Weekdays[weekday], Months[unsigned(date.month()) - 1], unsigned(date.day()),
                int(date.year()));
}

std::string ShortTimeText(std::chrono::local_seconds time) {
  auto clock = Split(time).Time;
  return Format("%d:%02d %s", int(std::chrono::make12(clock.hours()).count()), int(clock.minutes().count()),
                std::chrono::is_am(clock.hours()) ? "AM" : "PM");
}

}  // namespace runtime
