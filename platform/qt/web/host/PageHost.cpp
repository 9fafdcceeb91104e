#include "platform/qt/web/host/PageHost.h"

#include <QDir>
#include <QFileInfo>
#include <QtWebEngineQuick/QQuickWebEngineProfile>

#include "platform/qt/web/WebWire.h"

PageHost::PageHost()
    : station_([this](const QCborArray& message, Descriptor memory) { Hear(message, std::move(memory)); }) {}

PageHost::~PageHost() { pages_.clear(); }

// Nothing but a folder that can be written is of use.
void PageHost::MakeProfile(const QString& folder, bool throwsAway) {
  const QFileInfo found(folder);
  if (throwsAway || (found.exists() && !(found.isDir() && found.isWritable()))) {
    if (found.isDir() && !found.isSymLink()) QDir(folder).removeRecursively();
    if (!found.isDir() || found.isSymLink()) QFile::remove(folder);
  }
  profile_ = std::make_unique<QQuickWebEngineProfile>();
  profile_->setStorageName("station");
  profile_->setPersistentStoragePath(folder + "/pages");
  profile_->setCachePath(folder + "/cache");
  profile_->setOffTheRecord(!QDir().mkpath(folder));
  profile_->setUrlRequestInterceptor(&guard_);
}

WebPage& PageHost::PageAt(int slot) {
  auto& page = pages_[slot];
  if (page) return *page;
  page = std::make_unique<WebPage>(engine_, *profile_, guard_,
                                   WebPage::Listener{[this, slot] {
                                                       station_.Send({wire::kPictures, slot});
                                                     },
                                                     [this, slot](const QString& text) {
                                                       station_.Send({wire::kStatus, slot, serials_[slot], text});
                                                     },
                                                     [this, slot] {
                                                       station_.Send({wire::kLoaded, slot, serials_[slot]});
                                                     }});
  return *page;
}

void PageHost::Hear(const QCborArray& parts, Descriptor memory) {
  const QString about = parts[0].toString();
  if (about == wire::kProfile) return MakeProfile(parts[1].toString(), parts[2].toBool());
  const auto number = [&parts](qsizetype place) { return static_cast<int>(parts[place].toInteger()); };
  const int slot = number(1);
  if (about == wire::kSlot) {
    PageAt(slot).Place(SharedFrames::Open(std::move(memory), {number(2), number(3)}));
  } else if (about == wire::kOpen) {
    serials_[slot] = parts[2].toInteger();
    PageAt(slot).Open(QUrl(parts[3].toString()));
  } else if (about == wire::kReload) {
    PageAt(slot).Reload();
  } else if (about == wire::kLooks) {
    PageAt(slot).SetLooks(number(2), parts[3].toBool(), parts[4].toBool());
  } else if (about == wire::kEnd) {
    pages_.erase(slot);
  } else {
    PageAt(slot).Take(parts);
  }
}
