#pragma once

#include <string>

#include "channels/frmOnlineRadio.h"
#include "channels/frmOnlineTV.h"
#include "tests/StationTest.h"

// What the tests need to know of each directory.
struct TV {
  using Form = frmOnlineTV;
  static constexpr char kFile[] = "/station/OnlineChannel/TV.chn", kCaption[] = "Online TV settings";
  static CommandButton& Adds(Form& form) { return form.ThemedButton3; }
  static CommandButton& Idle(Form& form) { return form.ThemedButton4; }
  static void LoadChannels(Form& form) { form.LoadTVChannel(); }
};
struct Radio {
  using Form = frmOnlineRadio;
  static constexpr char kFile[] = "/station/OnlineChannel/Radio.chn", kCaption[] = "Online radio settings";
  static CommandButton& Adds(Form& form) { return form.ThemedButton4; }
  static CommandButton& Idle(Form& form) { return form.ThemedButton3; }
  static void LoadChannels(Form& form) { form.LoadradioChannel(); }
};
using Directories = ::testing::Types<TV, Radio>;

// A station with two types of channels, "News" with two channels and "Empty" with none, and its operator.
template <class D>
class ChannelsTest : public StationTest {
 protected:
  ChannelsTest() {
    Holds("[News]\r\nWorld=mms://host/world\r\nLocal=http://host/local\r\n\r\n[Empty]\r\n");
    for (const char* stream : {"mms://host/world", "http://host/local"}) sim.media.SetDuration(stream, 0);
  }

  void Holds(const std::string& content) { sim.files.Put(D::kFile, content); }
  std::string Content() { return sim.files.Read(D::kFile).value_or("(none)"); }

  typename D::Form& Desk() { return station.forms.Get<typename D::Form>(); }

  static Names Shown(const ListBox& list) {
    Names texts;
    for (int index = 0; index < list.ListCount(); ++index) texts.push_back(list.List(index));
    return texts;
  }
  Names Types() { return Shown(Desk().ListType); }
  Names Channels() { return Shown(Desk().ListChannel); }
  Names Offered() {
    Names texts;
    for (int index = 0; index < Desk().cmbType.ListCount(); ++index) texts.push_back(Desk().cmbType.List(index));
    return texts;
  }

  static void Click(ListBox& list, const std::string& text) {
    const Names texts = Shown(list);
    const auto row = std::ranges::find(texts, text);
    ASSERT_NE(row, texts.end()) << text;
    list.Pick(static_cast<int>(row - texts.begin()));
  }
  void PickType(const std::string& name) { Click(Desk().ListType, name); }
  void PickChannel(const std::string& type, const std::string& name) {
    PickType(type);
    Click(Desk().ListChannel, name);
  }
  void AddType(const std::string& name) {
    sim.dialogs.inputs = {name};
    Desk().ThemedButton2.Press();
  }
  void AddChannel(const std::string& type, const std::string& name, const std::string& address) {
    Desk().cmbType.Type(type);
    Desk().txtChannelName.Type(name);
    Desk().txtURL.Type(address);
    D::Adds(Desk()).Press();
  }
  void Answered(Answer answer, CommandButton& button) {
    sim.dialogs.answers = {answer};
    button.Press();
  }
  void PutOnAir(const std::string& type, const std::string& channel) {
    PickChannel(type, channel);
    Desk().ThemedButton5.Press();
    Advance(std::chrono::seconds(2));
  }
  // What has stood before the operator since the last call.
  Names Asked() {
    Names lines;
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with("box") || line.starts_with("input")) lines.push_back(line);
    }
    return lines;
  }

  SimPlayer& Stream() { return *sim.media.Find("frmPlayer.PlayerOnline"); }
  SimPlayer& Preview() { return *sim.media.Find(Desk().Name() + ".Preview"); }
};
