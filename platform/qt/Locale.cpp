#include "platform/qt/Locale.h"

#include <QCoreApplication>
#include <clocale>

void SettleLocale() {
  {
    // The first application of a process sets the locale of the session, and no later one does. This one starts no
    // threads, to which a change of the locale later on would be a race.
    int count = 1;
    char name[] = "corvanta";
    char* words[] = {name, nullptr};
    const QCoreApplication first(count, words);
  }
  std::setlocale(LC_NUMERIC, "C");
}
