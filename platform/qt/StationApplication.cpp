#include "platform/qt/StationApplication.h"

#include <exception>

bool StationApplication::notify(QObject* receiver, QEvent* event) {
  const char* where = receiver->metaObject()->className();  // read first: the receiver may be gone afterwards
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& fault) {
    faults_.Tell(where, fault.what());
  } catch (...) {
    faults_.Tell(where, "something that is no exception was thrown");
  }
  return true;
}
