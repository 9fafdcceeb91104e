#include "platform/Media.h"

#include <algorithm>
#include <array>

#include "platform/CaseFold.h"

bool IsAddress(std::string_view url) {
  const std::size_t end = url.find("://");
  if (end == std::string_view::npos || end == 0) return false;
  return url.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+.-") == end;
}

MediaSource SourceOf(std::string_view url) {
  if (!IsAddress(url)) return MediaSource::kPath;
  static constexpr auto kStreams =
      std::to_array<std::string_view>({"http", "https", "rtsp", "rtmp", "mms", "rtp", "udp", "srt"});
  const std::string_view scheme = url.substr(0, url.find("://"));
  if (EqualIgnoringCase(scheme, "file")) return MediaSource::kFileAddress;
  const auto isScheme = [scheme](std::string_view known) { return EqualIgnoringCase(scheme, known); };
  return std::ranges::any_of(kStreams, isScheme) ? MediaSource::kStream : MediaSource::kRefused;
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
    case PlayState::kReady:
      return "Cannot be played";
    case PlayState::kUndefined:
      break;
  }
  return "";
}
