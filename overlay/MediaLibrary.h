#pragma once

#include <string>

class Form;
class McListBox;

// A library of files: a folder of the data folder whose sub folders are its categories, and nothing else describes it.
// What the operator does to it on the forms that show one.
class MediaLibrary {
 public:
  // `categories` lists folders, of the library or of another folder; `folder` is the library's. Both outlive it.
  MediaLibrary(Form& form, McListBox& categories, std::string folder);

  // Lists the categories anew; none is picked after it.
  void ListCategories();
  // The folder that the list is in, and the picked folder of it, if any.
  std::string Place() const;
  // Asks for a file and copies it to Place; what bears its name there is replaced. False when the operator gave it up,
  // true also when it could not be copied.
  bool AddFile(const std::string& title, const std::string& filter);
  // Asks for a name, makes a category of it and lists the categories. A name that is no plain one makes nothing; the
  // empty one leaves a list that is in the library as it is, too.
  void AddCategory();
  // Asks first. False when the operator keeps it.
  bool DeleteCategoryIfAsked();
  // Deletes the category that is picked now, with all in it.
  void DeleteCategory();

 private:
  // The list is in the library.
  bool IsListed() const;
  // The folder of the category that is picked; empty with none, and while the list is in another folder: only what
  // stands in the library is deleted, and never the whole of it.
  std::string Picked() const;
  void Delete(const std::string& category);

  Form& form_;
  McListBox& categories_;
  const std::string folder_;
};
