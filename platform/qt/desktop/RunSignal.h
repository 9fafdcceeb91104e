#pragma once

#include <QAbstractNativeEventFilter>
#include <functional>
#include <string>

// How a further start of one station's program finds the run that is there: by a selection of the X server, which the
// server takes back when its owner is gone. Without X nobody is found.
class RunSignal : public QAbstractNativeEventFilter {
 public:
  // `folder` is the station's; whatever way leads there, the folder is the same one.
  explicit RunSignal(const std::string& folder);
  ~RunSignal() override;

  // From now on this run is the one that is found. `told` runs from the message loop.
  void Listen(std::function<void()> told);
  // Tells the run that listens; false when there is none.
  bool Tell() const;

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  std::string name_;
  unsigned long window_ = 0;
  std::function<void()> told_;
};
