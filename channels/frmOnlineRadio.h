#pragma once

#include "channels/ChannelForm.h"

// The radio channels.
class frmOnlineRadio : public ChannelForm {
 public:
  explicit frmOnlineRadio(Station& station);

  void LoadradioChannel() { LoadChannels(); }
};
