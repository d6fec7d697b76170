#include "headless/StationList.h"

#include <map>
#include <string_view>

#include "common/ErrorState.h"
#include "common/PathText.h"
#include "common/Trouble.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kMostListBytes = size_t{16} << 20U;

// The whole file. Not line by line as a log is read, whose last line may lose a character.
std::string ReadWhole(const std::string& path) {
  Files& files = Os().files;
  int64_t length = 0;
  int16_t number = 0;
  std::string bytes;
  // A pipe would be waited for.
  int32_t error = files.FileLength(path, &length);
  if (error == kNoError) error = files.FreeFile(&number);
  if (error == kNoError) error = files.OpenForInput(number, path);
  std::string_view more = " ";
  while (error == kNoError && !more.empty() && bytes.size() <= kMostListBytes) {
    error = files.Peek(number, &more);
    bytes += more;
    files.Skip(number, more.size());
  }
  files.Close(number);
  if (error != kNoError) {
    throw Trouble("the list of stations can't be read: " + ShownPath(path) + ": " +
                  ErrorText(error));
  }
  if (bytes.size() > kMostListBytes) {
    throw Trouble("the list of stations is longer than 16 MiB: " + ShownPath(path));
  }
  return bytes;
}

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

class Reader {
 public:
  explicit Reader(const std::string& path) : path_(path) {
    const bool hasFolder = path.find_first_of("\\/") != std::string::npos;
    if (hasFolder) folder_ = path.substr(0, path.find_last_of("\\/") + 1);
  }

  void Take(std::string_view line) {
    ++number_;
    line = WithoutBlanks(line);
    if (line.empty() || line[0] == '#' || line[0] == ';') return;
    std::string text;
    if (!FromUtf8(line, &text))
      Refuse("is not UTF-8, or has a character that the code page can't hold");
    if (text.find('\0') != std::string::npos) Refuse("is no text");
    const size_t equals = text.find('=');
    if (equals == std::string::npos) Refuse("is not of the form NAME = FOLDER");
    const std::string name(WithoutBlanks(std::string_view(text).substr(0, equals)));
    const std::string folder(WithoutBlanks(std::string_view(text).substr(equals + 1)));
    if (name.empty()) Refuse("has no name");
    if (folder.empty()) Refuse("has no folder");
    const auto [place, isNew] = lines_.emplace(name, number_);
    if (!isNew) {
      Refuse("names \"" + name + "\" again, which stands in line " + std::to_string(place->second));
    }
    stations_.push_back({name, SettingsOf(folder)});
  }

  std::vector<ListedStation> TakeStations() {
    if (stations_.empty()) throw Trouble("the list names no station: " + ShownPath(path_));
    return std::move(stations_);
  }

 private:
  [[noreturn]] void Refuse(const std::string& what) const {
    throw Trouble("line " + std::to_string(number_) + " of " + ShownPath(path_) + " " + what);
  }

  std::string SettingsOf(const std::string& folder) const {
    const bool rooted = Os().directories.RootLength(folder) > 0 || IsPathSeparator(folder[0]);
    std::string path;
    if (!FromUtf8(ToHostPath(rooted ? folder : folder_ + folder), &path)) {
      Refuse("leads to a folder whose name the code page can't hold");
    }
    return path;
  }

  std::string path_;
  std::string folder_;  // the list's own with a separator, or ""
  size_t number_ = 0;
  std::map<std::string, size_t> lines_;
  std::vector<ListedStation> stations_;
};

}  // namespace

std::vector<ListedStation> ReadStationList(const std::string& path) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  const std::string bytes = ReadWhole(path);
  std::string_view rest = bytes;
  if (rest.substr(0, kMark.size()) == kMark) rest.remove_prefix(kMark.size());
  Reader reader(path);
  while (!rest.empty()) {
    const size_t end = rest.find('\n');
    reader.Take(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return reader.TakeStations();
}

}  // namespace logchecker
