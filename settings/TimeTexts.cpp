#include "settings/TimeTexts.h"

#include <array>
#include <charconv>
#include <optional>

#include "platform/CaseFold.h"
#include "platform/toolkit/Failure.h"
#include "settings/IniText.h"

namespace {

constexpr std::int64_t kSecondsADay = 24 * 60 * 60;

std::string TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

int HourOfTwelve(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

std::string WithMinutes(std::string hour, const DateTime& time) {
  return hour.append(":")
      .append(TwoDigits(time.minute))
      .append(":")
      .append(TwoDigits(time.second))
      .append(time.hour < 12 ? " AM" : " PM");
}

// Takes one or two digits off the front.
std::optional<int> TakeDigits(std::string_view& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const std::size_t length = static_cast<std::size_t>(end - text.data());
  if (error != std::errc() || text.front() == '-' || length > 2) return std::nullopt;
  text.remove_prefix(length);
  return number;
}

enum class HalfOfDay { kNone, kBeforeNoon, kAfterNoon };

std::optional<HalfOfDay> ReadHalf(std::string_view text) {
  if (text.empty()) return HalfOfDay::kNone;
  if (EqualIgnoringCase(text, "AM")) return HalfOfDay::kBeforeNoon;
  if (EqualIgnoringCase(text, "PM")) return HalfOfDay::kAfterNoon;
  return std::nullopt;
}

std::optional<DateTime> ReadTime(std::string_view text) {
  text = TrimBlanks(text);
  std::array<int, 3> parts{};
  std::size_t count = 0;
  for (;; text.remove_prefix(1)) {
    const std::optional<int> part = TakeDigits(text);
    if (!part.has_value()) return std::nullopt;
    parts[count++] = *part;
    if (count == parts.size() || !text.starts_with(':')) break;
  }
  const std::optional<HalfOfDay> half = ReadHalf(TrimBlanks(text));
  auto [hour, minute, second] = parts;
  if (count < 2 || !half.has_value() || minute > 59 || second > 59) return std::nullopt;
  if (*half == HalfOfDay::kNone ? hour > 23 : (hour < 1 || hour > 12)) return std::nullopt;
  if (*half != HalfOfDay::kNone) hour = hour % 12 + (*half == HalfOfDay::kAfterNoon ? 12 : 0);
  DateTime time;
  time.hour = hour;
  time.minute = minute;
  time.second = second;
  return time;
}

}  // namespace

std::string TimeText(const DateTime& time) { return WithMinutes(TwoDigits(HourOfTwelve(time.hour)), time); }

std::string ClockText(const DateTime& time) { return WithMinutes(std::to_string(HourOfTwelve(time.hour)), time); }

std::string DateText(const DateTime& date) {
  return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" + std::to_string(date.year);
}

std::string ScheduleKey(const DateTime& date, const DateTime& time) { return DateText(date) + "-" + TimeText(time); }

DateTime ParseTimeText(std::string_view text) {
  const std::optional<DateTime> time = ReadTime(text);
  if (!time.has_value()) throw Failure("The text is not a time.");
  return *time;
}

std::string AddSecondsToTime(std::int32_t seconds, const DateTime& time) {
  const std::int64_t sum = time.hour * 3600 + time.minute * 60 + time.second + std::int64_t{seconds};
  const int inDay = static_cast<int>((sum % kSecondsADay + kSecondsADay) % kSecondsADay);
  DateTime later;
  later.hour = inDay / 3600;
  later.minute = inDay / 60 % 60;
  later.second = inDay % 60;
  return TimeText(later);
}

std::string SecondsToHMS(std::int32_t seconds) {
  const std::int32_t minutes = seconds / 60;
  const std::int32_t hours = minutes / 60;
  return std::to_string(hours) + ":" + std::to_string(minutes - hours * 60) + ":" +
         std::to_string(seconds - minutes * 60);
}
