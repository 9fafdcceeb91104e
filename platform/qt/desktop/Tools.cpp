#include "platform/qt/desktop/Tools.h"

#include <QFileInfo>
#include <QProcess>

#include "platform/CaseFold.h"
#include "platform/posix/ResolvePath.h"

namespace {

constexpr std::string_view kEnding = ".exe";

bool MayRun(const std::string& path) {
  const QFileInfo file(QString::fromStdString(path));
  return file.isFile() && file.isExecutable();
}

}  // namespace

std::string ToolAt(const std::string& path) {
  if (const std::string exact = ResolvePath(path); MayRun(exact)) return exact;
  const std::size_t stem = path.size() - std::min(path.size(), kEnding.size());
  if (!EqualIgnoringCase(std::string_view(path).substr(stem), kEnding)) return "";
  const std::string bare = ResolvePath(path.substr(0, stem));
  return MayRun(bare) ? bare : "";
}

void StartDetached(const std::string& path) {
  const QString tool = QString::fromStdString(ToolAt(path));
  if (!tool.isEmpty()) StartApart(tool, {}, QFileInfo(tool).path());
}

void StartApart(const QString& program, const QStringList& arguments, const QString& folder) {
  QProcess process;
  process.setProgram(program);
  process.setArguments(arguments);
  process.setWorkingDirectory(folder);
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.startDetached();
}
