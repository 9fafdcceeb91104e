#include "playlist/PlaylistText.h"

namespace {

struct Field {
  PlaylistColumn column;
  const char* key;
};

// In the order of the file. These names reach users' disks: never change them.
constexpr Field kFields[] = {
    {kDuration, "Duration"}, {kEndTime, "EndTime"}, {kFileName, "FileName"}, {kFilePath, "Path"}};

}  // namespace

std::vector<ListRow> PlaylistRows(IniFile& playlist) {
  const auto sections = playlist.Sections();
  std::vector<ListRow> rows;
  rows.reserve(sections.Count());
  for (std::size_t i = 1; i <= sections.Count(); ++i) {
    ListRow row{.text = sections.Item(i).Name(), .subItems = {}, .smallIcon = 1};
    for (const Field& field : kFields) row.subItems.push_back(sections.ReadValue(row.text, field.key, ""));
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string PlaylistText(const std::vector<ListRow>& rows) {
  constexpr char kLineEnd[] = "\r\n";
  std::string text;
  for (const ListRow& row : rows) {
    text.append(kLineEnd).append("[").append(row.text).append("]").append(kLineEnd);
    for (const Field& field : kFields) {
      text.append(field.key).append("=").append(row.SubItem(field.column)).append(kLineEnd);
    }
  }
  return text;
}
