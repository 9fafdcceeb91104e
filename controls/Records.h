#pragma once

#include <string>

struct DrawnRow;

// An item of a McListBox as one text: what is shown, the number of its icon, and "True" or "False" for bold, with
// "<%S%>" between them. Sorting compares these texts whole: since "<" sorts behind a blank, "a b" stands before "a".
std::string RecordOf(const DrawnRow& row);

// -1, 0 or 1, case ignored.
int CompareRecords(const std::string& left, const std::string& right);

// What the icon of a file goes by: its ending in lower case, ".jpg", which all files of that ending share; "default"
// for a name without one. Programs, links and icons have one of their own each and go by their path. So would "Cur",
// which no ending in lower case is: pointers share theirs. Meant so.
std::string IconKey(const std::string& folder, const std::string& name);
