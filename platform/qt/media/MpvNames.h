#pragma once

#include <array>
#include <utility>

// The names that mpv knows its properties by.
namespace mpv_names {

inline constexpr char kPause[] = "pause";
inline constexpr char kMute[] = "mute";
inline constexpr char kVolume[] = "volume";
inline constexpr char kTimePos[] = "time-pos";
inline constexpr char kDuration[] = "duration";
inline constexpr char kPausedForCache[] = "paused-for-cache";
inline constexpr char kVideoUnscaled[] = "video-unscaled";
inline constexpr char kOpened[] = "on_preloaded";  // a hook
inline constexpr char kPictureDuration[] = "image-display-duration";

// A player is a surface and nothing else: it reads no configuration, takes no keys, draws no controls, and stays alive
// between items.
inline constexpr auto kOptions = std::to_array<std::pair<const char*, const char*>>({
    {"vo", "libmpv"},
    {"hwdec", "no"},
    {"idle", "yes"},
    {"config", "no"},
    {"load-scripts", "no"},
    {"load-stats-overlay", "no"},
    {"load-osd-console", "no"},
    {"load-auto-profiles", "no"},
    {"ytdl", "no"},
    {"osc", "no"},
    {"osd-level", "0"},
    // It writes no text, so it need not look through the machine's fonts before the first picture.
    {"osd-font-provider", "none"},
    {"sub-font-provider", "none"},
    {"terminal", "no"},
    {"input-default-bindings", "no"},
    {"input-builtin-bindings", "no"},
    {"input-vo-keyboard", "no"},
    {"input-media-keys", "no"},
    {"resume-playback", "no"},
    // An item is one file: nothing that lies beside it joins in.
    {"sub-auto", "no"},
    {"sid", "no"},
    {"audio-file-auto", "no"},
    {"cover-art-auto", "no"},
    {"audio-display", "no"},
    // The end of an item is its end.
    {"keep-open", "no"},
    {"loop-file", "no"},
    {"loop-playlist", "no"},
    // Frames come at the moment they are due; the rendering thread must not be held back until then.
    {"video-timing-offset", "0"},
    {"hr-seek", "yes"},
    // A sound card that is missing or dead stops nothing.
    {"audio-fallback-to-null", "yes"},
    {"audio-client-name", "Corvanta"},
    // A stream that runs for weeks keeps no past.
    {"demuxer-max-back-bytes", "0"},
    {"demuxer-donate-buffer", "no"},
    {"demuxer-max-bytes", "32MiB"},
    {"network-timeout", "20"},
});

}  // namespace mpv_names
