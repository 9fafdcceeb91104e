#pragma once

#include <string>
#include <vector>

#include "overlay/Headlines.h"
#include "overlay/frmBreakingNews.h"
#include "tests/StationTest.h"

// A station with the strip's movie: a hundred frames, 25 a second.
class BreakingNewsTest : public StationTest {
 protected:
  static constexpr const char* kMovie = "/station/Media/FlashBN/bn.swf";
  static constexpr auto kLoop = std::chrono::seconds(4);

  BreakingNewsTest() { sim.files.Put(kMovie, "movie"); }

  frmBreakingNews& Strip() { return station.forms.Get<frmBreakingNews>(); }
  SimSurface& Surface() { return *sim.flash.Find("frmBreakingNews.Flash"); }
  std::string Line() { return Surface().Variable("text1"); }
  void Store(const std::vector<Headline>& headlines) { Headlines(sim.files, station.dataFolder).Store(headlines); }

  // The texts that the strip was given since the last call; each gets a start of the movie.
  Names Given() {
    const std::string movie = std::string("frmBreakingNews.Flash movie ") + kMovie;
    const std::string variable = "frmBreakingNews.Flash variable _levelO.text1=";
    Names texts, lines;
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with("frmBreakingNews.Flash ")) lines.push_back(line);
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const bool isPair = i + 1 < lines.size() && lines[i] == movie && lines[i + 1].starts_with(variable);
      texts.push_back(isPair ? lines[++i].substr(variable.size()) : "unexpected: " + lines[i]);
    }
    return texts;
  }
};
