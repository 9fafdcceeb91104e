#include "tests/platform/qt/TestMedia.h"

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace test_media {

namespace {

void Ffmpeg(QStringList arguments, const std::string& output) {
  arguments = QStringList{"-v", "error", "-y"} + arguments + QStringList{QString::fromStdString(output)};
  if (QProcess::execute("ffmpeg", arguments) != 0) qFatal("ffmpeg could not make %s", output.c_str());
}

}  // namespace

std::string PathOf(const std::string& name) {
  static const QTemporaryDir folder;
  return folder.filePath(QString::fromStdString(name)).toStdString();
}

std::string Clip(const std::string& name, const QColor& colour, double seconds, QSize size) {
  const std::string path = PathOf(name);
  const QString picture =
      QString("color=c=%1:s=%2x%3:r=25:d=%4").arg(colour.name()).arg(size.width()).arg(size.height()).arg(seconds);
  Ffmpeg({"-f", "lavfi", "-i", picture, "-f", "lavfi", "-i", QString("sine=duration=%1").arg(seconds), "-c:v",
          "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p", "-c:a", "aac"},
         path);
  return path;
}

std::string Tone(const std::string& name, double seconds) {
  const std::string path = PathOf(name);
  Ffmpeg({"-f", "lavfi", "-i", QString("sine=duration=%1").arg(seconds)}, path);
  return path;
}

std::string Picture(const std::string& name, const QColor& colour, QSize size) {
  const std::string path = PathOf(name);
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  image.save(QString::fromStdString(path), nullptr, 100);
  return path;
}

std::string Text(const std::string& name, const std::string& content) {
  const std::string path = PathOf(name);
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write %s", path.c_str());
  file.write(QByteArray::fromStdString(content));
  return path;
}

std::string FirstPart(const std::string& name, const std::string& of, double share) {
  QFile file(QString::fromStdString(of));
  if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", of.c_str());
  const QByteArray all = file.readAll();
  return Text(name, all.left(static_cast<qsizetype>(static_cast<double>(all.size()) * share)).toStdString());
}

}  // namespace test_media

bool Until(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
  return QTest::qWaitFor(condition, static_cast<int>(patience.count()));
}

void Pass(std::chrono::milliseconds time) { QTest::qWait(static_cast<int>(time.count())); }
