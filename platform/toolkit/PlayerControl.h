#pragma once

#include <memory>
#include <string>

#include "platform/Media.h"
#include "platform/toolkit/Control.h"
#include "platform/toolkit/Settable.h"

// A media player on a form: a surface with the operations that the station's rules know a player by. Where its
// platform player is gone (the form is unloaded) every operation is without effect.
class PlayerControl : public Control, private MediaListener {
 public:
  PlayerControl(Form& form, std::string name);
  PlayerControl(Control& container, std::string name);
  std::string_view Kind() const override { return "PlayerControl"; }
  void Retire() override;

  // Loads a path, in any spelling that the disk takes, or a stream, and starts it at once.
  Settable<std::string> URL;
  // 8 is the end of the media.
  int playState() const;
  // The state in words.
  std::string status() const;
  // The present item has been opened; it stays so behind its end and behind a stop.
  bool isOnline() const;

  class Controls {
   public:
    explicit Controls(PlayerControl& owner) : owner_(owner) {}
    void play();
    void pause();
    void stop();
    // Seconds.
    double currentPosition() const;
    void SetCurrentPosition(double seconds);

   private:
    PlayerControl& owner_;
  };
  Controls controls{*this};

  class Media {
   public:
    explicit Media(const PlayerControl& owner) : owner_(owner) {}
    // Seconds; 0 while it is not known. Fails while nothing is loaded.
    double duration() const;

   private:
    const PlayerControl& owner_;
  };
  Media currentMedia{*this};

  struct Settings {
    Property<bool> mute{false};
    Property<int> volume{50};  // 0 to 100
  };
  Settings settings;

  Property<bool> stretchToFit{false};
  // See MediaPlayer::SetTakesLiveUpAgain.
  Property<bool> takesLiveUpAgain{false};

  Event<> PlayStateChange;
  Event<> CurrentMediaChange;

  // The platform's player, for the window that shows its picture; null after the form was unloaded.
  MediaPlayer* Platform() const { return player_.get(); }

 private:
  void Start();
  void PlayStateChanged(PlayState state) override;
  void MediaChanged() override;

  std::unique_ptr<MediaPlayer> player_;
};
