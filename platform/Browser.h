#pragma once

#include <memory>
#include <string>

// Hears what a page does. Called on the station's thread, never from inside a call of the surface.
class BrowserListener {
 public:
  virtual ~BrowserListener() = default;
  // What a browser says at the foot of its window: "Loading.." when a page begins to load, the address of the link
  // under the pointer, "Done" when nothing more is loaded or can be had.
  virtual void StatusChanged(const std::string& text) = 0;
  // A page is there with all that belongs to it. Not told of one that could not be had.
  virtual void PageLoaded() = 0;
};

// How a page is shown, and whether it is heard.
struct PageLooks {
  int zoom = 100;  // per cent
  bool sound = true;
  bool scrollBars = true;

  bool operator==(const PageLooks&) const = default;
};

// One place that shows a web page. Nothing that a page does stops the operator or reaches beyond it: its dialogs are
// answered with no, its windows open in place, what it wants to store or to be allowed is refused, and so is a server
// whose certificate is not good. A page of the network reaches no file; a page on the disk reaches its own folder
// alone.
class BrowserSurface {
 public:
  virtual ~BrowserSurface() = default;

  // Opens an address of http, https or file in place of what is shown, which stands until something of the new page
  // can be seen. A page that cannot be had shows as the browser's own error page and is tried again every now and then.
  // Any other address is not opened; the empty one shows nothing, and nothing is told of it.
  virtual void Navigate(const std::string& address) = 0;
  // Loads what is shown once more.
  virtual void Reload() = 0;
  virtual void SetLooks(const PageLooks& looks) = 0;
};

// Makes the surfaces.
class BrowserEngine {
 public:
  virtual ~BrowserEngine() = default;
  // Cheap: what a browser costs is spent at the first address. `name` ("FrmWeb.Web") is for diagnosis alone; `listener`
  // must outlive the surface.
  virtual std::unique_ptr<BrowserSurface> NewSurface(const std::string& name, BrowserListener& listener) = 0;
};
