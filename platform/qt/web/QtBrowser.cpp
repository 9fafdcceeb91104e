#include "platform/qt/web/QtBrowser.h"

#include "platform/qt/web/QtPage.h"
#include "platform/qt/web/WebWire.h"

namespace {

constexpr qint64 kAGoodLife = 10'000;  // milliseconds

}  // namespace

QtBrowser::QtBrowser(std::string program, std::string profileFolder)
    : profileFolder_(std::move(profileFolder)),
      program_(
          std::move(program), [this](const QCborArray& message) { Hear(message); }, [this] { ProgramBegun(); }) {}

QtBrowser::~QtBrowser() = default;

std::unique_ptr<BrowserSurface> QtBrowser::NewSurface(const std::string& name, BrowserListener& listener) {
  auto page = std::make_unique<QtPage>(*this, listener);
  page->setObjectName(QString::fromStdString(name));
  return page;
}

int QtBrowser::Add(QtPage& page) {
  pages_[++lastSlot_] = &page;
  return lastSlot_;
}

void QtBrowser::Remove(int slot) {
  pages_.erase(slot);
  program_.Send({wire::kEnd, slot});
  if (!pages_.empty()) return;
  program_.Stop();
  sinceBegun_.invalidate();
}

void QtBrowser::ProgramBegun() {
  const bool mayBeDamaged = sinceBegun_.isValid() && sinceBegun_.elapsed() < kAGoodLife;
  sinceBegun_.start();
  program_.Send({wire::kProfile, QString::fromStdString(profileFolder_), mayBeDamaged});
  for (const auto& [slot, page] : pages_) page->TellAll();
}

void QtBrowser::Hear(const QCborArray& message) {
  const auto find = [this](const QCborValue& slot) {
    const auto found = pages_.find(static_cast<int>(slot.toInteger()));
    return found == pages_.end() ? nullptr : found->second;
  };
  const QString about = message[0].toString();
  if (about == wire::kPictures) {
    for (qsizetype i = 1; i < message.size(); ++i) {
      if (QtPage* page = find(message[i])) page->PictureWaits();
    }
  } else if (QtPage* page = find(message[1])) {
    const qint64 serial = message[2].toInteger();
    if (about == wire::kStatus) page->StatusChanged(serial, message[3].toString().toStdString());
    if (about == wire::kLoaded) page->Loaded(serial);
  }
}
