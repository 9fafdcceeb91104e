// A stream on the air, over the programme.
#include "tests/channels/ChannelsTest.h"

using namespace std::chrono_literals;

namespace {

template <class D>
class ChannelOnAirTest : public ChannelsTest<D> {
 protected:
  std::string Status() { return this->Desk().lblStatus.Caption.Get(); }
};
TYPED_TEST_SUITE(ChannelOnAirTest, Directories);

TYPED_TEST(ChannelOnAirTest, AStartShowsTheStreamOverThePictureWithItsName) {
  this->PickChannel("News", "World");
  this->Desk().ThemedButton5.Press();
  EXPECT_TRUE(this->Output().picOnline.Visible);
  EXPECT_EQ(this->Output().lblChannelName.Text.Get(), "World");
  EXPECT_EQ(this->Stream().Url(), "mms://host/world");
  EXPECT_EQ(this->Status(), "Connecting...");
  EXPECT_TRUE(this->Desk().Timer1.Enabled);
  EXPECT_TRUE(this->MainPlayer().Mute());
  EXPECT_FALSE(this->Stream().Mute());
  this->Advance(1s);
  EXPECT_EQ(this->Status(), "Playing");
}

TYPED_TEST(ChannelOnAirTest, AStartEndsThePreview) {
  this->Desk().chkPreview.Toggle();
  this->PickChannel("News", "World");
  this->Advance(1s);
  this->Desk().ThemedButton5.Press();
  EXPECT_EQ(this->Preview().State(), PlayState::kStopped);
}

TYPED_TEST(ChannelOnAirTest, ThePlaylistGoesOnMuteBehindTheStream) {
  this->Playlist("Day.plt", {this->Clip("a.mp4", 5), this->Clip("b.mp4", 60)});
  this->Set("Playlist", "OneAfterAnother", "1");
  this->ControlWindow().ThemedButton5.Press();
  this->PutOnAir("News", "World");
  this->Advance(10s);
  EXPECT_EQ(this->Aired(), (Names{"a.mp4", "b.mp4"}));
  EXPECT_EQ(this->MainPlayer().State(), PlayState::kPlaying);
  EXPECT_TRUE(this->MainPlayer().Mute());
  EXPECT_EQ(this->Stream().State(), PlayState::kPlaying);
}

TYPED_TEST(ChannelOnAirTest, AStopTakesTheStreamOffAndLeavesTheProgrammeSilent) {
  this->PutOnAir("News", "World");
  this->Desk().ThemedButton6.Press();
  EXPECT_FALSE(this->Output().picOnline.Visible);
  EXPECT_EQ(this->Stream().State(), PlayState::kStopped);
  EXPECT_FALSE(this->Desk().Timer1.Enabled);
  EXPECT_TRUE(this->MainPlayer().Mute());
}

TYPED_TEST(ChannelOnAirTest, AStopForgetsNeitherTheChannelNorItsName) {
  this->PutOnAir("News", "World");
  this->Desk().ThemedButton6.Press();
  EXPECT_EQ(this->Output().lblChannelName.Text.Get(), "World");
  this->Desk().ThemedButton5.Press();
  this->Advance(1s);
  EXPECT_EQ(this->Stream().State(), PlayState::kPlaying);
}

TYPED_TEST(ChannelOnAirTest, AStopLeavesThePreview) {
  this->PutOnAir("News", "World");
  this->Desk().chkPreview.Toggle();
  this->Click(this->Desk().ListChannel, "Local");
  this->Advance(1s);
  this->Desk().ThemedButton6.Press();
  EXPECT_EQ(this->Preview().State(), PlayState::kPlaying);
}

TYPED_TEST(ChannelOnAirTest, AStartNeedsNoNetworkAndBringsNoOutputWindowUp) {
  this->sim.network.SetOnline(false);
  this->PutOnAir("News", "World");
  EXPECT_EQ(this->Stream().State(), PlayState::kPlaying);
  EXPECT_FALSE(this->Output().Visible);
  EXPECT_TRUE(this->Asked().empty());
}

TYPED_TEST(ChannelOnAirTest, AClickOnAnotherChannelLeavesTheStreamOnTheAir) {
  this->PutOnAir("News", "World");
  this->Click(this->Desk().ListChannel, "Local");
  this->Advance(1s);
  EXPECT_EQ(this->Stream().Url(), "mms://host/world");
}

TYPED_TEST(ChannelOnAirTest, AChannelAndATypeThatAreDeletedGoOnAndAreStartedAgain) {
  this->PutOnAir("News", "World");
  for (CommandButton* deletes : {&this->Desk().ThemedButton1, &this->Desk().cmdRemove}) {
    this->Answered(Answer::kYes, *deletes);
    EXPECT_EQ(this->Stream().State(), PlayState::kPlaying);
    EXPECT_TRUE(this->Output().picOnline.Visible);
    this->Desk().ThemedButton5.Press();
    this->Advance(1s);
    EXPECT_EQ(this->Stream().Url(), "mms://host/world");
  }
  this->AddType("Sport");
  EXPECT_EQ(this->Desk().ChannelURL, "mms://host/world");
}

TYPED_TEST(ChannelOnAirTest, AStopBeforeAnyStartSilencesTheProgrammeToo) {
  this->Desk().ThemedButton6.Press();
  EXPECT_TRUE(this->MainPlayer().Mute());
}

TYPED_TEST(ChannelOnAirTest, AfterAStopTheStatusKeepsItsLastText) {
  this->PutOnAir("News", "World");
  this->Desk().ThemedButton6.Press();
  this->Advance(5s);
  EXPECT_EQ(this->Status(), "Playing");
}

TYPED_TEST(ChannelOnAirTest, AnOutputThatIsMadeAnewHasItsSound) {
  this->PutOnAir("News", "World");
  this->Desk().ThemedButton6.Press();
  this->station.forms.template Unload<frmPlayer>();
  this->Output();
  EXPECT_FALSE(this->MainPlayer().Mute());
}

TYPED_TEST(ChannelOnAirTest, AStartWithNoChannelClickedShowsAnEmptyPanel) {
  this->Desk().ThemedButton5.Press();
  EXPECT_TRUE(this->Output().picOnline.Visible);
  EXPECT_EQ(this->Output().lblChannelName.Text.Get(), "");
  EXPECT_EQ(this->Stream().State(), PlayState::kUndefined);
  EXPECT_EQ(this->Status(), "");
  EXPECT_TRUE(this->MainPlayer().Mute());
}

TYPED_TEST(ChannelOnAirTest, AStartPlaysTheChannelClickedLastAlsoAfterTheTypeChanged) {
  this->PutOnAir("News", "World");
  this->PickChannel("News", "Local");
  this->PickType("Empty");
  this->Desk().ThemedButton5.Press();
  EXPECT_EQ(this->Stream().Url(), "http://host/local");
  EXPECT_EQ(this->Output().lblChannelName.Text.Get(), "") << "it is that of the row, and none is selected";
}

TYPED_TEST(ChannelOnAirTest, AStreamThatBreaksShowsInTheStatusAloneAndComesBackByItself) {
  this->Playlist("Day.plt", {this->Clip("a.mp4", 600)});
  this->ControlWindow().ThemedButton5.Press();
  this->PutOnAir("News", "World");
  this->Asked();
  this->sim.media.Break("mms://host/world");
  this->Advance(10s);
  EXPECT_EQ(this->Status(), "Cannot be played");
  EXPECT_TRUE(this->Output().picOnline.Visible);
  EXPECT_EQ(this->MainPlayer().State(), PlayState::kPlaying);
  EXPECT_TRUE(this->Asked().empty());
  this->sim.media.Mend("mms://host/world");
  this->Advance(31s);
  EXPECT_EQ(this->Status(), "Playing");
}

TYPED_TEST(ChannelOnAirTest, AStreamThatStandsStillIsBufferingAndIsTakenUpAgain) {
  this->PutOnAir("News", "World");
  this->sim.media.Stall("mms://host/world");
  this->Advance(5s);
  EXPECT_EQ(this->Status(), "Buffering");
  this->Advance(30s);
  EXPECT_EQ(this->Status(), "Playing");
}

TYPED_TEST(ChannelOnAirTest, AStreamThatCannotBeHadComesUpWhenItsSourceDoes) {
  this->sim.media.Break("mms://host/world");
  this->PutOnAir("News", "World");
  EXPECT_EQ(this->Status(), "Cannot be played");
  this->sim.media.Mend("mms://host/world");
  this->Advance(5s);
  EXPECT_EQ(this->Status(), "Playing");
}

TYPED_TEST(ChannelOnAirTest, ABrokenStreamThatIsTakenOffTheAirStaysOff) {
  this->PutOnAir("News", "World");
  this->sim.media.Break("mms://host/world");
  this->Advance(5s);
  this->Desk().ThemedButton6.Press();
  this->sim.media.Mend("mms://host/world");
  this->Advance(60s);
  EXPECT_EQ(this->Stream().State(), PlayState::kStopped);
}

TYPED_TEST(ChannelOnAirTest, NeitherThePreviewNorTheProgrammeTakesABrokenStreamUpAgain) {
  this->Desk().chkPreview.Toggle();
  this->PickChannel("News", "World");
  this->Output().Player.URL = "http://host/local";
  this->Advance(1s);
  for (const char* stream : {"mms://host/world", "http://host/local"}) {
    this->sim.media.Break(stream);
    this->sim.media.Mend(stream);
  }
  this->Advance(60s);
  EXPECT_NE(this->Preview().State(), PlayState::kPlaying);
  EXPECT_NE(this->MainPlayer().State(), PlayState::kPlaying);
}

TYPED_TEST(ChannelOnAirTest, AStreamThatNeverAnswersIsConnectingAndThePlaylistGoesOn) {
  this->Playlist("Day.plt", {this->Clip("a.mp4", 5), this->Clip("b.mp4", 600)});
  this->Set("Playlist", "OneAfterAnother", "1");
  this->ControlWindow().ThemedButton5.Press();
  this->sim.media.NeverAnswers("mms://host/world");
  this->PutOnAir("News", "World");
  this->Advance(10s);
  EXPECT_EQ(this->Status(), "Connecting...");
  EXPECT_EQ(this->Aired(), (Names{"a.mp4", "b.mp4"}));
}

TYPED_TEST(ChannelOnAirTest, TheEndOfAStreamStartsNoItemOfThePlaylist) {
  this->sim.media.SetDuration("mms://host/world", 3);
  this->Playlist("Day.plt", {this->Clip("a.mp4", 600), this->Clip("b.mp4", 600)});
  this->Set("Playlist", "OneAfterAnother", "1");
  this->ControlWindow().ThemedButton5.Press();
  this->PutOnAir("News", "World");
  this->Advance(10s);
  EXPECT_EQ(this->Status(), "Finished");
  EXPECT_EQ(this->Aired(), Names{"a.mp4"});
}

TYPED_TEST(ChannelOnAirTest, AnAddressThatMustNotPlayIsRefusedInTheStatus) {
  this->Holds("[News]\r\nA=av://lavfi:testsrc\r\nB=ftp://host/b\r\nC=no address\r\n");
  for (const char* channel : {"A", "B", "C"}) {
    this->PutOnAir("News", channel);
    EXPECT_EQ(this->Status(), "Cannot be played") << channel;
    EXPECT_EQ(this->Stream().State(), PlayState::kReady) << channel;
  }
}

TYPED_TEST(ChannelOnAirTest, AFileMayBeAChannel) {
  this->Holds("[News]\r\nFilm=" + this->Clip("film.mp4", 60) + "\r\n");
  this->PutOnAir("News", "Film");
  EXPECT_EQ(this->Status(), "Playing");
}

TYPED_TEST(ChannelOnAirTest, ClosingTheDeskLeavesTheStreamOnTheAir) {
  this->PutOnAir("News", "World");
  this->Desk().Close();
  EXPECT_FALSE(this->station.forms.template Loaded<typename TypeParam::Form>());
  this->Advance(5s);
  EXPECT_EQ(this->Stream().State(), PlayState::kPlaying);
  EXPECT_EQ(this->Status(), "") << "the desk that is opened anew tells nothing before a start";
}

class BothDirectoriesTest : public ChannelsTest<TV> {};

TEST_F(BothDirectoriesTest, AStartAtOneDeskReplacesTheStreamOfTheOtherWhoseStatusGoesOn) {
  sim.files.Put(Radio::kFile, "[Music]\r\nJazz=http://host/jazz\r\n");
  sim.media.SetDuration("http://host/jazz", 0);
  PutOnAir("News", "World");
  auto& radio = station.forms.Get<frmOnlineRadio>();
  Click(radio.ListType, "Music");
  Click(radio.ListChannel, "Jazz");
  radio.ThemedButton5.Press();
  Advance(2s);
  EXPECT_EQ(Stream().Url(), "http://host/jazz");
  EXPECT_EQ(Output().lblChannelName.Text.Get(), "Jazz");
  EXPECT_TRUE(Desk().Timer1.Enabled);
  sim.media.Break("http://host/jazz");
  Advance(1s);
  EXPECT_EQ(Desk().lblStatus.Caption.Get(), "Cannot be played");
  EXPECT_EQ(radio.lblStatus.Caption.Get(), "Cannot be played");
  radio.ThemedButton6.Press();
  EXPECT_TRUE(Desk().Timer1.Enabled) << "a stop ends the status of its own desk alone";
  Advance(1s);
  EXPECT_EQ(Desk().lblStatus.Caption.Get(), "Stopped");
  EXPECT_EQ(radio.lblStatus.Caption.Get(), "Cannot be played");
}

}  // namespace
