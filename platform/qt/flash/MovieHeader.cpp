#include "platform/qt/flash/MovieHeader.h"

#include <QFile>
#include <QFileInfo>

// A few milliseconds at most: only the first bytes are read, and of a packed movie only its header is unpacked.
std::optional<swf::Header> ReadMovieHeader(const std::string& path) {
  const QString name = QString::fromStdString(path);
  if (!QFileInfo(name).isFile()) return std::nullopt;
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray first = file.read(swf::kHeaderBytes);
  return swf::ReadHeader({first.constData(), static_cast<std::size_t>(first.size())});
}
