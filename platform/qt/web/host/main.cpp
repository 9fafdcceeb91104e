#include <QGuiApplication>

#include "platform/qt/programs/host/Unseen.h"
#include "platform/qt/web/host/PageHost.h"

// Shows the web pages of the station that started it, and ends with it.
int main(int argc, char** argv) {
  SettleUnseen();
  QGuiApplication application(argc, argv);
  PageHost host;
  return QGuiApplication::exec();
}
