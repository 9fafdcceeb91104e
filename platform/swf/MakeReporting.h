#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/swf/TextFields.h"

namespace swf {

struct ReportingMovie {
  std::string bytes;     // unpacked
  bool script3 = false;  // it is one of ActionScript 3
  bool sounds = false;   // it may: there are sounds in it, or its scripts could make some (ActionScript 3)
  int frames = 0;        // that it shows, whatever its header says
  std::vector<WrappedField> fields;
};

// Writes into an unpacked movie what lets the page know it: each frame of its root gives the command "frame" with its
// number, from 1, and its variables can be set through the helper that it loads from `helperAddress`, or through its
// own class (ActionScript 3). Nothing else of it changes. Nothing when it is no movie.
//
// A movie that is loaded into another one reports nothing, but one that takes the place of the root goes on reporting.
std::optional<ReportingMovie> MakeReporting(std::string_view movie, std::string_view helperAddress);

}  // namespace swf
