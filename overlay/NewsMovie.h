#pragma once

#include <string_view>

#include "platform/Files.h"
#include "settings/DataFolder.h"

// Where the strip's movie lies in the data folder.
inline constexpr char kNewsMovie[] = "\\Media\\FlashBN\\bn.swf";

// The strip's movie, as the program brings it along.
std::string_view NewsMovie();

// Puts it into the station where it has none: a program that is copied into an empty folder is a whole station. A movie
// that is there is the operator's, and stays.
void MakeNewsMovie(Files& files, const DataFolder& folder);
