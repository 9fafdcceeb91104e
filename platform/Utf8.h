#pragma once

#include <string>
#include <string_view>

// A byte that is no part of well-formed UTF-8 is handed out as kStrayByte plus its value.
inline constexpr char32_t kStrayByte = 0x110000;

// Takes the code point at `at`, which must be inside `text`, and moves `at` behind it.
char32_t NextCodePoint(std::string_view text, std::size_t& at);
void AppendCodePoint(std::string& text, char32_t point);
bool IsUtf8(std::string_view text);
