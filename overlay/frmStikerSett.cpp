#include "overlay/frmStikerSett.h"

frmStikerSett::frmStikerSett(Station& station) : LibraryForm(station, Library::kSticker) {
  BtnSetLogo.Click.Connect([this] {
    WritePath();
    ShowOnOverlay();
  });
}
