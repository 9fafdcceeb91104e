#pragma once

#include <QObject>
#include <QThread>
#include <chrono>
#include <map>
#include <memory>

#include "platform/NewsFeeds.h"

class FeedJob;

// Feeds over Qt's network. The jobs live on a thread of its own, "feeds", which starts with the first of them; what
// they find is handed over on the thread that made this object, which waits for that one at its end alone.
class QtNewsFeeds : public NewsFeeds {
 public:
  explicit QtNewsFeeds(std::chrono::milliseconds patience = kFeedPatience);
  ~QtNewsFeeds() override;

  std::unique_ptr<FeedFetch> Fetch(const std::string& address, Fetched fetched) override;

 private:
  using Ticket = quint64;
  class Handle;

  void Begin(Ticket ticket, const QString& address);
  // From either thread: Tell, from the message loop.
  void Post(Ticket ticket, const std::optional<FeedTitles>& titles);
  void Tell(Ticket ticket, const std::optional<FeedTitles>& titles);
  void Drop(Ticket ticket);

  std::chrono::milliseconds patience_;
  Ticket lastTicket_ = 0;
  std::map<Ticket, Fetched> waiting_;
  QObject here_;  // on this thread: what is posted to it runs there

  QThread thread_;
  // On the other thread, and touched there alone.
  std::unique_ptr<QObject> there_;
  std::map<Ticket, std::unique_ptr<FeedJob>> jobs_;
};
