#pragma once

#include <string>
#include <string_view>

// The bytes of an INI file as UTF-8 text with CR LF at the end of every line, the last one included. A line that is not
// valid UTF-8 is read as Windows-1252. A byte order mark is dropped; a file in UTF-16 that begins with one is read too.
std::string DecodeIni(std::string bytes);

// What can be written as a value, a section's name or a key's name without breaking the file. A text that is not UTF-8
// is taken for Windows-1252, as at a read; line ends and other control characters become blanks; in a key's name also
// "=" becomes "-", and a first "[" or ";" becomes "(" or ",".
std::string CleanValue(std::string_view value);
std::string CleanSectionName(std::string_view name);
std::string CleanKeyName(std::string_view name);

bool IsBlank(char sign);
// The text without blanks and tabs at both ends.
std::string_view TrimBlanks(std::string_view text);
