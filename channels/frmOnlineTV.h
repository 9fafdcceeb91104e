#pragma once

#include "channels/ChannelForm.h"

// The TV channels.
class frmOnlineTV : public ChannelForm {
 public:
  explicit frmOnlineTV(Station& station);

  void LoadTVChannel() { LoadChannels(); }
};
