#pragma once

#include <string_view>

// Whether a file name fits one of the patterns, which stand apart by ";". "*" stands for any characters and "?" for
// one; letters match in either case. The empty list of patterns fits every name, and so does "*.*".
bool FitsPattern(std::string_view name, std::string_view patterns);
