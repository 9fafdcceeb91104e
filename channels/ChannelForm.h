#pragma once

#include <chrono>
#include <string>

#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListBox.h"
#include "platform/toolkit/PlayerControl.h"
#include "platform/toolkit/Timer.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

class frmPlayer;

// A directory of streams: a section of its file for each channel type, and in it a key for each channel, with the
// address as the value. A channel can be tried in the preview and put on the air, over the programme, which goes on
// behind it without its sound. Closing the form leaves the stream on the air.
class ChannelForm : public Form {
 public:
  ListBox ListType{*this, "ListType"};
  Label lblType{*this, "lblType"};
  ListBox ListChannel{*this, "ListChannel"};  // of the type that was clicked last
  Label lblChannel{*this, "lblChannel"};
  ComboBox cmbType{*this, "cmbType"};  // of a new channel, with its name and address
  TextBox txtChannelName{*this, "txtChannelName"};
  TextBox txtURL{*this, "txtURL"};
  CheckBox chkPreview{*this, "chkPreview"};
  PlayerControl Preview{*this, "Preview"};
  Label lblStatus{*this, "lblStatus"};  // of the stream on the air, in the words of its player
  CommandButton cmdRemove{*this, "cmdRemove"};
  CommandButton ThemedButton1{*this, "ThemedButton1"};  // deletes the channel
  CommandButton ThemedButton2{*this, "ThemedButton2"};  // adds a type
  CommandButton ThemedButton3{*this, "ThemedButton3"};  // of these two one adds a channel: see the table of differences
  CommandButton ThemedButton4{*this, "ThemedButton4"};
  CommandButton ThemedButton5{*this, "ThemedButton5"};  // starts the broadcast
  CommandButton ThemedButton6{*this, "ThemedButton6"};  // stops it

  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1000), Timer::kDisabled};

  std::string ChannelURL;  // of the channel that was clicked last

 protected:
  enum class Directory { kTV, kRadio };

  ChannelForm(Station& station, Directory directory);

  void Load() override { LoadChannels(); }

  // Lists the types of the file. The channels stay as they are shown.
  void LoadChannels();

 private:
  struct Difference;
  static const Difference& Of(Directory directory);

  IniFile& File();
  frmPlayer& Output();
  void TellTypes();
  void TellChannels();
  void TellStatus();
  void ListType_Click();
  void ListChannel_Click();
  void AddType();
  void AddChannel();
  void DeleteType();
  void DeleteChannel();
  void StartBroadcast();
  void StopBroadcast();

  Station& station_;
  const Difference& difference_;
};
