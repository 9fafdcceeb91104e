#pragma once

#include <string>
#include <vector>

#include "platform/toolkit/ListView.h"
#include "settings/IniFile.h"

// The columns of a playlist row behind its start time. They are sub items of the list, and keys of a section in the
// file.
enum PlaylistColumn { kDuration = 1, kEndTime = 2, kFileName = 3, kFilePath = 4 };

// The rows of a playlist file: one for each section, in file order.
std::vector<ListRow> PlaylistRows(IniFile& playlist);

// The bytes of a playlist file with these rows, lines ended by CR LF and an empty line before every section.
// The file is composed whole and takes the place of the old one in one step, so that neither a full disk nor a power
// cut in the middle of a save can cost the operator a row.
std::string PlaylistText(const std::vector<ListRow>& rows);
