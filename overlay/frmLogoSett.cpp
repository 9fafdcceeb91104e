#include "overlay/frmLogoSett.h"

frmLogoSett::frmLogoSett(Station& station) : LibraryForm(station, Library::kLogo) {
  BtnSetLogo.Click.Connect([this] {
    WritePath();
    ShowOnOverlay();
  });
}
