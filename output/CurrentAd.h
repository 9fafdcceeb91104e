#pragma once

#include <string>

// The crawler ad on air: the files in the band, and its shape. All text; every use converts it leniently. Lives for the
// whole run.
struct CurrentAd {
  std::string Header;
  std::string Scorl;
  std::string Left;
  std::string Right;
  std::string CrawlerSpeed;         // twips a tick
  std::string CrawlerHeaderHeight;  // twips
  std::string CrawlerSideWidth;     // twips
  std::string CrawlerAdTop;         // twips above the window's bottom edge
};
