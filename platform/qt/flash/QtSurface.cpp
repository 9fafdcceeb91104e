#include "platform/qt/flash/QtSurface.h"

#include <QCborArray>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPointer>
#include <algorithm>

#include "platform/qt/flash/MovieHeader.h"
#include "platform/qt/flash/MovieWire.h"
#include "platform/qt/flash/QtFlash.h"

namespace {

constexpr double kSlowest = 1;  // frames per second, as the page plays movies
constexpr double kFastest = 60;

}  // namespace

QtSurface::QtSurface(QtFlash& flash, FlashListener& listener)
    : flash_(flash), listener_(listener), slot_(flash.Add(*this)) {
  clock_.setTimerType(Qt::PreciseTimer);
  connect(&clock_, &QTimer::timeout, this, &QtSurface::CountOn);
}

QtSurface::~QtSurface() {
  Leave();
  for (QtSurface* follower : std::exchange(followers_, {})) {
    follower->leader_ = nullptr;
    follower->waits_ = true;
    flash_.BeginSoon();
  }
  flash_.Remove(slot_);
}

void QtSurface::Put(const std::string& path) {
  Leave();
  path_ = path;
  variables_.clear();
  serial_ = 0;
  clock_.stop();
  ++pictureWish_;
  const auto header = ReadMovieHeader(path);
  totalFrames_ = header ? header->frameCount : 0;
  framesPerSecond_ = header ? header->framesPerSecond : 0;
  stage_ = header ? QSize(header->width, header->height) : QSize();
  waits_ = header.has_value();
  const QString name = QString::fromStdString(path);
  isPicture_ = !header && QFileInfo(name).isFile() && QImageReader(name).canRead();
  if (waits_ || !followers_.empty()) flash_.BeginSoon();
  if (isPicture_) {
    LoadPicture();
  } else if (path.empty()) {
    EndMovie();
    Offer({});
  }
}

void QtSurface::SetVariable(const std::string& name, const std::string& value) {
  if (!waits_ && serial_ == 0) return;
  variables_.emplace_back(name, value);
  if (serial_ == 0 || leader_ != nullptr) return;
  flash_.Program().Send({wire::kSet, slot_, serial_, QString::fromStdString(name), QString::fromStdString(value)});
}

bool QtSurface::MayLead(const QtSurface& other) const {
  const bool isTheSame = waits_ && leader_ == nullptr && path_ == other.path_ && looks_.back == other.looks_.back;
  if (!isTheSame || !variables_.empty() || !other.variables_.empty()) return false;
  return other.target_.isEmpty() && (!target_.isEmpty() || slot_ < other.slot_);
}

void QtSurface::Follow(QtSurface& leader) {
  Leave();
  EndMovie();
  waits_ = false;
  leader_ = &leader;
  leader.followers_.push_back(this);
}

void QtSurface::Leave() {
  if (leader_ != nullptr) std::erase(leader_->followers_, this);
  leader_ = nullptr;
}

// A leader that is put something else goes on alone.
void QtSurface::LeaveALeaderThatGoesElsewhere() {
  if (leader_ == nullptr) return;
  const bool isLost = leader_->waits_ || leader_->path_ != path_ || waits_;
  if (!isLost) return;
  Leave();
  serial_ = 0;
  waits_ = waits_ || totalFrames_ > 0;
}

void QtSurface::Begin() {
  if (leader_ == nullptr && (waits_ || loading_ != 0 || serial_ != 0)) {
    if (!flash_.Program().IsRunning()) {
      if (!waits_) return;
      flash_.Program().Start();
    }
    TellSlot();
  }
  TellSilence();
  if (!waits_ || leader_ != nullptr || loading_ != 0) return;
  waits_ = false;
  loading_ = serial_ = flash_.NewSerial();
  begun_ = path_;
  begunLooks_ = looks_;
  begunLooks_.silent = !IsHeard();
  for (QtSurface* follower : followers_) follower->serial_ = serial_;
  TellPut();
}

bool QtSurface::IsHeard() const {
  const auto isHeard = [](const QtSurface* one) { return !one->looks_.silent && !one->target_.isEmpty(); };
  return isHeard(this) || std::ranges::any_of(followers_, isHeard);
}

void QtSurface::TellSilence() {
  const bool silent = !IsHeard();
  if (leader_ != nullptr || serial_ == 0 || silent == begunLooks_.silent) return;
  begunLooks_.silent = silent;
  flash_.Program().Send({wire::kSilence, slot_, silent});
}

void QtSurface::TellAll() {
  told_ = {};
  shared_.reset();
  clock_.stop();
  if (leader_ != nullptr || serial_ == 0) {
    loading_ = 0;
    return;
  }
  loading_ = serial_;
  TellSlot();
  TellPut();
}

// As large as the largest surface that shows it.
QSize QtSurface::WantedSize() const {
  if (!target_.isEmpty()) return target_;
  for (const QtSurface* follower : followers_) {
    if (!follower->target_.isEmpty()) return follower->target_;
  }
  return {0, 0};
}

void QtSurface::TellSlot() {
  const QSize wanted = WantedSize();
  if (wanted == told_) return;
  told_ = wanted;
  shared_ = flash_.GiveFrames(slot_, wanted);
}

void QtSurface::TellPut() {
  SideProgram& program = flash_.Program();
  program.Send({wire::kPut, slot_, serial_, QString::fromStdString(begun_), begunLooks_.fit == FlashLooks::Fit::kFill,
                begunLooks_.back == FlashLooks::Back::kSeeThrough, begunLooks_.silent});
  for (const auto& [name, value] : variables_) {
    program.Send({wire::kSet, slot_, serial_, QString::fromStdString(name), QString::fromStdString(value)});
  }
}

void QtSurface::EndMovie() {
  loading_ = 0;
  flash_.Program().Send({wire::kClear, slot_});
}

void QtSurface::Shown(qint64 serial, int frame) {
  if (serial != serial_) return;
  const auto followers = [this] {
    std::vector<QPointer<QtSurface>> copies(followers_.begin(), followers_.end());
    return copies;
  }();
  listener_.FrameShown(frame);
  for (const QPointer<QtSurface>& follower : followers) {
    if (follower && follower->serial_ == serial) follower->listener_.FrameShown(frame);
  }
}

void QtSurface::Settled(qint64 serial) {
  if (serial != loading_) return;
  loading_ = 0;
  emit frames_.Renewed();
  if (waits_) flash_.BeginSoon();
}

// Who waits for the last frames of a movie, to show the next one behind it, would else wait for ever.
void QtSurface::Refused(qint64 serial) {
  if (serial == serial_ && leader_ == nullptr && totalFrames_ > 0) {
    counted_ = 0;
    clock_.start(static_cast<int>(1000 / std::clamp(framesPerSecond_, kSlowest, kFastest)));
  }
  Settled(serial);
}

void QtSurface::CountOn() {
  counted_ = counted_ % totalFrames_ + 1;
  if (totalFrames_ == 1) clock_.stop();
  Shown(serial_, counted_);
}

void QtSurface::SetTarget(QSize pixels) {
  if (pixels == target_) return;
  target_ = pixels;
  if (isPicture_ && serial_ == 0) LoadPicture();
  flash_.BeginSoon();
}

void QtSurface::SetKey(std::optional<QRgb> colour) {
  if (colour == key_) return;
  key_ = colour;
  if (isPicture_ && serial_ == 0) LoadPicture();
}

void QtSurface::PictureWaits() {
  next_.reset();
  if (!target_.isEmpty()) {
    emit frames_.Changed();
  } else if (const auto picture = SharedFrames::Take(shared_)) {
    for (QtSurface* follower : followers_) follower->ShowScaled(*picture);
  }
}

std::optional<QImage> QtSurface::Take() {
  if (next_) return std::exchange(next_, std::nullopt);
  auto picture = SharedFrames::Take(shared_);
  if (picture) {
    for (QtSurface* follower : followers_) follower->ShowScaled(*picture);
  }
  return picture;
}

void QtSurface::Offer(const QImage& picture) {
  next_ = picture;
  emit frames_.Changed();
}

// The leader's picture fills the leader's rectangle; what keeps the movie's proportions gives them back to it.
void QtSurface::ShowScaled(const QImage& picture) {
  using Fit = FlashLooks::Fit;
  if (target_.isEmpty()) return;
  const bool isStretched = leader_->begunLooks_.fit == Fit::kFill && !stage_.isEmpty();
  if (looks_.fit == Fit::kFill || !isStretched) {
    return Offer(picture.scaled(target_, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  QImage whole(target_, QImage::Format_ARGB32_Premultiplied);
  whole.fill(Qt::transparent);
  QPainter painter(&whole);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(Centred(stage_), picture);
  painter.end();
  Offer(whole);
}

QRect QtSurface::Centred(QSize size) const {
  const QSize kept = size.scaled(target_, Qt::KeepAspectRatio);
  return {QPoint((target_.width() - kept.width()) / 2, (target_.height() - kept.height()) / 2), kept};
}

// Pictures need no browser. While nobody sees the surface none is decoded.
void QtSurface::LoadPicture() {
  if (target_.isEmpty()) return;
  const QString path = QString::fromStdString(path_);
  QRect place({0, 0}, target_);
  if (looks_.fit == FlashLooks::Fit::kKeepProportions) place = Centred(QImageReader(path).size());
  const auto show = [this, place, wish = ++pictureWish_](const SharedPicture& picture) {
    if (wish == pictureWish_ && picture) ShowPicture(picture, place);
  };
  flash_.Pictures().Load({path, place.size(), key_}, this, show);
}

void QtSurface::ShowPicture(const SharedPicture& picture, QRect place) {
  EndMovie();
  emit frames_.Renewed();
  const bool isWhole = picture->columns.size() == 1 && place == QRect({0, 0}, target_);
  if (isWhole) return Offer(picture->columns[0].image);
  QImage whole(target_, QImage::Format_ARGB32_Premultiplied);
  whole.fill(Qt::transparent);
  QPainter painter(&whole);
  for (const Picture::Column& column : picture->columns)
    painter.drawImage(place.x() + column.x, place.y(), column.image);
  painter.end();
  Offer(whole);
}
