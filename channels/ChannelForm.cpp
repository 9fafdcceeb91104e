#include "channels/ChannelForm.h"

#include "output/frmPlayer.h"
#include "platform/toolkit/Failures.h"

namespace {

constexpr char kOnlineTitle[] = "Online channel";
constexpr char kAddTitle[] = "Add new channel";
constexpr char kDeleteTitle[] = "DELETE";

std::string Counted(const char* words, const ListBox& list) {
  return words + std::string(" (") + std::to_string(list.ListCount()) + ")";
}

// The channels of the type in that row of the list; with no row selected, -1, the statement fails.
IniKeys ChannelsAt(IniFile& file, int row) { return file.Sections().Item(static_cast<std::size_t>(row) + 1).Keys(); }

}  // namespace

// The button that adds a channel is captioned "&Add channel" at the radio and "Preview" at TV, and the other one of the
// two has no action. Meant so.
struct ChannelForm::Difference {
  const char* name;
  const char* caption;
  void (Stores::*point)();  // the store at the file
  IniFile Stores::*file;
  CommandButton ChannelForm::*adds;
  CommandButton ChannelForm::*idle;
};

const ChannelForm::Difference& ChannelForm::Of(Directory directory) {
  static constexpr Difference kDifferences[] = {
      {"frmOnlineTV", "Online TV settings", &Stores::TVChannelFile, &Stores::TVChannelIni, &ChannelForm::ThemedButton3,
       &ChannelForm::ThemedButton4},
      {"frmOnlineRadio", "Online radio settings", &Stores::RadioChannelFile, &Stores::RadioChannelIni,
       &ChannelForm::ThemedButton4, &ChannelForm::ThemedButton3},
  };
  return kDifferences[static_cast<std::size_t>(directory)];
}

ChannelForm::ChannelForm(Station& station, Directory directory)
    : Form(station.forms, Of(directory).name, Kind::kOperator), station_(station), difference_(Of(directory)) {
  Caption = difference_.caption;
  Width = ToTwips(960);
  Height = ToTwips(600);
  // The machine's sound goes on the air.
  Preview.settings.mute = true;
  (this->*difference_.idle).Enabled = false;
  TellChannels();
  ListType.Click.Connect([this] { ListType_Click(); });
  ListChannel.Click.Connect([this] { ListChannel_Click(); });
  cmdRemove.Click.Connect([this] { DeleteType(); });
  ThemedButton1.Click.Connect([this] { DeleteChannel(); });
  ThemedButton2.Click.Connect([this] { AddType(); });
  (this->*difference_.adds).Click.Connect([this] { AddChannel(); });
  ThemedButton5.Click.Connect([this] { StartBroadcast(); });
  ThemedButton6.Click.Connect([this] { StopBroadcast(); });
  Timer1.Tick.Connect([this] { TellStatus(); });
}

IniFile& ChannelForm::File() { return station_.stores.*difference_.file; }

frmPlayer& ChannelForm::Output() { return station_.forms.Get<frmPlayer>(); }

void ChannelForm::LoadChannels() {
  (station_.stores.*difference_.point)();
  ListType.Clear();
  cmbType.Clear();
  const IniSections types = File().Sections();
  for (std::size_t i = 1; i <= types.Count(); ++i) {
    const std::string name = types.Item(i).Name();
    ListType.AddItem(name);
    cmbType.AddItem(name);
  }
  TellTypes();
}

void ChannelForm::TellTypes() { lblType.Caption = Counted("Channel's type", ListType); }

void ChannelForm::TellChannels() { lblChannel.Caption = Counted("Channels", ListChannel); }

void ChannelForm::TellStatus() { lblStatus.Caption = Output().PlayerOnline.status(); }

// By its number, so that of two types of one name each shows its own channels.
void ChannelForm::ListType_Click() {
  ListChannel.Clear();
  const IniKeys channels = ChannelsAt(File(), ListType.ListIndex);
  for (std::size_t i = 1; i <= channels.Count(); ++i) ListChannel.AddItem(channels.Item(i).Name);
  TellTypes();
  TellChannels();
}

void ChannelForm::ListChannel_Click() {
  ChannelURL = File().ReadValue(ListType.Text(), ListChannel.Text(), "");
  if (chkPreview.Ticked()) Preview.URL = ChannelURL;
}

// A type that is there already stays as it is, and is told as added. Meant so.
void ChannelForm::AddType() {
  const std::string type = InputBox("Please enter a new channel type name", "Add channel type");
  if (type.empty()) return;
  File().Sections().Add(type);
  MsgBox("A new channel type hasbeen added", Buttons::kOk, kOnlineTitle);
  LoadChannels();
}

// A channel of that name takes the new address. The last message is cut off. Meant so.
void ChannelForm::AddChannel() {
  const struct {
    bool isMissing;
    const char* text;
  } checks[] = {{cmbType.Text.Get().empty(), "Please select a channel type"},
                {txtChannelName.Text.Get().empty(), "Please enter a channel name"},
                {txtURL.Text.Get().empty(), "Please enter streaming URL"}};
  for (const auto& check : checks) {
    if (!check.isMissing) continue;
    MsgBox(check.text, Buttons::kOk, kAddTitle);
    return;
  }
  File().WriteValue(cmbType.Text.Get(), txtChannelName.Text.Get(), txtURL.Text.Get());
  LoadChannels();
  MsgBox("A new channel has bee", Buttons::kOk, kAddTitle);
}

// The question is about what was selected when it opened; with none selected it is about the type without a name, if
// the file holds one, and the next about the channel without one. Meant so.
void ChannelForm::DeleteType() {
  const std::string type = ListType.Text();
  const char* question = "Are You Sure you wnat to Delete this channel type?";
  if (MsgBox(question, Buttons::kYesNo, kDeleteTitle) != Answer::kYes) return;
  File().Sections().Remove(type);
  LoadChannels();
}

void ChannelForm::DeleteChannel() {
  const int type = ListType.ListIndex;
  const std::string channel = ListChannel.Text();
  const char* question = "Are You Sure you wnat to Delete this channel ?";
  if (MsgBox(question, Buttons::kYesNo, kDeleteTitle) != Answer::kYes) return;
  SkippingFailures([&] { ChannelsAt(File(), type).Remove(channel); }, [this] { ListType_Click(); });
}

void ChannelForm::StartBroadcast() {
  SkippingFailures([this] { Preview.controls.stop(); }, [this] { Output().picOnline.Visible = true; },
                   [this] { Output().PlayerOnline.URL = ChannelURL; },
                   [this] { Output().lblChannelName.Text = ListChannel.Text(); }, [this] { TellStatus(); },
                   [this] { Timer1.Enabled = true; }, [this] { Output().Player.settings.mute = true; });
}

// The programme stays silent: nothing here gives it its sound back. Meant so.
void ChannelForm::StopBroadcast() {
  SkippingFailures([this] { Output().PlayerOnline.controls.stop(); }, [this] { Output().picOnline.Visible = false; },
                   [this] { Timer1.Enabled = false; }, [this] { Output().Player.settings.mute = true; });
}
