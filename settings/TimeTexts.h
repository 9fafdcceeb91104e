#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Clock.h"

// The text forms of time. They stand in the station's files as keys, and what is written is compared with what the
// clock gives, letter for letter: do not change them.

// "HH:MM:SS AMPM", two digits each, 12-hour clock: 07:03:25 AM, and 12:00:20 AM after midnight.
std::string TimeText(const DateTime& time);
// The same time with the hour unpadded, for the eye: 7:03:25 AM.
std::string ClockText(const DateTime& time);
// M/D/YYYY without padding, whatever the locale: 11/5/2026.
std::string DateText(const DateTime& date);
// The key of a row of the day schedule, date text and time text: 11/15/2026-07:00:00 AM.
std::string ScheduleKey(const DateTime& date, const DateTime& time);

// The time of day that a text tells, on the default date: "7:03:25 AM", "07:03 PM", "19:03:25". Throws Failure for any
// other text.
DateTime ParseTimeText(std::string_view text);

// The time, that many seconds later or earlier, as a time text. Only the time of day shows, so midnight wraps.
std::string AddSecondsToTime(std::int32_t seconds, const DateTime& time);
// Hours, minutes and seconds without padding; hours are not limited: 3725 gives 1:2:5.
std::string SecondsToHMS(std::int32_t seconds);
