#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "settings/DataFolder.h"
#include "settings/IniFile.h"

// One line for the news strip.
struct Headline {
  std::string text;
  bool active = false;

  bool operator==(const Headline&) const = default;
};

// The operator's own headlines: rss.ini, a section for each, "1", "2" and so on in their order, with the keys Text and
// Active. The file is read as it stands at each call, and written by Store alone.
class Headlines {
 public:
  Headlines(Files& files, const DataFolder& folder);

  // In the order of their numbers, which may have gaps. What is not Active=1 is off.
  std::vector<Headline> All();
  // Puts these in the place of all that are there, in one step; everything else in the file stays.
  void Store(const std::vector<Headline>& headlines);
  // The text that comes next on the strip: of the headlines that are on and not blank, and of the titles of the feed,
  // which follow them, the one behind the text given last, and after the last the first. Nothing when there is none.
  std::optional<std::string> NextRSS(const std::vector<std::string>& titles = {});

 private:
  std::size_t FirstToTry(const std::vector<Headline>& all) const;

  IniFile file_;
  std::size_t given_ = 0;  // row of the text given last, from 1; 0 before the first
  std::string text_;
};
