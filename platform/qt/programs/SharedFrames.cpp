#include "platform/qt/programs/SharedFrames.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

namespace {

constexpr std::uint32_t kFresh = 4;
constexpr std::size_t kPictures = 3;
constexpr std::size_t kHeadBytes = 64;
constexpr int kLongestSide = 16384;
// Which picture each side begins with.
constexpr std::uint32_t kPainted = 0;
constexpr std::uint32_t kShown = 1;
constexpr std::uint32_t kWaiting = 2;

std::size_t BytesFor(QSize size) {
  return kHeadBytes + kPictures * 4 * static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
}

bool Fits(QSize size) { return !size.isEmpty() && size.width() <= kLongestSide && size.height() <= kLongestSide; }

const uchar* RowFrom(const QImage& whole, QPoint corner, int row) {
  return whole.constScanLine(corner.y() + row) + qsizetype{corner.x()} * 4;
}

}  // namespace

SharedFrames::SharedFrames(std::shared_ptr<const Descriptor> memory, uchar* bytes, QSize size)
    : memory_(std::move(memory)), bytes_(bytes), head_(reinterpret_cast<Head*>(bytes)), size_(size) {}

SharedFrames::~SharedFrames() { munmap(bytes_, BytesFor(size_)); }

std::shared_ptr<SharedFrames> SharedFrames::Map(std::shared_ptr<const Descriptor> memory, QSize size) {
  void* bytes = mmap(nullptr, BytesFor(size), PROT_READ | PROT_WRITE, MAP_SHARED, memory->Number(), 0);
  if (bytes == MAP_FAILED) return nullptr;
  return std::shared_ptr<SharedFrames>(new SharedFrames(std::move(memory), static_cast<uchar*>(bytes), size));
}

std::shared_ptr<SharedFrames> SharedFrames::Make(QSize pixels) {
  if (!Fits(pixels)) return nullptr;
  auto memory = std::make_shared<const Descriptor>(memfd_create("pictures", MFD_CLOEXEC));
  if (memory->Number() < 0 || ftruncate(memory->Number(), static_cast<off_t>(BytesFor(pixels))) != 0) return nullptr;
  auto frames = Map(std::move(memory), pixels);
  if (frames) {
    frames->head_->waiting = kWaiting;
    frames->own_ = kShown;
  }
  return frames;
}

std::shared_ptr<SharedFrames> SharedFrames::Open(Descriptor memory, QSize pixels) {
  struct stat about {};
  if (!Fits(pixels) || memory.Number() < 0 || fstat(memory.Number(), &about) != 0) return nullptr;
  if (about.st_size < static_cast<off_t>(BytesFor(pixels))) return nullptr;
  auto frames = Map(std::make_shared<const Descriptor>(std::move(memory)), pixels);
  if (frames) frames->own_ = kPainted;
  return frames;
}

uchar* SharedFrames::Picture(std::uint32_t number) const {
  return bytes_ + kHeadBytes +
         number % kPictures * 4 * static_cast<std::size_t>(size_.width()) * static_cast<std::size_t>(size_.height());
}

void SharedFrames::Publish(const QImage& whole, QPoint corner) {
  for (int row = 0; row < size_.height(); ++row) {
    std::memcpy(Row(own_, row), RowFrom(whole, corner, row), static_cast<std::size_t>(Stride()));
  }
  published_ = own_;
  own_ = head_->waiting.exchange(own_ | kFresh, std::memory_order_acq_rel) & ~kFresh;
}

// Nobody writes what was published last.
bool SharedFrames::Differs(const QImage& whole, QPoint corner) const {
  if (!published_) return true;
  for (int row = 0; row < size_.height(); ++row) {
    const auto bytes = static_cast<std::size_t>(Stride());
    if (std::memcmp(Row(*published_, row), RowFrom(whole, corner, row), bytes) != 0) return true;
  }
  return false;
}

std::optional<QImage> SharedFrames::Take(const std::shared_ptr<SharedFrames>& frames) {
  if (!frames || (frames->head_->waiting.load(std::memory_order_acquire) & kFresh) == 0) return std::nullopt;
  frames->own_ = frames->head_->waiting.exchange(frames->own_, std::memory_order_acq_rel) & ~kFresh;
  auto* kept = new std::shared_ptr<SharedFrames>(frames);
  return QImage(
      frames->Picture(frames->own_), frames->size_.width(), frames->size_.height(), frames->Stride(),
      QImage::Format_ARGB32_Premultiplied,
      [](void* owner) { delete static_cast<std::shared_ptr<SharedFrames>*>(owner); }, kept);
}
