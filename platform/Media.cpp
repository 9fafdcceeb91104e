#include "platform/Media.h"

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
