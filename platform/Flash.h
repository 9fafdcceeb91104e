#pragma once

#include <memory>
#include <string>

// Hears what a movie does. Called on the station's thread, never from inside a call of the surface.
class FlashListener {
 public:
  virtual ~FlashListener() = default;
  // The movie put last shows this frame, counted from 1. Every frame is told, once each time it is come to, in order;
  // several may come in a row. A movie whose header is right but that cannot be played is counted by the clock once
  // that is known, a second or more after its put. Of a movie put earlier nothing is told any more.
  virtual void FrameShown(int frame) = 0;
};

// How a movie's background and its proportions are shown.
struct FlashLooks {
  enum class Back { kSeeThrough, kOpaque };  // nothing behind the movie, or its own background
  enum class Fit { kFill, kKeepProportions };

  Back back = Back::kSeeThrough;
  Fit fit = Fit::kFill;
  bool silent = false;

  bool operator==(const FlashLooks&) const = default;
};

// One place that shows movies, or pictures. It shows local files alone; a movie reaches no network and no file but its
// own. What nobody sees goes on counting its frames, and is not heard.
class FlashSurface {
 public:
  virtual ~FlashSurface() = default;

  // Starts the movie from its first frame, in place of what is shown, with the same path too. What is shown stands
  // still until the first picture of the new file is there; it stays for ever when the file is absent or damaged. The
  // empty path shows nothing.
  virtual void Put(const std::string& path) = 0;
  // Of the movie put last, as its header tells; right as soon as Put returns. 0 for what is no movie.
  virtual int TotalFrames() const = 0;
  // Sets a variable of the movie put last: "text1", "_root.text1" and "_levelO.text1" mean the same. One that is set
  // before the movie is up is set when it is.
  virtual void SetVariable(const std::string& name, const std::string& value) = 0;
  // In force from the next Put on.
  virtual void SetLooks(const FlashLooks& looks) = 0;
};

// Makes the surfaces.
class FlashEngine {
 public:
  virtual ~FlashEngine() = default;
  // Cheap: what showing movies costs is spent at the first movie. `name` ("frmPlayer.Flash") is for diagnosis alone;
  // `listener` must outlive the surface.
  virtual std::unique_ptr<FlashSurface> NewSurface(const std::string& name, FlashListener& listener) = 0;
};
