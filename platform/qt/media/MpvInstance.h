#pragma once

#include <mpv/client.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

#include "platform/qt/media/FrameExchange.h"
#include "platform/qt/media/MpvRenderer.h"

// One mpv with its renderer. Nothing here waits for mpv, which a dead network file may hold up for a long time: calls
// are queued, and what is left of an instance is put to rest by a thread of its own.
class MpvInstance {
 public:
  // `wakeUp` is called on a thread of mpv's when events wait; `name` is the player's. Throws std::runtime_error where
  // mpv cannot start.
  MpvInstance(const std::string& name, std::shared_ptr<FrameExchange> exchange, std::function<void()> wakeUp);
  // Silent and black at once; no further `wakeUp`.
  ~MpvInstance();
  MpvInstance(const MpvInstance&) = delete;

  // `ticket` comes back with the reply; 0 asks for none.
  void Command(std::initializer_list<std::string> words, std::uint64_t ticket = 0);
  void Set(const char* property, bool value);
  void Set(const char* property, double value);
  void Set(const char* property, const char* value);
  void Observe(const char* property, mpv_format format);
  void Ask(const char* property, mpv_format format, std::uint64_t ticket);
  // From the next item on each one waits, opened and with nothing of it read, from its MPV_EVENT_HOOK until GoOn with
  // the event's number. To be called before the first item.
  void HoldOpened();
  void GoOn(std::uint64_t hook);
  // The next event; MPV_EVENT_NONE when there is none.
  mpv_event& NextEvent();

  // Waits until the instances that are gone have come to rest; false when some still have not after `patience`.
  static bool AwaitRest(std::chrono::milliseconds patience);

 private:
  std::function<void()> wakeUp_;
  mpv_handle* mpv_;
  std::unique_ptr<MpvRenderer> renderer_;
};
