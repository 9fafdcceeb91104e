#pragma once

#include <string_view>

// Whether a name matches a pattern of "*" (any signs, also none) and "?" (one sign), case ignored.
bool MatchesPattern(std::string_view name, std::string_view pattern);

// Whether a file name fits one of the patterns, which stand apart by ";". The empty list of patterns fits every name,
// and so does "*.*".
bool FitsPattern(std::string_view name, std::string_view patterns);
