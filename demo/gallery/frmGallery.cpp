#include "demo/gallery/frmGallery.h"

#include "controls/DeskLists.h"
#include "platform/Desktop.h"

frmGallery::frmGallery(Station& station)
    : Form(station.forms, "frmGallery", Kind::kOperator), folder_(station.dataFolder.Folder()) {
  btnTimes.Click.Connect([this] { lblTimes.Caption = StartTime.GetTime() + " - " + EndTime.GetTime(); });
  ConnectLists();
  ConnectPages();
}

void frmGallery::ConnectLists() {
  for (McListBox* list : {&FolderList, &FileList, &WordList}) LookLikeTheDesk(*list);
  WordList.SortOrder = McListBox::kAscending;
  WordList.MultiSelect = true;
  WordList.ShowIcon = false;
  FolderList.Click.Connect([this] { Open(FolderList.Path.Get() + FolderList.Text()); });
  btnUp.Click.Connect([this] {
    const std::string open = FolderList.Path.Get();
    Open(open.substr(0, open.rfind('/', open.size() - 2) + 1));
  });
  btnAdd.Click.Connect([this] { WordList.AddItem(txtWord.Text.Get()); });
  btnRemove.Click.Connect([this] { WordList.Remove(); });
}

void frmGallery::ConnectPages() {
  btnShow.Click.Connect([this] {
    Large.Navigate(txtAddress.Text.Get());
    Small.Navigate(txtAddress.Text.Get());
  });
  // Where the panel is disabled, the mouse and the keys are the control's own.
  chkHands.Value = 1;
  chkHands.Click.Connect([this] { Large.picWeb.Enabled = Small.picWeb.Enabled = chkHands.Ticked(); });
  for (Pre* page : {&Large, &Small}) {
    const auto tell = [this, page](const std::string& event) { lblEvent.Caption = page->Name() + ": " + event; };
    page->Click.Connect([tell] { tell("Click"); });
    page->DblClick.Connect([tell] { tell("DblClick"); });
    page->KeyDown.Connect([tell](std::int16_t code, std::int16_t) { tell("KeyDown " + std::to_string(code)); });
  }
}

void frmGallery::Load() {
  FolderList.Mode = McListBox::kFolders;
  FileList.Mode = McListBox::kFiles;
  Open(folder_);
  for (const char* word : {"News", "Weather", "Sport"}) WordList.AddItem(word);
}

bool frmGallery::MayUnload() {
  Outside().desktop.EndProcess();
  return true;
}

void frmGallery::Open(const std::string& folder) {
  FolderList.Path = folder;
  FileList.Path = folder;
  lblFolder.Caption = FolderList.Path.Get();
}
