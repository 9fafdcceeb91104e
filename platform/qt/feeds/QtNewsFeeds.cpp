#include "platform/qt/feeds/QtNewsFeeds.h"

#include <QString>
#include <QTimer>
#include <utility>

#include "platform/qt/feeds/FeedJob.h"

class QtNewsFeeds::Handle : public FeedFetch {
 public:
  Handle(QtNewsFeeds& feeds, Ticket ticket) : feeds_(feeds), ticket_(ticket) {
    // Kept on this thread: that of the jobs may be held up by a file that hangs.
    patience_.setSingleShot(true);
    QObject::connect(&patience_, &QTimer::timeout, &feeds_.here_, [this] { feeds_.Post(ticket_, std::nullopt); });
    patience_.start(feeds.patience_);
  }
  ~Handle() override { feeds_.Drop(ticket_); }

 private:
  QtNewsFeeds& feeds_;
  Ticket ticket_;
  QTimer patience_;
};

QtNewsFeeds::QtNewsFeeds(std::chrono::milliseconds patience) : patience_(patience) {}

QtNewsFeeds::~QtNewsFeeds() {
  if (!there_) return;
  QMetaObject::invokeMethod(there_.get(), [this] {
    jobs_.clear();
    thread_.quit();
  });
  thread_.wait();
}

std::unique_ptr<FeedFetch> QtNewsFeeds::Fetch(const std::string& address, Fetched fetched) {
  if (!there_) {
    there_ = std::make_unique<QObject>();
    there_->moveToThread(&thread_);
    thread_.setObjectName("feeds");
    thread_.start();
  }
  const Ticket ticket = ++lastTicket_;
  waiting_[ticket] = std::move(fetched);
  Begin(ticket, QString::fromStdString(address));
  return std::make_unique<Handle>(*this, ticket);
}

void QtNewsFeeds::Begin(Ticket ticket, const QString& address) {
  QMetaObject::invokeMethod(there_.get(), [this, ticket, address] {
    const auto told = [this, ticket](const std::optional<FeedTitles>& titles) { Post(ticket, titles); };
    jobs_[ticket] = std::make_unique<FeedJob>(address, told);
  });
}

void QtNewsFeeds::Post(Ticket ticket, const std::optional<FeedTitles>& titles) {
  const auto tell = [this, ticket, titles] { Tell(ticket, titles); };
  QMetaObject::invokeMethod(&here_, tell, Qt::QueuedConnection);
}

// The call may drop the fetch that it is for.
void QtNewsFeeds::Tell(Ticket ticket, const std::optional<FeedTitles>& titles) {
  const auto found = waiting_.find(ticket);
  if (found == waiting_.end()) return;
  const Fetched fetched = std::exchange(found->second, nullptr);
  waiting_.erase(found);
  fetched(titles);
}

void QtNewsFeeds::Drop(Ticket ticket) {
  waiting_.erase(ticket);
  QMetaObject::invokeMethod(there_.get(), [this, ticket] { jobs_.erase(ticket); });
}
