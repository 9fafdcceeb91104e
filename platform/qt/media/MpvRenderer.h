#pragma once

#include <mpv/client.h>
#include <mpv/render.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "platform/qt/media/FrameExchange.h"

// Renders a player's video into the frames of an exchange, in a thread of its own: scaling a picture takes longer than
// the GUI thread may be held up. The thread waits for nobody but mpv; the destructor waits for the thread, and then for
// mpv to let go of its video output, so it may take as long as mpv hangs.
class MpvRenderer {
 public:
  // Must exist before the first file is loaded, or its video track stays off.
  // `name` is the player's, under which a renderer that cannot start or make pictures says so on standard error; the
  // sound plays on.
  MpvRenderer(std::string name, mpv_handle* mpv, std::shared_ptr<FrameExchange> exchange);
  ~MpvRenderer();

 private:
  enum class Wish { kNothing, kUpdate, kRedraw, kQuit };

  void Ask(Wish wish);
  void Run();
  void Render();
  void Note(const char* fault);

  std::string name_;
  std::shared_ptr<FrameExchange> exchange_;
  mpv_render_context* context_ = nullptr;
  std::mutex mutex_;
  std::condition_variable asked_;
  Wish wish_ = Wish::kNothing;
  bool failing_ = false;  // and has said so; the rendering thread's alone
  std::thread thread_;
};
