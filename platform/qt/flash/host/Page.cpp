#include "platform/qt/flash/host/Page.h"

#include <QJsonDocument>
#include <QTimer>
#include <algorithm>

#include "platform/qt/flash/host/Answers.h"
#include "platform/qt/flash/host/LineReceiver.h"

namespace {

// What the page says it has laid out is painted by the browser a little later.
constexpr int kUntilPainted = 80;  // milliseconds
constexpr int kLongestBlank = 1000;

}  // namespace

Page::Page(QQmlEngine& engine, Listener listener)
    : listener_(std::move(listener)), view_(engine, QUrl("qrc:/movies/View.qml"), {}, [this] { Paint(); }) {
  // The signals are of QML: functors cannot be connected to them by type.
  connect(&view_.Item(), SIGNAL(told(QString)), new LineReceiver([this](const QString& line) { Tell(line); }, this),
          SLOT(Hear(QString)));
  connect(&view_.Item(), SIGNAL(ended()), new LineReceiver([this](const QString&) { listener_.died(); }, this),
          SLOT(Hear()));
  Fit();
  view_.Item().setProperty("url", Answers::PageAddress());
}

void Page::Place(int slot, QSize pixels, std::shared_ptr<SharedFrames> frames) {
  Part& part = parts_[slot];
  part.frames = std::move(frames);
  part.fresh = true;
  if (part.place.size() == pixels) return view_.Ask();
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

void Page::Fit() { view_.Resize(shelves_.Extent().expandedTo({16, 16})); }

void Page::Call(const QString& function, const QJsonArray& arguments) {
  const QByteArray list = QJsonDocument(arguments).toJson(QJsonDocument::Compact);
  const QString call = QString("movies.%1(...%2)").arg(function, QString::fromUtf8(list));
  if (!ready_) {
    calls_ << call;
  } else {
    QMetaObject::invokeMethod(&view_.Item(), "runJavaScript", Q_ARG(QString, call));
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
  QMetaObject::invokeMethod(&view_.Item(), "reload", Qt::QueuedConnection);
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
      QMetaObject::invokeMethod(&view_.Item(), "runJavaScript", Q_ARG(QString, call));
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
    view_.Ask();
    QTimer::singleShot(kLongestBlank + UnseenView::kBetweenPaintings, this, [this] { view_.Ask(); });
  });
}

void Page::Paint() {
  if (!view_.Paint()) return;
  QList<int> changed;
  for (auto& [slot, part] : parts_) {
    const bool isThere =
        part.frames && part.laidOut && part.up && !MustWait(part) && view_.Picture().rect().contains(part.place);
    if (!isThere || part.frames->Size() != part.place.size()) continue;
    if (!part.fresh && !part.frames->Differs(view_.Picture(), part.place.topLeft())) continue;
    part.fresh = false;
    part.frames->Publish(view_.Picture(), part.place.topLeft());
    changed << slot;
  }
  if (!changed.isEmpty()) listener_.pictures(changed);
}

// The browser may paint the first picture of a movie later than the page says so. Until then the last one stays; a
// movie that begins with nothing to be seen is believed after a while.
bool Page::MustWait(const Part& part) const {
  if (!part.fresh || part.sinceUp.hasExpired(kLongestBlank)) return false;
  const QRect place = part.place & view_.Picture().rect();
  for (int row = place.top(); row <= place.bottom(); ++row) {
    const auto* pixels = reinterpret_cast<const QRgb*>(view_.Picture().constScanLine(row)) + place.left();
    if (std::any_of(pixels, pixels + place.width(), [](QRgb pixel) { return qAlpha(pixel) != 0; })) return false;
  }
  return true;
}
