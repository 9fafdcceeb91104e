// The directory of channels: its lists, and what the operator does to its file.
#include "tests/channels/ChannelsTest.h"

namespace {

template <class D>
using ChannelDirectoryTest = ChannelsTest<D>;
TYPED_TEST_SUITE(ChannelDirectoryTest, Directories);

constexpr char kDeleteType[] = "box \"Are You Sure you wnat to Delete this channel type?\" \"DELETE\"";
constexpr char kDeleteChannel[] = "box \"Are You Sure you wnat to Delete this channel ?\" \"DELETE\"";
constexpr char kAdded[] = "box \"A new channel has bee\" \"Add new channel\"";

TYPED_TEST(ChannelDirectoryTest, OpeningTheDeskListsTheTypesAndOffersThemForNewChannels) {
  EXPECT_EQ(this->Desk().Caption.Get(), TypeParam::kCaption);
  EXPECT_EQ(this->Types(), (Names{"News", "Empty"}));
  EXPECT_EQ(this->Offered(), (Names{"News", "Empty"}));
  EXPECT_EQ(this->Desk().lblType.Caption.Get(), "Channel's type (2)");
  EXPECT_EQ(this->Desk().lblChannel.Caption.Get(), "Channels (0)");
  EXPECT_TRUE(this->Channels().empty());
  EXPECT_EQ(this->Timers(this->Desk()), Names{"Timer1 1000 ms"});
}

TYPED_TEST(ChannelDirectoryTest, EachDirectoryHasItsOwnFile) {
  const auto files = [this] { return Names{*this->sim.files.Read(TV::kFile), *this->sim.files.Read(Radio::kFile)}; };
  for (const char* file : {TV::kFile, Radio::kFile}) this->sim.files.Put(file, "[News]\r\n");
  this->AddType("Sport");
  const bool isTV = std::string(TypeParam::kFile) == TV::kFile;
  const std::string added = "[News]\r\n\r\n[Sport]\r\n", untouched = "[News]\r\n";
  EXPECT_EQ(files(), (Names{isTV ? added : untouched, isTV ? untouched : added}));
}

TYPED_TEST(ChannelDirectoryTest, AClickOnATypeListsItsChannels) {
  this->PickType("News");
  EXPECT_EQ(this->Channels(), (Names{"World", "Local"}));
  EXPECT_EQ(this->Desk().lblChannel.Caption.Get(), "Channels (2)");
  EXPECT_EQ(this->Desk().cmbType.Text.Get(), "") << "the type of a new channel is another matter";
}

TYPED_TEST(ChannelDirectoryTest, ATypeWithoutChannelsCountsNone) {
  this->PickType("News");
  this->PickType("Empty");
  EXPECT_TRUE(this->Channels().empty());
  EXPECT_EQ(this->Desk().lblChannel.Caption.Get(), "Channels (0)");
}

TYPED_TEST(ChannelDirectoryTest, AClickOnAChannelWithoutThePreviewOnlyRemembersItsAddress) {
  this->PickChannel("News", "World");
  EXPECT_EQ(this->Desk().ChannelURL, "mms://host/world");
  EXPECT_EQ(this->Preview().State(), PlayState::kUndefined);
  EXPECT_EQ(this->Desk().txtURL.Text.Get(), "");
}

TYPED_TEST(ChannelDirectoryTest, AClickOnAChannelWithThePreviewTriesItWithoutSound) {
  this->Desk().chkPreview.Toggle();
  this->PickChannel("News", "Local");
  this->Advance(std::chrono::seconds(1));
  EXPECT_EQ(this->Preview().Url(), "http://host/local");
  EXPECT_EQ(this->Preview().State(), PlayState::kPlaying);
  EXPECT_TRUE(this->Preview().Mute());
}

TYPED_TEST(ChannelDirectoryTest, TheBoxOfThePreviewActsWithTheNextClickOnAChannelAlone) {
  this->PickChannel("News", "World");
  this->Desk().chkPreview.Toggle();
  EXPECT_EQ(this->Preview().State(), PlayState::kUndefined);
  this->Click(this->Desk().ListChannel, "World");
  this->Advance(std::chrono::seconds(1));
  this->Desk().chkPreview.Toggle();
  this->Click(this->Desk().ListChannel, "Local");
  EXPECT_EQ(this->Preview().Url(), "mms://host/world");
  EXPECT_EQ(this->Preview().State(), PlayState::kPlaying);
}

TYPED_TEST(ChannelDirectoryTest, AChannelWithoutAnAddressEndsThePreview) {
  this->Holds("[News]\r\nWorld=mms://host/world\r\nNone=\r\n");
  this->Desk().chkPreview.Toggle();
  this->PickChannel("News", "World");
  this->Advance(std::chrono::seconds(1));
  this->Click(this->Desk().ListChannel, "None");
  EXPECT_NE(this->Preview().State(), PlayState::kPlaying);
}

TYPED_TEST(ChannelDirectoryTest, ANewTypeIsAddedAtTheEndAndListed) {
  this->AddType("Sport");
  EXPECT_EQ(this->Asked(), (Names{"input \"Please enter a new channel type name\" \"Add channel type\"",
                                  "box \"A new channel type hasbeen added\" \"Online channel\""}));
  EXPECT_EQ(this->Types(), (Names{"News", "Empty", "Sport"}));
  EXPECT_EQ(this->Offered(), (Names{"News", "Empty", "Sport"}));
  EXPECT_EQ(this->Desk().lblType.Caption.Get(), "Channel's type (3)");
}

TYPED_TEST(ChannelDirectoryTest, ATypeWithoutANameAddsNothing) {
  const std::string before = this->Content();
  this->AddType("");
  EXPECT_EQ(this->Content(), before);
  EXPECT_EQ(this->Asked().size(), 1U);
}

TYPED_TEST(ChannelDirectoryTest, ATypeIsNamedAsItWasTypedEvenByABlank) {
  this->AddType(" Sport ");
  this->AddType(" ");
  EXPECT_EQ(this->Types(), (Names{"News", "Empty", " Sport ", " "}));
}

TYPED_TEST(ChannelDirectoryTest, ANewTypeIsToldBeforeItIsListedAndANewChannelAfterIt) {
  Names listed;
  this->sim.dialogs.whileStanding = [this, &listed] { listed = this->Types(); };
  this->AddType("Sport");
  EXPECT_EQ(listed, (Names{"News", "Empty"}));
  this->AddChannel("Music", "Jazz", "http://host/jazz");
  EXPECT_EQ(listed, (Names{"News", "Empty", "Sport", "Music"}));
}

TYPED_TEST(ChannelDirectoryTest, ATypeThatExistsIsToldAsAddedAndStaysOne) {
  this->AddType("NEWS");
  EXPECT_EQ(this->Asked().back(), "box \"A new channel type hasbeen added\" \"Online channel\"");
  EXPECT_EQ(this->Types(), (Names{"News", "Empty"}));
}

TYPED_TEST(ChannelDirectoryTest, AfterAnAdditionTheChannelsAreStillThoseShownBefore) {
  this->PickType("News");
  this->AddType("Sport");
  EXPECT_EQ(this->Channels(), (Names{"World", "Local"}));
  EXPECT_EQ(this->Desk().ListType.ListIndex.Get(), -1);
  this->PickType("News");
  this->AddChannel("News", "Third", "http://host/third");
  EXPECT_EQ(this->Channels(), (Names{"World", "Local"}));
  EXPECT_EQ(this->Desk().lblChannel.Caption.Get(), "Channels (2)");
  EXPECT_EQ(this->Desk().ListType.ListIndex.Get(), -1);
}

TYPED_TEST(ChannelDirectoryTest, AClickOnAChannelThatIsStillShownWithNoTypeSelectedFindsNoAddress) {
  this->PickChannel("News", "World");
  this->AddType("Sport");
  this->Click(this->Desk().ListChannel, "World");
  EXPECT_EQ(this->Desk().ChannelURL, "");
}

TYPED_TEST(ChannelDirectoryTest, ANewChannelNeedsATypeThenANameThenAnAddress) {
  const std::string before = this->Content();
  this->AddChannel("", "", "");
  this->AddChannel("News", "", "");
  this->AddChannel("News", "Third", "");
  EXPECT_EQ(this->Asked(), (Names{"box \"Please select a channel type\" \"Add new channel\"",
                                  "box \"Please enter a channel name\" \"Add new channel\"",
                                  "box \"Please enter streaming URL\" \"Add new channel\""}));
  EXPECT_EQ(this->Content(), before);
}

TYPED_TEST(ChannelDirectoryTest, ANewChannelIsWrittenUnderItsTypeAndToldInWordsThatAreCutOff) {
  this->AddChannel("News", "Third", "rtsp://host/third?a=b");
  EXPECT_EQ(this->Asked(), Names{kAdded});
  this->PickChannel("News", "Third");
  EXPECT_EQ(this->Desk().ChannelURL, "rtsp://host/third?a=b");
}

TYPED_TEST(ChannelDirectoryTest, AnAddressIsTakenWhateverItIs) {
  this->AddChannel("News", "Third", "no address");
  this->AddChannel("News", "Fourth", " ");
  this->AddChannel("News", " ", "http://host/fifth");
  EXPECT_EQ(this->Asked(), (Names{kAdded, kAdded, kAdded}));
  this->PickChannel("News", "Third");
  EXPECT_EQ(this->Desk().ChannelURL, "no address");
}

TYPED_TEST(ChannelDirectoryTest, AfterAnAdditionTheTypeOfTheNextChannelIsEmptyAndItsOtherFieldsAreNot) {
  this->AddChannel("News", "Third", "http://host/third");
  EXPECT_EQ(this->Desk().cmbType.Text.Get(), "");
  EXPECT_EQ(this->Desk().txtChannelName.Text.Get(), "Third");
  EXPECT_EQ(this->Desk().txtURL.Text.Get(), "http://host/third");
}

TYPED_TEST(ChannelDirectoryTest, AChannelOfATypeThatIsTypedMakesTheType) {
  this->AddChannel("Sport", "Ball", "http://host/ball");
  EXPECT_EQ(this->Types(), (Names{"News", "Empty", "Sport"}));
  this->PickType("Sport");
  EXPECT_EQ(this->Channels(), Names{"Ball"});
}

TYPED_TEST(ChannelDirectoryTest, AChannelThatExistsTakesTheNewAddress) {
  this->AddChannel("News", "World", "http://new/world");
  this->PickChannel("News", "World");
  EXPECT_EQ(this->Desk().ChannelURL, "http://new/world");
  EXPECT_EQ(this->Channels(), (Names{"World", "Local"}));
}

TYPED_TEST(ChannelDirectoryTest, OfTheTwoCrossedButtonsTheOneAddsAndTheOtherDoesNothing) {
  const std::string before = this->Content();
  this->PickChannel("News", "World");
  this->Desk().cmbType.Type("News");
  this->Desk().txtChannelName.Type("Third");
  this->Desk().txtURL.Type("http://host/third");
  TypeParam::Idle(this->Desk()).Press();
  EXPECT_EQ(this->Content(), before);
  EXPECT_TRUE(this->Asked().empty());
  EXPECT_EQ(this->Preview().State(), PlayState::kUndefined);
  TypeParam::Adds(this->Desk()).Press();
  EXPECT_EQ(this->Asked(), Names{kAdded});
}

TYPED_TEST(ChannelDirectoryTest, ATypeIsDeletedWithItsChannelsIfTheOperatorIsSure) {
  this->PickType("News");
  this->Answered(Answer::kNo, this->Desk().cmdRemove);
  EXPECT_EQ(this->Types(), (Names{"News", "Empty"}));
  this->Answered(Answer::kYes, this->Desk().cmdRemove);
  EXPECT_EQ(this->Asked(), (Names{kDeleteType, kDeleteType}));
  EXPECT_EQ(this->Types(), Names{"Empty"});
  EXPECT_EQ(this->Content(), "\r\n[Empty]\r\n");
}

TYPED_TEST(ChannelDirectoryTest, TheChannelsOfATypeThatIsDeletedStayOnShow) {
  this->PickType("News");
  this->Answered(Answer::kYes, this->Desk().cmdRemove);
  EXPECT_EQ(this->Channels(), (Names{"World", "Local"}));
  EXPECT_EQ(this->Desk().lblChannel.Caption.Get(), "Channels (2)");
}

TYPED_TEST(ChannelDirectoryTest, DeletingATypeWithNoneSelectedAsksAndTakesTheOneWithoutANameIfThereIsOne) {
  const std::string before = this->Content();
  this->Answered(Answer::kYes, this->Desk().cmdRemove);
  EXPECT_EQ(this->Asked(), Names{kDeleteType});
  EXPECT_EQ(this->Content(), before);
  this->Holds("[]\r\nA=http://a\r\n[News]\r\n");
  this->Answered(Answer::kYes, this->Desk().cmdRemove);
  EXPECT_EQ(this->Types(), Names{"News"});
  EXPECT_EQ(this->Content(), "[News]\r\n");
}

TYPED_TEST(ChannelDirectoryTest, AChannelIsDeletedIfTheOperatorIsSureAndTheOthersAreListed) {
  this->PickChannel("News", "World");
  this->Answered(Answer::kNo, this->Desk().ThemedButton1);
  EXPECT_EQ(this->Channels(), (Names{"World", "Local"}));
  this->Answered(Answer::kYes, this->Desk().ThemedButton1);
  EXPECT_EQ(this->Asked(), (Names{kDeleteChannel, kDeleteChannel}));
  EXPECT_EQ(this->Channels(), Names{"Local"});
  EXPECT_EQ(this->Desk().lblChannel.Caption.Get(), "Channels (1)");
}

TYPED_TEST(ChannelDirectoryTest, DeletingAChannelWithNoneSelectedAsksAndTakesTheOneWithoutANameIfThereIsOne) {
  const std::string before = this->Content();
  this->PickType("News");
  this->Answered(Answer::kYes, this->Desk().ThemedButton1);
  EXPECT_EQ(this->Asked(), Names{kDeleteChannel});
  EXPECT_EQ(this->Content(), before);
  EXPECT_EQ(this->Channels(), (Names{"World", "Local"}));
  this->Holds("[News]\r\nWorld=mms://host/world\r\n=http://host/nameless\r\n");
  this->PickType("News");
  this->Answered(Answer::kYes, this->Desk().ThemedButton1);
  EXPECT_EQ(this->Content(), "[News]\r\nWorld=mms://host/world\r\n");
}

TYPED_TEST(ChannelDirectoryTest, DeletingAChannelWithNoTypeSelectedSaysNothingAndClearsTheList) {
  const std::string before = this->Content();
  this->PickChannel("News", "World");
  this->AddType("Empty");
  this->Asked();
  this->Click(this->Desk().ListChannel, "World");
  this->Answered(Answer::kYes, this->Desk().ThemedButton1);
  EXPECT_EQ(this->Asked(), Names{kDeleteChannel});
  EXPECT_EQ(this->Content(), before);
  EXPECT_TRUE(this->Channels().empty());
}

TYPED_TEST(ChannelDirectoryTest, AQuestionIsAboutWhatWasSelectedWhenItOpened) {
  this->PickChannel("News", "World");
  this->sim.dialogs.whileStanding = [this] { this->PickType("Empty"); };
  this->Answered(Answer::kYes, this->Desk().ThemedButton1);
  this->sim.dialogs.whileStanding = nullptr;
  this->PickType("News");
  EXPECT_EQ(this->Channels(), Names{"Local"});
}

TYPED_TEST(ChannelDirectoryTest, AFileThatIsNotThereIsAnEmptyDirectoryAndIsMadeByTheFirstType) {
  this->sim.files.Remove(TypeParam::kFile);
  EXPECT_TRUE(this->Types().empty());
  EXPECT_EQ(this->Desk().lblType.Caption.Get(), "Channel's type (0)");
  this->AddType("News");
  EXPECT_EQ(this->Content(), "[News]\r\n");
}

TYPED_TEST(ChannelDirectoryTest, AFileWithoutSectionsHasNoChannels) {
  this->Holds("World=http://host/world\r\nnonsense\r\n");
  EXPECT_TRUE(this->Types().empty());
}

TYPED_TEST(ChannelDirectoryTest, OfTwoChannelsOfOneNameTheFirstPlaysAndIsDeletedFirst) {
  this->Holds("[News]\r\nA=http://one\r\na=http://two\r\n");
  this->PickType("News");
  EXPECT_EQ(this->Channels(), (Names{"A", "a"}));
  this->Click(this->Desk().ListChannel, "a");
  EXPECT_EQ(this->Desk().ChannelURL, "http://one");
  this->Answered(Answer::kYes, this->Desk().ThemedButton1);
  EXPECT_EQ(this->Content(), "[News]\r\na=http://two\r\n");
}

TYPED_TEST(ChannelDirectoryTest, OfTwoTypesOfOneNameEachListsItsOwnChannels) {
  this->Holds("[News]\r\nA=http://one\r\n[News]\r\nB=http://two\r\n");
  this->Desk().ListType.Pick(1);
  EXPECT_EQ(this->Channels(), Names{"B"});
}

TYPED_TEST(ChannelDirectoryTest, ATypeThatSomebodyTookOutOfTheFileListsNothingAndSaysSo) {
  this->Desk();
  this->Holds("[News]\r\n");
  this->Desk().ListType.Pick(1);
  EXPECT_EQ(this->Asked().size(), 1U);
  EXPECT_TRUE(this->Channels().empty());
}

TYPED_TEST(ChannelDirectoryTest, ADirectoryThatIsLoadedAgainShowsWhatTheFileHoldsNow) {
  this->Desk();
  this->Holds("[Other]\r\n");
  TypeParam::LoadChannels(this->Desk());
  EXPECT_EQ(this->Types(), Names{"Other"});
}

}  // namespace
