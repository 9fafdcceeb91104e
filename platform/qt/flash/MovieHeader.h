#pragma once

#include <optional>
#include <string>

#include "platform/swf/Container.h"

// The header of a movie file; nothing when it is absent, no regular file, or no movie.
std::optional<swf::Header> ReadMovieHeader(const std::string& path);
