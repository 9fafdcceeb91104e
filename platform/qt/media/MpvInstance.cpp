#include "platform/qt/media/MpvInstance.h"

#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

#include "platform/Media.h"
#include "platform/qt/media/MpvNames.h"

namespace {

// Counts the threads that put instances to rest.
struct Resting {
  std::mutex mutex;
  std::condition_variable done;
  int count = 0;
};

// Never destroyed: such a thread may outlast everything else of the process.
Resting& TheResting() {
  static auto& resting = *new Resting;
  return resting;
}

}  // namespace

MpvInstance::MpvInstance(const std::string& name, std::shared_ptr<FrameExchange> exchange, std::function<void()> wakeUp)
    : wakeUp_(std::move(wakeUp)) {
  mpv_ = mpv_create();
  if (mpv_ == nullptr) throw std::runtime_error("No media player can be made.");
  for (const auto& [name, value] : mpv_names::kOptions) mpv_set_option_string(mpv_, name, value);
  mpv_set_option_string(mpv_, mpv_names::kPictureDuration, std::to_string(kPictureSeconds).c_str());
  if (mpv_initialize(mpv_) < 0) {
    mpv_terminate_destroy(mpv_);
    throw std::runtime_error("No media player can be started.");
  }
  renderer_ = std::make_unique<MpvRenderer>(name, mpv_, std::move(exchange));
  mpv_set_wakeup_callback(
      mpv_, [](void* self) { static_cast<MpvInstance*>(self)->wakeUp_(); }, this);
}

MpvInstance::~MpvInstance() {
  mpv_set_wakeup_callback(mpv_, nullptr, nullptr);
  Set(mpv_names::kMute, true);
  Command({"stop"});
  {
    const std::lock_guard lock(TheResting().mutex);
    ++TheResting().count;
  }
  std::thread([mpv = mpv_, renderer = std::move(renderer_)]() mutable {
    renderer.reset();
    mpv_terminate_destroy(mpv);
    Resting& resting = TheResting();
    const std::lock_guard lock(resting.mutex);
    --resting.count;
    resting.done.notify_all();
  }).detach();
}

bool MpvInstance::AwaitRest(std::chrono::milliseconds patience) {
  Resting& resting = TheResting();
  std::unique_lock lock(resting.mutex);
  return resting.done.wait_for(lock, patience, [&resting] { return resting.count == 0; });
}

void MpvInstance::Command(std::initializer_list<std::string> words, std::uint64_t ticket) {
  std::vector<const char*> arguments;
  for (const std::string& word : words) arguments.push_back(word.c_str());
  arguments.push_back(nullptr);
  mpv_command_async(mpv_, ticket, arguments.data());
}

void MpvInstance::Set(const char* property, bool value) {
  int flag = value ? 1 : 0;
  mpv_set_property_async(mpv_, 0, property, MPV_FORMAT_FLAG, &flag);
}

void MpvInstance::Set(const char* property, double value) {
  mpv_set_property_async(mpv_, 0, property, MPV_FORMAT_DOUBLE, &value);
}

void MpvInstance::Set(const char* property, const char* value) {
  mpv_set_property_async(mpv_, 0, property, MPV_FORMAT_STRING, &value);
}

void MpvInstance::Observe(const char* property, mpv_format format) { mpv_observe_property(mpv_, 0, property, format); }

void MpvInstance::Ask(const char* property, mpv_format format, std::uint64_t ticket) {
  mpv_get_property_async(mpv_, ticket, property, format);
}

void MpvInstance::HoldOpened() { mpv_hook_add(mpv_, 0, mpv_names::kOpened, 0); }

// While it holds an item mpv does nothing but wait for this call, so it is taken at once.
void MpvInstance::GoOn(std::uint64_t hook) { mpv_hook_continue(mpv_, hook); }

mpv_event& MpvInstance::NextEvent() { return *mpv_wait_event(mpv_, 0); }
