#pragma once

#include <string>

#include "platform/toolkit/Measures.h"
#include "settings/Stores.h"

// The pages of the web feed as they lie in Page.ini: a section for each, of the name that the operator gave it, which
// may be any text. Each operation points DataIni at that file and leaves it there.

inline constexpr char kPageFile[] = "Page.ini";
inline constexpr char kPageSettingsFile[] = "settings_page.ini";

// The page that the web feed's window was given last; saves go to it. One for the station.
struct CurrentPage {
  std::string CurrentPageName;
};

// Where the page stands in its window, and the window on the screen. Twips.
struct PagePlace {
  Twips pageTop = 0;
  Twips pageLeft = 0;
  Twips height = 0;
  Twips width = 0;
  Twips top = 0;
  Twips left = 0;

  bool operator==(const PagePlace&) const = default;
};

struct StoredPage {
  std::string url;
  PagePlace place;
};

// A page of which a key is lost has a small window; one that is not there at all has no address either.
StoredPage ReadPage(Stores& stores, const std::string& name);
// A page of that name that exists is the same section, with its keys overwritten.
void AddPage(Stores& stores, const std::string& name, const StoredPage& page);
// The address stays as it is.
void SavePagePlace(Stores& stores, const std::string& name, const PagePlace& place);
