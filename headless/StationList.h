// The list of many stations.
#pragma once

#include <string>
#include <vector>

namespace logchecker {

struct ListedStation {
  std::string name;
  std::string settings;  // its settings folder: a path of the host, as station text
};

// Reads a text file of lines `NAME = FOLDER` in UTF-8. A line without anything and one that begins
// with "#" or ";" count for nothing; a "=" more is the folder's. A folder without a root counts
// from the list's own, and is found as the station's paths are. `path` is a station path. Throws
// Trouble, which names file and line, for a file that can't be read, a line that is no such thing,
// a name that stands twice, and a list without a station: half a list would be a green for half the
// stations.
std::vector<ListedStation> ReadStationList(const std::string& path);

}  // namespace logchecker
