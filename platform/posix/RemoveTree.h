#pragma once

// Removes what stands at the name, a folder with all in it; follows no link. `parent` is an open folder, or AT_FDCWD
// where the name is a path. False when some of it is left.
bool RemoveTreeAt(int parent, const char* name);
