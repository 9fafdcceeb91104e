#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "settings/IniDocument.h"

class IniFile;

// The keys of one section as they stood when the sections were asked for, in file order.
class IniKeys {
 public:
  struct Entry {
    std::string Name;
  };

  std::size_t Count() const;
  // Key `index`, from 1; throws Failure outside of 1 to Count.
  Entry Item(std::size_t index) const;
  // Takes the key out of the file, which it has left when the call returns. No error when there is none of that name.
  void Remove(std::string_view name);

 private:
  friend class IniSection;
  IniKeys(IniFile& file, std::shared_ptr<const IniDocument> document, std::size_t section)
      : file_(&file), document_(std::move(document)), section_(section) {}

  IniFile* file_;
  std::shared_ptr<const IniDocument> document_;
  std::size_t section_;
};

class IniSection {
 public:
  // The name as it stands between the brackets.
  std::string Name() const;
  IniKeys Keys() const;

 private:
  friend class IniSections;
  IniSection(IniFile& file, std::shared_ptr<const IniDocument> document, std::size_t section)
      : file_(&file), document_(std::move(document)), section_(section) {}

  IniFile* file_;
  std::shared_ptr<const IniDocument> document_;
  std::size_t section_;
};

// The sections of a file as they stood when they were asked for, in file order, later twins of a name included. Holds
// that state by itself, but must not outlive the IniFile.
class IniSections {
 public:
  std::size_t Count() const;
  // Section `index`, from 1; throws Failure outside of 1 to Count.
  IniSection Item(std::size_t index) const;
  // What IniFile::ReadValue would have given at that moment, without a look at the disk: for walks over long files.
  std::string ReadValue(std::string_view section, std::string_view key, std::string_view fallback) const;

  // Adds an empty section at the end of the file; changes nothing when there is one of that name. Done on disk when the
  // call returns.
  void Add(std::string_view name);
  // Removes the first section of that name with all its keys; no error when there is none. Done on disk when the call
  // returns.
  void Remove(std::string_view name);

 private:
  friend class IniFile;
  IniSections(IniFile& file, std::shared_ptr<const IniDocument> document)
      : file_(&file), document_(std::move(document)) {}

  IniFile* file_;
  std::shared_ptr<const IniDocument> document_;
};

// One INI file: text values under sections and keys, names without regard to case. No read or write reports anything: a
// file that cannot be read (absent, a folder, unreadable, larger than kMaxBytes) gives the defaults, and a file that
// cannot be written loses the value. A file that is there but cannot be read is never written to.
//
// Every read answers from the file as it stands on disk at that moment, whoever changed it, and costs no more than a
// look-up while nobody did.
class IniFile {
 public:
  // Far more than any station has; a file beyond it is no settings file.
  static constexpr std::uint64_t kMaxBytes = 32u << 20;

  explicit IniFile(Files& files) : files_(&files) {}

  // From now on the instance means the file at `path`, which need not exist. It is not created.
  void SetPath(std::string path);
  const std::string& Path() const { return path_; }

  // The value, or `fallback` where the file, the section or the key is absent. An empty value is "".
  std::string ReadValue(std::string_view section, std::string_view key, std::string_view fallback);
  // Sets the value, adding the file, the section and the key as needed; the folder must exist. Done on disk when the
  // call returns. Always writes, also an unchanged value: the file's time is the station's sign of life.
  void WriteValue(std::string_view section, std::string_view key, std::string_view value);
  // Several edits in one step: what `edit` makes of the file as it stands takes its place. Nobody ever sees the one
  // done and the other not.
  void Rewrite(const std::function<IniDocument(const IniDocument&)>& edit);

  IniSections Sections();

 private:
  friend class IniSections;
  friend class IniKeys;

  // Reads the file anew unless it is known to be unchanged; false when it is there but cannot be read.
  bool Refresh();
  void Store(IniDocument document);
  void RemoveKey(std::size_t section, std::string_view sectionName, std::string_view key);

  Files* files_;
  std::string path_;
  std::string bytes_;  // as read, to see at once that a file that may have changed has not
  bool readable_ = true;
  std::shared_ptr<const IniDocument> document_ = std::make_shared<IniDocument>();
  std::unique_ptr<FileWatch> watch_;
};
