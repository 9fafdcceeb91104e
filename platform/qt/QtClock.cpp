#include "platform/qt/QtClock.h"

#include <QDateTime>

std::chrono::nanoseconds QtClock::Steady() const { return std::chrono::steady_clock::now().time_since_epoch(); }

DateTime QtClock::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second(), time.msec()};
}
