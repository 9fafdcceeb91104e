#include "overlay/MediaLibrary.h"

#include <utility>

#include "controls/McListBox.h"
#include "platform/toolkit/Form.h"
#include "settings/Helpers.h"

MediaLibrary::MediaLibrary(Form& form, McListBox& categories, std::string folder)
    : form_(form), categories_(categories), folder_(std::move(folder)) {}

void MediaLibrary::ListCategories() { categories_.Path = folder_; }

std::string MediaLibrary::Place() const { return categories_.Path.Get() + categories_.Text(); }

bool MediaLibrary::IsListed() const { return categories_.Path.Get() == folder_ + "/"; }

std::string MediaLibrary::Picked() const { return IsListed() && !categories_.Text().empty() ? Place() : ""; }

bool MediaLibrary::AddFile(const std::string& title, const std::string& filter) {
  const std::string file = form_.OpenFile(title, filter);
  return !file.empty() && form_.CopyFile(file, Place() + "/" + FileNameOfPath(file)) != CopyResult::kCancelled;
}

void MediaLibrary::AddCategory() {
  const std::string name = form_.InputBox("Please enter a category name", "Category");
  if (IsPlainName(name)) form_.Outside().files.CreateFolder(folder_ + "/" + name);
  if (!name.empty() || !IsListed()) ListCategories();
}

// The list may be another one when the answer comes: what was picked when the question opened is what it is about.
bool MediaLibrary::DeleteCategoryIfAsked() {
  const std::string picked = Picked();
  const Answer answer = form_.MsgBox("Are You Sure you wnat to Delete this category?", Buttons::kYesNo, "DELETE");
  if (answer != Answer::kYes) return false;
  Delete(picked);
  return true;
}

void MediaLibrary::DeleteCategory() { Delete(Picked()); }

void MediaLibrary::Delete(const std::string& category) {
  if (!category.empty()) DeleteFolderTree(form_.Outside().files, category);
  ListCategories();
}
