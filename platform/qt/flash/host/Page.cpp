#include "platform/qt/flash/host/Page.h"

#include <QJsonDocument>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderTarget>
#include <algorithm>
#include <cstring>

#include "platform/qt/flash/host/Answers.h"
#include "platform/qt/flash/host/LineReceiver.h"
#include "platform/qt/programs/host/Lives.h"

namespace {

constexpr int kBetweenPaintings = 16;  // milliseconds
// What the page says it has laid out is painted by the browser a little later.
constexpr int kUntilPainted = 80;
constexpr int kLongestBlank = 1000;

}  // namespace

Page::Page(QQmlEngine& engine, Listener listener)
    : listener_(std::move(listener)), window_(std::make_unique<QQuickWindow>(&control_)) {
  window_->setColor(Qt::transparent);
  QQmlComponent component(&engine, QUrl("qrc:/movies/View.qml"));
  view_ = qobject_cast<QQuickItem*>(component.create());
  if (view_ == nullptr) qFatal("The movie page cannot be made: %s", qPrintable(component.errorString()));
  view_->setParentItem(window_->contentItem());
  // The signals are of QML: functors cannot be connected to them by type.
  connect(view_, SIGNAL(told(QString)), new LineReceiver([this](const QString& line) { Tell(line); }, this),
          SLOT(Hear(QString)));
  connect(view_, SIGNAL(ended()), new LineReceiver([this](const QString&) { listener_.died(); }, this), SLOT(Hear()));
  connect(&control_, &QQuickRenderControl::sceneChanged, this, &Page::Ask);
  connect(&control_, &QQuickRenderControl::renderRequested, this, &Page::Ask);
  due_.setSingleShot(true);
  due_.setTimerType(Qt::PreciseTimer);
  connect(&due_, &QTimer::timeout, this, &Page::Paint);
  sincePainted_.start();
  Fit();
  view_->setProperty("url", Answers::PageAddress());
}

Page::~Page() { delete view_; }

void Page::Place(int slot, QSize pixels, std::shared_ptr<SharedFrames> frames) {
  Part& part = parts_[slot];
  part.frames = std::move(frames);
  part.fresh = true;
  if (part.place.size() == pixels) return Ask();
  part.place = shelves_.Put(slot, pixels);
  part.laidOut = false;
  Fit();
  LayOut(slot);
}

void Page::LayOut(int slot) {
  const QRect& place = parts_[slot].place;
  Call("place", {slot, place.x(), place.y(), place.width(), place.height()});
}

void Page::Remove(int slot) {
  if (parts_.erase(slot) == 0) return;
  shelves_.Remove(slot);
  Call("end", {slot});
  Fit();
}

void Page::Fit() {
  const QSize size = shelves_.Extent().expandedTo({16, 16});
  if (view_->size().toSize() == size) return;
  window_->setGeometry(0, 0, size.width(), size.height());
  window_->contentItem()->setSize(size);
  view_->setSize(size);
  picture_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
  picture_.fill(Qt::transparent);
  window_->setRenderTarget(QQuickRenderTarget::fromPaintDevice(&picture_));
}

void Page::Call(const QString& function, const QJsonArray& arguments) {
  const QByteArray list = QJsonDocument(arguments).toJson(QJsonDocument::Compact);
  const QString call = QString("movies.%1(...%2)").arg(function, QString::fromUtf8(list));
  if (!ready_) {
    calls_ << call;
  } else {
    QMetaObject::invokeMethod(view_, "runJavaScript", Q_ARG(QString, call));
  }
}

void Page::Reload() {
  ready_ = false;
  ++reloads_;
  calls_.clear();
  for (auto& [slot, part] : parts_) {
    part.laidOut = part.up = false;
    LayOut(slot);
  }
  QMetaObject::invokeMethod(view_, "reload", Qt::QueuedConnection);
}

void Page::Tell(const QString& line) {
  if (!line.startsWith('@')) {
    // The player's last words; see movies.js for how it is found out whose they are.
    if (line.contains("panicked at")) listener_.told({"panic"});
    return;
  }
  const QJsonArray told = QJsonDocument::fromJson(line.mid(1).toUtf8()).array();
  if (told.isEmpty()) return;
  if (told[0] == "ready") {
    ready_ = true;
    for (const QString& call : std::exchange(calls_, {})) {
      QMetaObject::invokeMethod(view_, "runJavaScript", Q_ARG(QString, call));
    }
  } else if (told[0] == "placed") {
    PaintSoon(told[1].toInt(), &Part::laidOut);
  } else {
    if (told[0] == "up") PaintSoon(told[1].toInt(), &Part::up);
    listener_.told(told);
  }
}

void Page::PaintSoon(int slot, bool Part::*now) {
  QTimer::singleShot(kUntilPainted, this, [this, slot, now, reloads = reloads_] {
    const auto part = parts_.find(slot);
    if (reloads != reloads_ || part == parts_.end() || part->second.*now) return;  // told by the page before
    part->second.*now = part->second.fresh = true;
    part->second.sinceUp.start();
    Ask();
    QTimer::singleShot(kLongestBlank + kBetweenPaintings, this, &Page::Ask);
  });
}

void Page::Ask() {
  if (!due_.isActive()) due_.start(std::max<int>(0, kBetweenPaintings - static_cast<int>(sincePainted_.elapsed())));
}

void Page::Paint() {
  sincePainted_.restart();
  if (!Lives(view_->property("renderProcessPid").toLongLong())) return;
  control_.polishItems();
  control_.sync();
  control_.render();
  QList<int> changed;
  for (auto& [slot, part] : parts_) {
    const bool isThere =
        part.frames && part.laidOut && part.up && !MustWait(part) && picture_.rect().contains(part.place);
    if (!isThere || part.frames->Size() != part.place.size() || (!part.fresh && !Changed(part))) continue;
    part.fresh = false;
    uchar* to = part.frames->Paint();
    const int stride = part.frames->Stride();
    for (int row = 0; row < part.place.height(); ++row) {
      std::memcpy(to + row * stride, picture_.constScanLine(part.place.y() + row) + part.place.x() * 4,
                  static_cast<std::size_t>(stride));
    }
    part.frames->Publish();
    changed << slot;
  }
  if (!changed.isEmpty()) listener_.pictures(changed);
}

// The browser may paint the first picture of a movie later than the page says so. Until then the last one stays; a
// movie that begins with nothing to be seen is believed after a while.
bool Page::MustWait(const Part& part) const {
  if (!part.fresh || part.sinceUp.hasExpired(kLongestBlank)) return false;
  const QRect place = part.place & picture_.rect();
  for (int row = place.top(); row <= place.bottom(); ++row) {
    const auto* pixels = reinterpret_cast<const QRgb*>(picture_.constScanLine(row)) + place.left();
    if (std::any_of(pixels, pixels + place.width(), [](QRgb pixel) { return qAlpha(pixel) != 0; })) return false;
  }
  return true;
}

bool Page::Changed(const Part& part) const {
  const uchar* shown = part.frames->Published();
  if (shown == nullptr) return true;
  const int stride = part.frames->Stride();
  for (int row = 0; row < part.place.height(); ++row) {
    const uchar* now = picture_.constScanLine(part.place.y() + row) + part.place.x() * 4;
    if (std::memcmp(now, shown + row * stride, static_cast<std::size_t>(stride)) != 0) return true;
  }
  return false;
}
