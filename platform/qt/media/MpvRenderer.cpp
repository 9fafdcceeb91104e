#include "platform/qt/media/MpvRenderer.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "platform/Faults.h"

MpvRenderer::MpvRenderer(std::string name, mpv_handle* mpv, std::shared_ptr<FrameExchange> exchange)
    : name_(std::move(name)), exchange_(std::move(exchange)) {
  std::array<mpv_render_param, 2> parameters{{
      {MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_SW)},
      {MPV_RENDER_PARAM_INVALID, nullptr},
  }};
  if (mpv_render_context_create(&context_, mpv, parameters.data()) < 0) {
    context_ = nullptr;
    TellFault(name_, "The renderer cannot start: there will be no pictures.");
    return;
  }
  thread_ = std::thread([this] { Run(); });
  mpv_render_context_set_update_callback(
      context_, [](void* self) { static_cast<MpvRenderer*>(self)->Ask(Wish::kUpdate); }, this);
  exchange_->NotifyChanged([this] { Ask(Wish::kRedraw); });
}

MpvRenderer::~MpvRenderer() {
  if (context_ == nullptr) return;
  exchange_->NotifyChanged(nullptr);
  mpv_render_context_set_update_callback(context_, nullptr, nullptr);
  Ask(Wish::kQuit);
  thread_.join();
  mpv_render_context_free(context_);
}

void MpvRenderer::Ask(Wish wish) {
  {
    const std::lock_guard lock(mutex_);
    wish_ = std::max(wish_, wish);
  }
  asked_.notify_one();
}

void MpvRenderer::Run() {
  for (;;) {
    Wish wish = Wish::kNothing;
    {
      std::unique_lock lock(mutex_);
      asked_.wait(lock, [this] { return wish_ != Wish::kNothing; });
      wish = wish_ == Wish::kQuit ? wish_ : std::exchange(wish_, Wish::kNothing);
    }
    if (wish == Wish::kQuit) return;
    const bool newFrame = (mpv_render_context_update(context_) & MPV_RENDER_UPDATE_FRAME) != 0;
    if (newFrame || wish == Wish::kRedraw) Render();
  }
}

// A frame that nobody wants to see is taken out of mpv all the same: playing waits for its frames to be fetched.
void MpvRenderer::Render() {
  const char* fault = nullptr;
  QImage* frame = nullptr;
  try {
    frame = exchange_->Begin();
  } catch (const std::bad_alloc&) {
    fault = "There is no memory for pictures.";
  }
  int skip = frame == nullptr ? 1 : 0;
  int block = 0;
  std::array<int, 2> size{};
  std::size_t stride = 0;
  void* bytes = nullptr;
  if (frame != nullptr) {
    size = {frame->width(), frame->height()};
    stride = static_cast<std::size_t>(frame->bytesPerLine());
    bytes = frame->bits();
  }
  std::array<mpv_render_param, 7> parameters{{
      {MPV_RENDER_PARAM_SW_SIZE, size.data()},
      {MPV_RENDER_PARAM_SW_FORMAT, const_cast<char*>("bgr0")},
      {MPV_RENDER_PARAM_SW_STRIDE, &stride},
      {MPV_RENDER_PARAM_SW_POINTER, bytes},
      {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
      {MPV_RENDER_PARAM_SKIP_RENDERING, &skip},
      {MPV_RENDER_PARAM_INVALID, nullptr},
  }};
  const int result = mpv_render_context_render(context_, parameters.data());
  mpv_render_context_report_swap(context_);
  if (result < 0) fault = mpv_error_string(result);
  if (frame != nullptr && fault == nullptr) exchange_->Publish();
  Note(fault);
}

// Said when pictures cease to be made, not at each of them.
void MpvRenderer::Note(const char* fault) {
  if (fault != nullptr && !failing_) TellFault(name_, fault);
  failing_ = fault != nullptr;
}
