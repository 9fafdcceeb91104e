#include "controls/Records.h"

#include <algorithm>

#include "platform/CaseFold.h"
#include "platform/toolkit/DrawnList.h"

namespace {

constexpr char kBetween[] = "<%S%>";
constexpr const char* kOwnIcons[] = {"exe", "lnk", "ico", "ani", "Cur"};

}  // namespace

std::string RecordOf(const DrawnRow& row) {
  return row.text + kBetween + std::to_string(row.image) + kBetween + (row.bold ? "True" : "False");
}

int CompareRecords(const std::string& left, const std::string& right) {
  const int order = CompareIgnoringCase(left, right);
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

std::string IconKey(const std::string& folder, const std::string& name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos || dot + 1 == name.size()) return "default";
  const std::string ending = FoldCase(name.substr(dot + 1));
  if (std::ranges::find(kOwnIcons, ending) != std::end(kOwnIcons)) return folder + name;
  return "." + ending;
}
