#include "platform/qt/flash/QtFlash.h"

#include "platform/qt/flash/MovieWire.h"
#include "platform/qt/flash/QtSurface.h"

QtFlash::QtFlash(PictureLoader& pictures, std::string program) : SideEngine(std::move(program)), pictures_(pictures) {}

QtFlash::~QtFlash() = default;

std::unique_ptr<FlashSurface> QtFlash::NewSurface(const std::string& name, FlashListener& listener) {
  auto surface = std::make_unique<QtSurface>(*this, listener);
  surface->setObjectName(QString::fromStdString(name));
  return surface;
}

void QtFlash::BeginSoon() {
  if (std::exchange(beginning_, true)) return;
  QMetaObject::invokeMethod(this, &QtFlash::Begin, Qt::QueuedConnection);
}

// What is seen leads; what nobody sees goes along with it.
void QtFlash::Begin() {
  beginning_ = false;
  for (const auto& [slot, surface] : Surfaces()) surface->LeaveALeaderThatGoesElsewhere();
  for (const auto& [slot, surface] : Surfaces()) {
    QtSurface* leader = surface->Waits() ? LeaderFor(*surface) : nullptr;
    if (leader != nullptr) surface->Follow(*leader);
  }
  for (const auto& [slot, surface] : Surfaces()) surface->Begin();
}

QtSurface* QtFlash::LeaderFor(const QtSurface& surface) const {
  for (const auto& [slot, other] : Surfaces()) {
    if (other != &surface && other->MayLead(surface)) return other;
  }
  return nullptr;
}

void QtFlash::Hear(const QCborArray& message) {
  const QString about = message[0].toString();
  if (about == wire::kFrames) {
    for (qsizetype i = 1; i + 2 < message.size(); i += 3) {
      QtSurface* surface = SurfaceAt(message[i]);
      if (surface != nullptr) surface->Shown(message[i + 1].toInteger(), static_cast<int>(message[i + 2].toInteger()));
    }
  } else if (QtSurface* surface = SurfaceAt(message[1])) {
    if (about == wire::kUp) surface->Settled(message[2].toInteger());
    if (about == wire::kBad) surface->Refused(message[2].toInteger());
  }
}
