#include "channels/frmOnlineTV.h"

frmOnlineTV::frmOnlineTV(Station& station) : ChannelForm(station, Directory::kTV) {}
