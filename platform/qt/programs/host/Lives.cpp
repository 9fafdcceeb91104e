#include "platform/qt/programs/host/Lives.h"

#include <QFile>

bool Lives(qint64 process) {
  QFile about(QString("/proc/%1/stat").arg(process));
  if (!about.open(QIODevice::ReadOnly)) return false;
  constexpr unsigned kExiting = 4;  // of the process' flags, the seventh field behind its name
  const QByteArray line = about.readAll();
  const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
  return fields.size() > 6 && fields[0] != "Z" && fields[0] != "X" && (fields[6].toULongLong() & kExiting) == 0;
}
