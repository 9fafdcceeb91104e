#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Files.h"

// Small procedures that the forms share. None of them reports anything; what cannot be done is left undone. Paths may
// hold either separator.

// Makes an empty file, or empties the one that is there.
void CreateEmptyFile(Files& files, std::string_view path);
// Removes a folder with all in it; a separator at the end of the path is dropped. True when there was such a folder and
// it is gone.
bool DeleteFolderTree(Files& files, std::string_view path);
// True for a file, a folder, and a path whose last part holds "*" or "?" and matches a name; false for the empty path
// and for one with a separator at its end.
bool FileExists(const Files& files, std::string_view path);

// What stands behind the last separator; without one, the whole text.
std::string FileNameOfPath(std::string_view path);
// The name up to its last ".", without blanks at both ends: "My clip.final.avi" gives "My clip.final".
std::string StripExtension(std::string_view name);

// Whether a file or folder can have that name: not one that is empty, holds a separator or consists of dots, since its
// path would lead out of its folder.
bool IsPlainName(std::string_view name);

// A random whole number from `low` to `low + count - 1`, drawn anew from the clock at each call: two calls at the same
// moment give the same number. `low` when `count` is 0.
std::int32_t RandomBetween(std::int32_t low, std::int32_t count, const Clock& clock);
