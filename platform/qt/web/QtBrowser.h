#pragma once

#include <QElapsedTimer>
#include <string>

#include "platform/Browser.h"
#include "platform/qt/programs/SideEngine.h"

class QtPage;

// The pages of the real world. They are shown by a program of its own, which the first address starts and which ends
// with the last surface. What it keeps between runs lies in one folder; when it does not even live long enough to show
// a page, that folder is thrown away.
class QtBrowser : public BrowserEngine, public SideEngine<QtPage> {
 public:
  // `program`: the path of the program that shows pages. It must outlive all surfaces.
  QtBrowser(std::string program, std::string profileFolder);
  ~QtBrowser() override;

  std::unique_ptr<BrowserSurface> NewSurface(const std::string& name, BrowserListener& listener) override;

 private:
  void Hear(const QCborArray& message) override;
  void ProgramBegun() override;
  void Emptied() override;

  std::string profileFolder_;
  QElapsedTimer sinceBegun_;
};
