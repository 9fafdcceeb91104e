#pragma once

#include <QApplication>

#include "platform/Faults.h"
#include "platform/qt/QtClock.h"

// The application with a net under it: what an event's handler throws, and nothing inside has caught, ends that event
// and is said on standard error. Qt itself would end the program.
class StationApplication : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  QtClock clock_;
  FaultTeller faults_{clock_};
};
