#pragma once

#include <string>

namespace swf {

// The level that the helper plays in, above all that movies load themselves.
inline constexpr char kHelperLevel[] = "_level16000";

// A movie of version 8 that the rewritten ones load beside themselves: it lets the page reach the variables of a movie
// of any version. The page may call, each answering true unless told otherwise:
//   set(name, value)   sets a variable of a clip, as "_level0.text1"
//   clear(name)        sets it to the empty text
//   pic(clip, address) loads a picture or movie into a clip
//   cf()               answers the number of the frame that the movie stands at
// When they are ready it gives the command "helper".
std::string HelperMovie();

}  // namespace swf
