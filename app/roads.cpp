#include "app/roads.h"

#include "ads/frmAdSett.h"
#include "ads/frmVideoAdSett.h"
#include "output/frmPlayer.h"
#include "playlist/frmPlaylist.h"
#include "settings/Station.h"

void ConnectRoads(Station& station) {
  StationForms& forms = station.forms;

  // frmPlayer -> frmPlaylist
  forms.WhenCreated<frmPlayer>([&forms](frmPlayer& output) {
    // An item has started: its place is recorded from now on.
    output.ItemStarted.Connect([&forms] { forms.Get<frmPlaylist>().Timer4.Enabled = true; });
    // An item is over: the next one, if they follow one another.
    output.ItemOver.Connect([&forms] {
      auto& playlist = forms.Get<frmPlaylist>();
      if (playlist.chkOneAfterAnother.Ticked()) playlist.PlayNext();
    });
    output.ItemNearlyOver.Connect([&forms] { forms.Get<frmPlaylist>().PlayNext(); });
    // The duration of the item is known: the slider takes its range.
    output.MediaOpened.Connect([&forms, &output] { forms.Get<frmPlaylist>().TakeDuration(output); });
  });

  // frmPlayer -> frmAdSett
  forms.WhenCreated<frmPlayer>([&forms](frmPlayer& output) {
    // The crawler's picture has left the band: the next ad.
    output.CrawlerLeft.Connect([&forms] { forms.Get<frmAdSett>().NextAd(); });
  });

  // frmPlayer -> frmVideoAdSett
  forms.WhenCreated<frmPlayer>([&forms](frmPlayer& output) {
    // A video ad is over: the next one, or the end of the break.
    output.VideoAdOver.Connect([&forms] { forms.Get<frmVideoAdSett>().NextAd(); });
  });
}
