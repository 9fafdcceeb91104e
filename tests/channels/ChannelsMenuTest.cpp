// The entries of the control window that open the directories.
#include "channels/frmOnlineRadio.h"
#include "channels/frmOnlineTV.h"
#include "tests/StationTest.h"

namespace {

using ChannelsMenuTest = StationTest;

TEST_F(ChannelsMenuTest, TheEntriesOpenTheirDesks) {
  ControlWindow().mnuTVChannel.Choose();
  EXPECT_TRUE(station.forms.Get<frmOnlineTV>().Visible);
  EXPECT_FALSE(station.forms.Loaded<frmOnlineRadio>());
  ControlWindow().nmuRadioChannel.Choose();
  EXPECT_TRUE(station.forms.Get<frmOnlineRadio>().Visible);
}

TEST_F(ChannelsMenuTest, OfflineTheySaySoAndOpenNothing) {
  sim.network.SetOnline(false);
  for (MenuItem* entry : {&ControlWindow().mnuTVChannel, &ControlWindow().nmuRadioChannel}) {
    sim.trace.Take();
    entry->Choose();
    EXPECT_EQ(sim.trace.Take(), Names{"box \"Your PC is not cinnected to internet. Please try again later.\" "
                                      "\"Corvanta 6.0\""});
  }
  EXPECT_FALSE(station.forms.Loaded<frmOnlineTV>());
  EXPECT_FALSE(station.forms.Loaded<frmOnlineRadio>());
}

}  // namespace
