#include "platform/qt/web/QtBrowser.h"

#include "platform/qt/web/QtPage.h"
#include "platform/qt/web/WebWire.h"

namespace {

constexpr qint64 kAGoodLife = 10'000;  // milliseconds

}  // namespace

QtBrowser::QtBrowser(std::string program, std::string profileFolder)
    : SideEngine(std::move(program)), profileFolder_(std::move(profileFolder)) {}

QtBrowser::~QtBrowser() = default;

std::unique_ptr<BrowserSurface> QtBrowser::NewSurface(const std::string& name, BrowserListener& listener) {
  auto page = std::make_unique<QtPage>(*this, listener);
  page->setObjectName(QString::fromStdString(name));
  return page;
}

void QtBrowser::ProgramBegun() {
  const bool mayBeDamaged = sinceBegun_.isValid() && sinceBegun_.elapsed() < kAGoodLife;
  sinceBegun_.start();
  Program().Send({wire::kProfile, QString::fromStdString(profileFolder_), mayBeDamaged});
}

void QtBrowser::Emptied() {
  Program().Stop();
  sinceBegun_.invalidate();
}

void QtBrowser::Hear(const QCborArray& message) {
  QtPage* page = SurfaceAt(message[1]);
  if (page == nullptr) return;
  const QString about = message[0].toString();
  const qint64 serial = message[2].toInteger();
  if (about == wire::kStatus) page->StatusChanged(serial, message[3].toString().toStdString());
  if (about == wire::kLoaded) page->Loaded(serial);
}
