#include "overlay/NewsMovie.h"

#include <string>

void MakeNewsMovie(Files& files, const DataFolder& folder) {
  const std::string path = folder.Path(kNewsMovie);
  if (files.Kind(path) != FileKind::kAbsent) return;
  files.CreateFolder(folder.Path("\\Media\\FlashBN"));
  files.Replace(path, std::string(NewsMovie()));
}
