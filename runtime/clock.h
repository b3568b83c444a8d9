// Dates and times as fixed texts.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace runtime {

// Local time now, or at a Unix time.
std::chrono::local_seconds LocalTime();
std::chrono::local_seconds LocalTime(std::int64_t since_1970);

// "11-21-2026", "05:30:00", and the two together as "2026-11-21 05:30:00".
std::string DateText(std::chrono::local_seconds time);
std::string TimeText(std::chrono::local_seconds time);
std::string StampText(std::chrono::local_seconds time);
// "Saturday, November 21, 2026" and "5:30 AM", always in English.
std::string LongDateText(std::chrono::local_seconds time);
std::string ShortTimeText(std::chrono::local_seconds time);

}  // namespace runtime
