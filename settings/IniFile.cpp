#include "settings/IniFile.h"

#include "platform/CaseFold.h"
#include "platform/toolkit/Failure.h"
#include "settings/IniText.h"

std::size_t IniKeys::Count() const { return document_->KeyCount(section_); }

IniKeys::Entry IniKeys::Item(std::size_t index) const {
  if (index < 1 || index > Count()) throw Failure("The section has no key of that number.");
  return {std::string(document_->KeyName(section_, index - 1))};
}

void IniKeys::Remove(std::string_view name) { file_->RemoveKey(section_, document_->SectionName(section_), name); }

std::string IniSection::Name() const { return std::string(document_->SectionName(section_)); }

IniKeys IniSection::Keys() const { return {*file_, document_, section_}; }

std::size_t IniSections::Count() const { return document_->SectionCount(); }

IniSection IniSections::Item(std::size_t index) const {
  if (index < 1 || index > Count()) throw Failure("The file has no section of that number.");
  return {*file_, document_, index - 1};
}

std::string IniSections::ReadValue(std::string_view section, std::string_view key, std::string_view fallback) const {
  const std::string_view value = document_->Value(section, key);
  return std::string(value.data() == nullptr ? fallback : value);
}

void IniSections::Add(std::string_view name) {
  if (!file_->Refresh() || file_->document_->FindSection(name) != IniDocument::kNone) return;
  file_->Store(file_->document_->WithSection(name));
}

void IniSections::Remove(std::string_view name) {
  if (!file_->Refresh()) return;
  const std::size_t section = file_->document_->FindSection(name);
  if (section != IniDocument::kNone) file_->Store(file_->document_->WithoutSection(section));
}

void IniFile::SetPath(std::string path) {
  if (path == path_) return;
  path_ = std::move(path);
  watch_.reset();
}

std::string IniFile::ReadValue(std::string_view section, std::string_view key, std::string_view fallback) {
  Refresh();
  const std::string_view value = document_->Value(section, key);
  return std::string(value.data() == nullptr ? fallback : value);
}

void IniFile::WriteValue(std::string_view section, std::string_view key, std::string_view value) {
  if (Refresh()) Store(document_->WithValue(section, key, value));
}

void IniFile::Rewrite(const std::function<IniDocument(const IniDocument&)>& edit) {
  if (Refresh()) Store(edit(*document_));
}

IniSections IniFile::Sections() {
  Refresh();
  return {*this, document_};
}

bool IniFile::Refresh() {
  if (watch_ != nullptr && watch_->Unchanged()) return readable_;
  FileReading reading = files_->ReadWatched(path_, kMaxBytes);
  watch_ = std::move(reading.watch);
  readable_ = reading.result != ReadResult::kRefused;
  if (reading.content != bytes_) {
    bytes_ = std::move(reading.content);
    document_ = std::make_shared<const IniDocument>(DecodeIni(bytes_));
  }
  return readable_;
}

void IniFile::Store(IniDocument document) {
  // A file beyond the limit could not be read again: then the value is lost and the file stays.
  if (document.Text().size() > kMaxBytes) return;
  watch_.reset();
  if (!files_->Replace(path_, document.Text())) return;
  bytes_ = document.Text();
  document_ = std::make_shared<const IniDocument>(std::move(document));
}

void IniFile::RemoveKey(std::size_t section, std::string_view sectionName, std::string_view key) {
  if (!Refresh()) return;
  // Of twin sections the one that was enumerated is meant, as long as it still stands where it stood.
  const bool isThere =
      section < document_->SectionCount() && EqualIgnoringCase(document_->SectionName(section), sectionName);
  const std::size_t target = isThere ? section : document_->FindSection(sectionName);
  if (target == IniDocument::kNone) return;
  const std::size_t gone = document_->FindKeyOf(target, key);
  if (gone != IniDocument::kNone) Store(document_->WithoutKey(target, gone));
}
