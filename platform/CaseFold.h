#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Comparison without regard to case, for names of files, sections and keys and for the rows of lists. Texts are UTF-8;
// letters of the Latin, Greek, Cyrillic and Armenian scripts are folded one by one. Bytes that are not UTF-8 stand for
// themselves.

// The text with every letter in its lower form; the locale plays no part.
std::string FoldCase(std::string_view text);
bool EqualIgnoringCase(std::string_view left, std::string_view right);
// Less than, equal to or greater than 0, by the folded code points.
int CompareIgnoringCase(std::string_view left, std::string_view right);
// The order that lists on screen show: without regard to case, then by bytes.
bool LessIgnoringCase(const std::string& left, const std::string& right);
// Equal for texts that are equal without regard to case; the same in every run.
std::uint64_t HashIgnoringCase(std::string_view text, std::uint64_t seed);
