#pragma once

#include <memory>
#include <string>
#include <string_view>

// States of a player, by the numbers that the station's rules know them by.
enum class PlayState {
  kUndefined = 0,
  kStopped = 1,
  kPaused = 2,
  kPlaying = 3,
  kBuffering = 6,
  kMediaEnded = 8,
  kTransitioning = 9,  // a file is being opened
  kReady = 10,
};

// Hears what a player reports. Called on the station's thread, never from inside a call of the player.
class MediaListener {
 public:
  virtual ~MediaListener() = default;
  virtual void PlayStateChanged(PlayState state) = 0;
  // A file has been opened: its duration is known now, if it has one.
  virtual void MediaChanged() = 0;
};

// True of an address with a scheme, such as "http://host/live"; anything else is a path.
bool IsAddress(std::string_view url);

// What a text names that a player is given.
enum class MediaSource {
  kPath,         // no address
  kFileAddress,  // "file://..."
  kStream,       // http, https (HLS too), rtsp, rtmp, mms, rtp, udp or srt; the case of a scheme means nothing
  kRefused,      // an address of any other scheme: no player opens it
};
MediaSource SourceOf(std::string_view url);

// How long a picture stands as an item before it ends.
inline constexpr int kPictureSeconds = 5;

// One player with its picture surface; one instance lasts as long as the surface. It plays video, audio and pictures
// alike: a picture ends after kPictureSeconds. What cannot be played (absent, no media, not a regular file, an
// address that is refused) becomes kReady, and never kMediaEnded.
class MediaPlayer {
 public:
  virtual ~MediaPlayer() = default;

  // Opens a file, under its very name on the disk (Files::Resolve), or a stream, and starts it at once, in place of
  // what played before; that is no end of the former item, and an end of it that has not been heard yet is heard no
  // more. The empty text closes what is open.
  virtual void Open(const std::string& url) = 0;
  // Goes on from a pause; behind an end or a stop the item starts again from its beginning.
  virtual void Play() = 0;
  // While the item is still being opened the wish is kept: it opens paused.
  virtual void Pause() = 0;
  // Black and silent; not an end. Behind an end too the state is kStopped then. Nothing happens where nothing has
  // begun.
  virtual void Stop() = 0;

  // Seconds from the start; 0 when nothing is open.
  virtual double Position() const = 0;
  // Seeks. Before the file is open the wish is kept and carried out when it is. Beyond the end: the item ends.
  virtual void SetPosition(double seconds) = 0;
  // Seconds; 0 when it is not known (nothing open yet, or a stream without an end). A player that does not take streams
  // up again may give one without an end the duration of what has come of it.
  virtual double Duration() const = 0;
  virtual PlayState State() const = 0;
  // The state in words, for the operator: "Playing", "Connecting...", "Buffering", "Stopped", "Paused", "Finished",
  // "Cannot be played"; "" where there is nothing to play.
  std::string Status() const;
  // The present item has been opened. It stays so behind its end and behind a stop, with its duration, until another
  // is opened or it is closed.
  virtual bool IsOpen() const = 0;

  virtual void SetMute(bool mute) = 0;
  virtual void SetVolume(int percent) = 0;  // 0 to 100
  // Small pictures are scaled up to the surface, in their own proportions; large ones are always scaled down to it.
  virtual void SetStretchToFit(bool stretch) = 0;
  // Whether a stream without an end, which breaks, stands still for kLivePatience or cannot be had, is taken up again
  // until it is stopped or another item is opened. It is kReady in the pauses (LivePauses) and kTransitioning in each
  // attempt, and never kMediaEnded. Off at first; to be told before the first Open.
  virtual void SetTakesLiveUpAgain(bool takes) = 0;
};

// Makes the players.
class MediaEngine {
 public:
  virtual ~MediaEngine() = default;
  // Cheap: what playing costs is spent at the first Open. `name` ("frmPlayer.Player") is for diagnosis alone;
  // `listener` must outlive the player.
  virtual std::unique_ptr<MediaPlayer> NewPlayer(const std::string& name, MediaListener& listener) = 0;
};
