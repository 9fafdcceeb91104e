#include "settings/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

#include "platform/toolkit/Failure.h"

namespace {

bool IsSpace(char sign) { return sign == ' ' || (sign >= '\t' && sign <= '\r'); }
bool IsDigit(char sign) { return sign >= '0' && sign <= '9'; }

std::string_view WithoutLeadingSpace(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  return text;
}

// Takes a number off the front of the text. Nothing where there is none; words such as "inf" are none.
std::optional<double> TakeNumber(std::string_view& text) {
  std::string_view digits = text;
  const bool isNegative = digits.starts_with('-');
  if (isNegative || digits.starts_with('+')) digits.remove_prefix(1);
  const bool isNumber =
      !digits.empty() && (IsDigit(digits[0]) || (digits[0] == '.' && digits.size() > 1 && IsDigit(digits[1])));
  if (!isNumber) return std::nullopt;
  double number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc()) return std::nullopt;
  text = digits.substr(static_cast<std::size_t>(end - digits.data()));
  return isNegative ? -number : number;
}

template <typename Number>
std::string Text(Number number, int digits) {
  if (!std::isfinite(number) || number == 0) return "0";
  char buffer[32];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, digits);
  std::string text(buffer, error == std::errc() ? end : buffer);
  const std::size_t exponent = text.find('e');
  if (exponent != std::string::npos) text[exponent] = 'E';
  return text;
}

}  // namespace

double Val(std::string_view text) {
  text = WithoutLeadingSpace(text);
  return TakeNumber(text).value_or(0);
}

double StrictNumber(std::string_view text) {
  text = WithoutLeadingSpace(text);
  const std::optional<double> number = TakeNumber(text);
  if (!number.has_value() || !WithoutLeadingSpace(text).empty()) throw Failure("The text is not a number.");
  return *number;
}

std::string SingleText(float number) { return Text(number, 7); }

std::string DoubleText(double number) { return Text(number, 15); }

std::int32_t RoundHalfEven(double number) {
  double whole = std::floor(number);
  const double rest = number - whole;
  const bool isOdd = std::fmod(whole, 2) != 0;
  if (rest > 0.5 || (rest == 0.5 && isOdd)) whole += 1;
  // Written so that "not a number" fails too.
  if (!(whole >= INT32_MIN && whole <= INT32_MAX)) throw Failure("The number is too large.");
  return static_cast<std::int32_t>(whole);
}

std::int16_t SixteenBits(std::int32_t number) {
  using Limits = std::numeric_limits<std::int16_t>;
  if (number < Limits::min() || number > Limits::max()) throw Failure("The number does not fit.");
  return static_cast<std::int16_t>(number);
}
