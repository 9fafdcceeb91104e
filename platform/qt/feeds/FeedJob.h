#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

#include "platform/NewsFeeds.h"

class QNetworkReply;
class QUrl;

// One fetch of a feed, on the thread that makes it. `told` is called once, on that thread, perhaps from the
// constructor; not after the job is gone.
class FeedJob : public QObject {
 public:
  using Told = std::function<void(const std::optional<FeedTitles>&)>;

  FeedJob(const QString& address, Told told);

 private:
  void Ask(const QUrl& url);
  void Take();
  void Tell(const std::optional<FeedTitles>& titles);

  Told told_;
  QNetworkAccessManager network_;
  QNetworkReply* reply_ = nullptr;
  QByteArray body_;
};
