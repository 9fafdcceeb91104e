#include "platform/toolkit/FileListBox.h"

#include <utility>

#include "platform/Files.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Wildcards.h"

FileListBox::FileListBox(Form& form, std::string name)
    : NameList(form, std::move(name)),
      Path("",
           [this](const std::string& folder) {
             if (Owner().Outside().files.Kind(folder) != FileKind::kFolder) throw Failure("Path not found: " + folder);
             const std::string bare =
                 folder.size() > 1 && folder.back() == '/' ? folder.substr(0, folder.size() - 1) : folder;
             if (bare != Path.Get()) NumberIsOld();
             Path.Store(bare);
             Fill();
             ItemsChanged.Raise();
           }),
      Pattern("", [this](const std::string& pattern) {
        Pattern.Store(pattern);
        Refresh();
      }) {}

void FileListBox::Refresh() {
  Fill();
  Take(-1);
  ItemsChanged.Raise();
}

void FileListBox::Fill() {
  items_.clear();
  if (Path.Get().empty()) return;
  // A name with a dot before it is hidden from whoever looks at the folder.
  for (std::string& name : Owner().Outside().files.List(Path, FileKind::kRegular)) {
    if (!name.starts_with('.') && FitsPattern(name, Pattern.Get())) items_.push_back(std::move(name));
  }
}

std::string FileListBox::FilePath() const { return (Path.Get() == "/" ? "" : Path.Get()) + "/" + FileName(); }
