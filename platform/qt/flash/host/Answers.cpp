#include "platform/qt/flash/host/Answers.h"

#include <QBuffer>
#include <QFile>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

#include "platform/swf/HelperMovie.h"

namespace {

constexpr char kScheme[] = "station";
constexpr char kHost[] = "movies";
constexpr char kMovieType[] = "application/x-shockwave-flash";

QUrl Address(const QString& path) {
  QUrl url;
  url.setScheme(kScheme);
  url.setHost(kHost);
  url.setPath(path);
  return url;
}

QByteArray TypeOf(const QString& path) {
  if (path.endsWith(".html")) return "text/html";
  if (path.endsWith(".js")) return "text/javascript";
  if (path.endsWith(".wasm")) return "application/wasm";
  return "application/octet-stream";
}

void Reply(QWebEngineUrlRequestJob& job, const QByteArray& type, const QByteArray& bytes) {
  auto* buffer = new QBuffer(&job);
  buffer->setData(bytes);
  buffer->open(QIODevice::ReadOnly);
  job.reply(type, buffer);
}

}  // namespace

void Answers::RegisterScheme() {
  QWebEngineUrlScheme scheme(kScheme);
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  scheme.setFlags(QWebEngineUrlScheme::SecureScheme | QWebEngineUrlScheme::CorsEnabled |
                  QWebEngineUrlScheme::LocalAccessAllowed);
  QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl Answers::PageAddress() { return Address("/page.html"); }

QString Answers::HelperAddress() { return Address("/movie/helper.swf").toString(QUrl::FullyEncoded); }

QString Answers::AddMovie(qint64 serial, const QString& fileName, const QByteArray& bytes) {
  const QString path = QString("/movie/%1/%2").arg(serial).arg(fileName);
  movies_[serial] = {path, bytes};
  return Address(path).toString(QUrl::FullyEncoded);
}

void Answers::requestStarted(QWebEngineUrlRequestJob* job) {
  const QString path = job->requestUrl().path(QUrl::FullyDecoded);
  if (path == "/movie/helper.swf") return Reply(*job, kMovieType, QByteArray::fromStdString(swf::HelperMovie()));
  const auto movie = movies_.constFind(path.section('/', 2, 2).toLongLong());
  if (movie != movies_.cend() && movie->path == path) return Reply(*job, kMovieType, movie->bytes);
  auto* file = new QFile(":/movies" + path, job);
  if (path.startsWith("/movie/") || !file->open(QIODevice::ReadOnly))
    return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
  job->reply(TypeOf(path), file);
}
