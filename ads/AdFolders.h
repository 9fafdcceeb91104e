#pragma once

#include <string>
#include <string_view>

class ListView;
class Station;

// The ads on disk. An ad is a folder with an adinfo.ini in it; the folder's name is the ad's name and its only
// identity, and there is no other index: what stands in the folder is the list.
enum class AdStore { kCrawler, kVideo };

// The path behind a tail inside the ad's folder, such as "\\scorl.jpg"; the folder itself for the empty tail. `name`
// must be a plain name.
std::string AdPath(const Station& station, AdStore store, std::string_view name, std::string_view tail = "");

// Rebuilds the list from the sub folders of `folder`, a row each, by name without regard to case. The row that was
// selected is selected again by its name, unless a tick has selected another meanwhile: after each row the ticks that
// are due run, and they find the list half filled. Leaves the shared ad file at the last ad.
void LoadAdList(Station& station, const std::string& folder, ListView& list);
void LoadVideoAdList(Station& station, const std::string& folder, ListView& list);

// True when there is such a folder already. Otherwise makes it with an empty adinfo.ini and gives false, also when it
// cannot be made.
bool CreateAdFolder(Station& station, const std::string& name);
bool CreateVideoAdFolder(Station& station, const std::string& name);

// Settles what a cut left of video ads that were being made: folders whose adinfo.ini is empty. No such ad could ever
// be played, or be over, and its break would hold the programme. One whose video is there gets its name into the
// description; one with nothing else in it is removed. Not for while one is being made.
void SettleUnfinishedVideoAds(Station& station);

// Removes the ad with all its files. What is no plain name removes nothing.
void DeleteAdFolder(Station& station, AdStore store, const std::string& name);
