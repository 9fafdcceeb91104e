#include "platform/qt/feeds/FeedJob.h"

#include <QFile>
#include <QFileInfo>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>
#include <utility>

#include "platform/qt/feeds/ReadFeed.h"

namespace {

constexpr int kMostRedirects = 5;
constexpr int kOk = 200;

// A pipe or a device would wait for somebody to write to it, perhaps for ever.
std::optional<FeedTitles> FromFile(const QString& path) {
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QFile::ReadOnly)) return std::nullopt;
  const QByteArray body = file.read(qint64{kMostFeedBytes} + 1);
  return body.size() > qint64{kMostFeedBytes} ? std::nullopt : ReadFeed(body);
}

}  // namespace

FeedJob::FeedJob(const QString& address, Told told) : told_(std::move(told)) {
  const QUrl url(address);
  if (url.isLocalFile()) {
    Tell(FromFile(url.toLocalFile()));
  } else if (url.scheme() == "http" || url.scheme() == "https") {
    Ask(url);
  } else {
    Tell(std::nullopt);
  }
}

void FeedJob::Ask(const QUrl& url) {
  QNetworkRequest request(url);
  request.setHeader(QNetworkRequest::UserAgentHeader, "Corvanta");
  request.setRawHeader("Accept", "application/rss+xml, application/atom+xml, application/xml;q=0.9, */*;q=0.1");
  // From https to http is a step that nobody asked for; to a file none ever leads.
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setMaximumRedirectsAllowed(kMostRedirects);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  reply_ = network_.get(request);
  reply_->setReadBufferSize(qint64{kMostFeedBytes} + 1);
  connect(reply_, &QNetworkReply::readyRead, this, &FeedJob::Take);
  connect(reply_, &QNetworkReply::finished, this, [this] {
    Take();
    if (!told_) return;
    const bool isWhole = reply_->error() == QNetworkReply::NoError &&
                         reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == kOk;
    Tell(isWhole ? ReadFeed(body_) : std::nullopt);
  });
}

void FeedJob::Take() {
  if (!told_) return;
  body_ += reply_->readAll();
  if (body_.size() <= qint64{kMostFeedBytes}) return;
  Tell(std::nullopt);
  reply_->abort();
}

void FeedJob::Tell(const std::optional<FeedTitles>& titles) {
  if (const Told told = std::exchange(told_, nullptr)) told(titles);
}
