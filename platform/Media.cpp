#include "platform/Media.h"

bool IsAddress(std::string_view url) {
  const std::size_t end = url.find("://");
  if (end == std::string_view::npos || end == 0) return false;
  return url.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+.-") == end;
}

std::string MediaPlayer::Status() const {
  switch (State()) {
    case PlayState::kStopped:
      return "Stopped";
    case PlayState::kPaused:
      return "Paused";
    case PlayState::kPlaying:
      return "Playing";
    case PlayState::kBuffering:
      return "Buffering";
    case PlayState::kMediaEnded:
      return "Finished";
    case PlayState::kTransitioning:
      return "Connecting...";
    case PlayState::kUndefined:
    case PlayState::kReady:
      break;
  }
  return "";
}
