#include "platform/qt/flash/QtFlash.h"

#include "platform/qt/flash/MovieWire.h"
#include "platform/qt/flash/QtSurface.h"

QtFlash::QtFlash(PictureLoader& pictures, std::string program)
    : pictures_(pictures),
      program_(
          std::move(program), [this](const QCborArray& message) { Hear(message); }, [this] { ProgramBegun(); }) {}

QtFlash::~QtFlash() = default;

std::unique_ptr<FlashSurface> QtFlash::NewSurface(const std::string& name, FlashListener& listener) {
  auto surface = std::make_unique<QtSurface>(*this, listener);
  surface->setObjectName(QString::fromStdString(name));
  return surface;
}

int QtFlash::Add(QtSurface& surface) {
  surfaces_[++lastSlot_] = &surface;
  return lastSlot_;
}

void QtFlash::Remove(int slot) {
  surfaces_.erase(slot);
  program_.Send({wire::kEnd, slot});
}

QtSurface* QtFlash::Find(int slot) const {
  const auto found = surfaces_.find(slot);
  return found == surfaces_.end() ? nullptr : found->second;
}

void QtFlash::BeginSoon() {
  if (std::exchange(beginning_, true)) return;
  QMetaObject::invokeMethod(this, &QtFlash::Begin, Qt::QueuedConnection);
}

// What is seen leads; what nobody sees goes along with it.
void QtFlash::Begin() {
  beginning_ = false;
  for (const auto& [slot, surface] : surfaces_) surface->LeaveALeaderThatGoesElsewhere();
  for (const auto& [slot, surface] : surfaces_) {
    QtSurface* leader = surface->Waits() ? LeaderFor(*surface) : nullptr;
    if (leader != nullptr) surface->Follow(*leader);
  }
  for (const auto& [slot, surface] : surfaces_) surface->Begin();
}

QtSurface* QtFlash::LeaderFor(const QtSurface& surface) const {
  for (const auto& [slot, other] : surfaces_) {
    if (other != &surface && other->MayLead(surface)) return other;
  }
  return nullptr;
}

void QtFlash::ProgramBegun() {
  for (const auto& [slot, surface] : surfaces_) surface->TellAll();
}

void QtFlash::Hear(const QCborArray& message) {
  const QString about = message[0].toString();
  if (about == wire::kFrames) {
    for (qsizetype i = 1; i + 2 < message.size(); i += 3) {
      QtSurface* surface = Find(static_cast<int>(message[i].toInteger()));
      if (surface != nullptr) surface->Shown(message[i + 1].toInteger(), static_cast<int>(message[i + 2].toInteger()));
    }
  } else if (about == wire::kPictures) {
    for (qsizetype i = 1; i < message.size(); ++i) {
      QtSurface* surface = Find(static_cast<int>(message[i].toInteger()));
      if (surface != nullptr) surface->PictureWaits();
    }
  } else if (about == wire::kUp || about == wire::kBad) {
    QtSurface* surface = Find(static_cast<int>(message[1].toInteger()));
    const auto settled = about == wire::kUp ? &QtSurface::Settled : &QtSurface::Refused;
    if (surface != nullptr) (surface->*settled)(message[2].toInteger());
  }
}
