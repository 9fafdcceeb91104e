#include "platform/qt/desktop/AutoStart.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QThreadPool>

namespace {

// The command line of an entry has two layers of escapes: those of a quoted argument, and above them those of every
// text in the file, in which a backslash is doubled. A percent sign would begin a field code.
QString QuotedProgram(const QString& program) {
  QString quoted;
  for (const QChar letter : program) {
    if (QString("\"`$\\").contains(letter)) quoted += '\\';
    quoted += letter;
    if (letter == '%') quoted += letter;
  }
  return '"' + quoted.replace("\\", "\\\\") + '"';
}

void WriteEntry(const QString& file, const QByteArray& entry) {
  QFile standing(file);
  if (standing.open(QFile::ReadOnly) && standing.readAll() == entry) return;
  QDir().mkpath(QFileInfo(file).path());
  QSaveFile written(file);
  if (written.open(QFile::WriteOnly) && written.write(entry) == entry.size()) written.commit();
}

}  // namespace

QString AutoStartEntry(const std::string& name, const std::string& program) {
  return QString("[Desktop Entry]\nType=Application\nName=%1\nExec=%2\nTerminal=false\n")
      .arg(QString::fromStdString(name), QuotedProgram(QString::fromStdString(program)));
}

void WriteAutoStart(const std::string& name, const std::string& program) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart";
  const QString file = folder + '/' + QString::fromStdString(name) + ".desktop";
  const QByteArray entry = AutoStartEntry(name, program).toUtf8();
  QThreadPool::globalInstance()->start([file, entry] { WriteEntry(file, entry); });
}
