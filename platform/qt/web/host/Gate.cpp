#include "platform/qt/web/host/Gate.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

// The real name of a file, behind all links; of one that is not there, the name that it would have.
QString RealPath(const QUrl& address) {
  const QFileInfo file(address.toLocalFile());
  const QString real = file.canonicalFilePath();
  return real.isEmpty() ? QDir::cleanPath(file.absoluteFilePath()) : real;
}

QString FolderOf(const QUrl& address) {
  const QString path = RealPath(address);
  return path.left(path.lastIndexOf('/') + 1);
}

bool IsFile(const QUrl& address) { return address.scheme() == "file"; }

bool LiesIn(const QString& folder, const QUrl& file) {
  return !folder.isEmpty() && file.host().isEmpty() && RealPath(file).startsWith(folder);
}

}  // namespace

Gate::Gate(Guard& guard, Listener listener) : guard_(guard), listener_(std::move(listener)) {
  guard_.gates_.insert(this);
}

Gate::~Gate() { guard_.gates_.erase(this); }

void Gate::Open(const QUrl& address) { folder_ = IsFile(address) ? FolderOf(address) : QString(); }

bool Gate::Holds(const QUrl& file) const { return LiesIn(folder_, file); }

bool Gate::MayGo(const QUrl& address) const {
  static const QStringList kOpen{"http", "https", "about", "data", "blob", "chrome-error"};
  return IsFile(address) ? Holds(address) : kOpen.contains(address.scheme());
}

bool Gate::MayOpen(const QUrl& address) const {
  return !address.isEmpty() && address.scheme() != "about" && MayGo(address);
}

// What is opened as a page has passed the gate of its own view.
void Guard::interceptRequest(QWebEngineUrlRequestInfo& request) {
  const QUrl file = request.requestUrl();
  if (!IsFile(file) || request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) return;
  const QUrl page = request.firstPartyUrl();
  const bool isNamed = IsFile(page) && page.path().size() > 1;
  const bool isOwn = isNamed ? LiesIn(FolderOf(page), file)
                             : std::ranges::any_of(gates_, [&](const Gate* gate) { return gate->Holds(file); });
  const bool isOfTheDisk = IsFile(page) || IsFile(request.initiator());
  if (!isOfTheDisk || !isOwn) request.block(true);
}
