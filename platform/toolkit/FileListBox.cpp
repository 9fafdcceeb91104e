#include "platform/toolkit/FileListBox.h"

#include <utility>

#include "platform/Files.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Wildcards.h"

FileListBox::FileListBox(Form& form, std::string name)
    : Control(form, std::move(name)),
      Path("",
           [this](const std::string& folder) {
             if (Owner().Outside().files.Kind(folder) != FileKind::kFolder) throw Failure("Path not found: " + folder);
             const std::string bare =
                 folder.size() > 1 && folder.back() == '/' ? folder.substr(0, folder.size() - 1) : folder;
             if (bare != Path.Get()) indexIsOld_ = true;
             Path.Store(bare);
             Fill();
             ItemsChanged.Raise();
           }),
      Pattern("",
              [this](const std::string& pattern) {
                Pattern.Store(pattern);
                Refresh();
              }),
      ListIndex(-1, [this](const int& index) {
        if (index != -1) List(index);
        if (index == ListIndex && !indexIsOld_) return;
        Take(index);
        if (index != -1) Handle("Click", [this] { Click.Raise(); });
      }) {}

void FileListBox::Refresh() {
  Fill();
  Take(-1);
  ItemsChanged.Raise();
}

void FileListBox::Take(int index) {
  indexIsOld_ = false;
  ListIndex.Store(index);
}

void FileListBox::Fill() {
  files_.clear();
  if (Path.Get().empty()) return;
  // A name with a dot before it is hidden from whoever looks at the folder.
  for (std::string& name : Owner().Outside().files.List(Path, FileKind::kRegular)) {
    if (!name.starts_with('.') && FitsPattern(name, Pattern.Get())) files_.push_back(std::move(name));
  }
}

const std::string& FileListBox::List(int index) const {
  if (index < 0 || index >= ListCount()) throw Failure("There is no such file in " + Name() + ".");
  return files_[static_cast<std::size_t>(index)];
}

std::string FileListBox::FileName() const { return ListIndex < 0 || ListIndex >= ListCount() ? "" : List(ListIndex); }

std::string FileListBox::FilePath() const { return (Path.Get() == "/" ? "" : Path.Get()) + "/" + FileName(); }

void FileListBox::Pick(int index) {
  Handle("Click", [this, index] {
    List(index);  // fails for a row that is none
    Take(index);
    Click.Raise();
  });
}
