#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/swf/Tags.h"

namespace swf {

// What a tag places on a timeline.
struct Placement {
  std::optional<int> character;  // none: what stands at the depth already is moved or changed
  int depth = 0;
  bool named = false;
  std::size_t nameAt = 0;  // where in the body its name stands or would have to
};

bool IsPlacement(int code);

// Nothing when the tag is no placement, or a damaged one.
std::optional<Placement> ReadPlacement(const Tag& tag);

// The same placement, of a character without a name, with one. The oldest kind of tag, which knows no names, becomes
// the next one. Nothing when it is damaged.
std::optional<std::string> WithName(const Tag& tag, const Placement& placement, std::string_view name);

}  // namespace swf
