#include "channels/frmOnlineRadio.h"

frmOnlineRadio::frmOnlineRadio(Station& station) : ChannelForm(station, Directory::kRadio) {}
