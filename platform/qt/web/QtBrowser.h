#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <map>
#include <string>

#include "platform/Browser.h"
#include "platform/qt/programs/SideProgram.h"

class QtPage;

// The pages of the real world. They are shown by a program of its own, which the first address starts and which ends
// with the last surface. What it keeps between runs lies in one folder; when it does not even live long enough to show
// a page, that folder is thrown away.
class QtBrowser : public QObject, public BrowserEngine {
 public:
  // `program`: the path of the program that shows pages. It must outlive all surfaces.
  QtBrowser(std::string program, std::string profileFolder);
  ~QtBrowser() override;

  std::unique_ptr<BrowserSurface> NewSurface(const std::string& name, BrowserListener& listener) override;

  // For the surfaces.
  SideProgram& Program() { return program_; }
  qint64 NewSerial() { return ++lastSerial_; }
  int Add(QtPage& page);
  void Remove(int slot);

 private:
  void Hear(const QCborArray& message);
  void ProgramBegun();

  std::map<int, QtPage*> pages_;
  std::string profileFolder_;
  SideProgram program_;
  QElapsedTimer sinceBegun_;
  int lastSlot_ = 0;
  qint64 lastSerial_ = 0;
};
