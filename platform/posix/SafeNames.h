#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Names of what the station keeps beside its files for their safety. All begin with a dot and are in no list.

// A file that is being written, or a folder that is being removed: ".<process>-<number>.unfinished~". No two calls give
// the same.
std::string UnfinishedName(const std::string& folder);
// The process that writes such a file; 0 when `name` is no such name.
int UnfinishedOwner(std::string_view name);

// A second name of the newest version of a file that is known to be on the medium, kept while a newer one is not:
// ".<file>.<before>.<now>.kept~". The two are the digests of the contents that the file may have now if all went well.
struct KeptName {
  std::string file;
  std::uint64_t before = 0;
  std::uint64_t now = 0;

  std::string Text() const;
  // False when `name` is no such name.
  bool Parse(std::string_view name);
};

// A version that is on its way to the medium while still newer ones are written: ".<file>.next~".
std::string NextName(const std::string& file);

bool IsSafeName(std::string_view name);

// Tells contents apart; not meant to withstand malice. Digests stand in names on disk: do not change them.
std::uint64_t ContentDigest(std::string_view content);
