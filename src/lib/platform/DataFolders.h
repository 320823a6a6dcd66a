#pragma once

#include <string>
#include <vector>

/// The user's home, from the environment or the system's list of users; empty without any.
std::string HomeOfUser();

/// The folders of data as the desktop names them, without a slash at the end: the user's (`$XDG_DATA_HOME`,
/// by default
/// `~/.local/share`), the system's in their order (`$XDG_DATA_DIRS`, by default `/usr/local/share` and
/// `/usr/share`), and last `share` beside the folder that the program stands in. None twice; names that are
/// not absolute are skipped.
std::vector<std::string> DataFolders();
