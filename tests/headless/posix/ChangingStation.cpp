#include "tests/headless/posix/ChangingStation.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <regex>
#include <sstream>
#include <utility>

namespace logchecker {

namespace {

namespace fs = std::filesystem;

constexpr size_t kRecord = 300;  // bytes of a cart's record
constexpr char kAway[] = ".away";

std::string Bytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

bool Is(const fs::path& path, const char* extension) {
  std::string text = path.extension().string();
  std::transform(text.begin(), text.end(), text.begin(), ::toupper);
  return text == extension;
}

std::string Swapped(std::string name) {
  for (char& c : name) {
    const auto byte = static_cast<unsigned char>(c);
    c = static_cast<char>(std::isupper(byte) != 0 ? std::tolower(byte) : std::toupper(byte));
  }
  return name;
}

std::string Replaced(std::string text, const std::string& key, const std::string& value) {
  const size_t begin = text.find(key + "=");
  if (begin == std::string::npos) return text + "\r\n" + key + "=" + value + "\r\n";
  const size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
  return text.replace(begin, end - begin, key + "=" + value);
}

}  // namespace

ChangingStation::ChangingStation(fs::path folder, uint32_t seed)
    : folder_(std::move(folder)), random_(seed) {
  std::vector<fs::path> paths = {folder_};
  for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
    paths.push_back(entry.path());
  }
  // The order of a directory's entries is the disk's own.
  std::sort(paths.begin(), paths.end());
  for (const fs::path& path : paths) {
    const bool isLog = path.string().find("/logs/") != std::string::npos;
    if (fs::is_directory(path)) {
      folders_.push_back(path);
    } else if (Is(path, ".INI")) {
      settings_.push_back({path, Bytes(path)});
    } else if (Is(path, ".LST")) {
      const bool isPart = path.filename().string().rfind("Carts", 0) == 0;
      (isPart ? lists_ : ownLists_).push_back({path, Bytes(path)});
    } else if (isLog) {
      logs_.push_back({path, Bytes(path)});
    }
  }
}

void ChangingStation::Stamp(const fs::path& path) {
  std::error_code ignored;
  fs::last_write_time(path, fs::file_time_type(std::chrono::seconds(++stamps_)), ignored);
}

// Where the folder is away nothing can be written.
void ChangingStation::Write(const fs::path& path, const std::string& bytes, bool byRename) {
  const fs::path target = byRename ? fs::path(path.string() + ".new") : path;
  {
    std::ofstream file(target, std::ios::binary | std::ios::trunc);
    file << bytes;
  }
  Stamp(target);
  std::error_code ignored;
  if (byRename) fs::rename(target, path, ignored);
}

const ChangingStation::File& ChangingStation::AnyLog() { return logs_[Below(logs_.size())]; }

const ChangingStation::File& ChangingStation::AnyListFile() { return lists_[Below(lists_.size())]; }

// Text of the file with a line less, a line more, another digit, or less of it.
std::string ChangingStation::Vary(const File& file, const std::string& text) {
  if (text.empty()) return file.bytes;
  const size_t begin = text.rfind('\n', Below(text.size())) + 1;
  const size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
  switch (Below(4)) {
    case 0:
      return text.substr(0, begin) + text.substr(std::min(end, text.size()));
    case 1:
      return text.substr(0, end) + text.substr(begin);
    case 2: {
      std::string varied = text;
      const size_t digit = varied.find_first_of("0123456789", Below(varied.size()));
      if (digit != std::string::npos) varied[digit] = static_cast<char>('0' + Below(10));
      return varied;
    }
    default:
      return text.substr(0, Below(text.size()));
  }
}

std::string ChangingStation::ChangeLog() {
  const File& log = AnyLog();
  const std::string text = Bytes(log.path);
  std::error_code ignored;
  switch (Below(5)) {
    case 0:
      fs::remove(log.path, ignored);
      return "removed " + log.path.string();
    case 1:
      fs::resize_file(log.path, text.size() / 2, ignored);
      Stamp(log.path);
      return "cut " + log.path.string();
    case 2: {
      std::ofstream(log.path, std::ios::binary | std::ios::app)
          << "\r\n"
          << log.bytes.substr(0, Below(log.bytes.size()));
      Stamp(log.path);
      return "added to " + log.path.string();
    }
    case 3:
      Write(log.path, Vary(log, text), false);
      return "wrote " + log.path.string();
    default:
      Write(log.path, Vary(log, text), true);
      return "replaced " + log.path.string();
  }
}

std::string ChangingStation::ChangeSettings() {
  const File& file = settings_[Below(settings_.size())];
  std::string text = Bytes(file.path);
  switch (Below(7)) {
    case 0:
      text = Replaced(text, "NumberActiveSplits", std::to_string(Below(7)));
      break;
    case 1:
      text = Replaced(text, "BreakDifferenceMS", std::to_string(Below(4) * 600));
      break;
    case 2:
      text = Replaced(text, "UseIndividualCartListFiles", std::to_string(Below(2)));
      break;
    case 3:
      text = Replaced(text, "NoCarts", std::to_string(1 + Below(4000)));
      break;
    case 4:
      text = Replaced(text, "SplitName" + std::to_string(1 + Below(5)), "Other");
      break;
    case 5:
      text = Replaced(text, "Version", "2.5");
      break;
    default:
      fs::remove(file.path);
      return "removed " + file.path.string();
  }
  Write(file.path, text, Below(2) == 0);
  return "changed " + file.path.string();
}

std::string ChangingStation::ChangeListFile() {
  const File& list = AnyListFile();
  std::string bytes = Bytes(list.path);
  std::error_code ignored;
  switch (Below(5)) {
    case 0:
      fs::remove(list.path, ignored);
      return "removed " + list.path.string();
    case 1:
      fs::resize_file(list.path, bytes.size() / 3, ignored);
      Stamp(list.path);
      return "cut " + list.path.string();
    default:
      break;
  }
  // Each record gets one of another place: other lengths, or none.
  std::rotate(bytes.begin(),
              bytes.begin() + static_cast<std::ptrdiff_t>(
                                  kRecord * Below(std::max<size_t>(bytes.size() / kRecord, 1))),
              bytes.end());
  Write(list.path, bytes, Below(2) == 0);
  return "wrote " + list.path.string();
}

// One that a log has.
uint32_t ChangingStation::AnyCart() {
  const std::string& text = AnyLog().bytes;
  std::vector<std::string> carts;
  const std::regex eightDigits("[^0-9]0000([0-9]{4})[^0-9]");
  for (std::sregex_iterator match(text.begin(), text.end(), eightDigits), end; match != end;
       ++match) {
    carts.push_back((*match)[1]);
  }
  return carts.empty() ? 1 : static_cast<uint32_t>(std::stoi(carts[Below(carts.size())]));
}

std::string ChangingStation::ChangeOwnListFile() {
  const File& list = ownLists_[Below(ownLists_.size())];
  const File& other = ownLists_[Below(ownLists_.size())];
  const uint32_t number = AnyCart();
  const std::string digits = std::to_string(number);
  const fs::path path = Below(2) == 0
                            ? list.path
                            : folder_ / "audio" / ("carts " + std::to_string(1 + number / 1000)) /
                                  ("VEL" + std::string(5 - digits.size(), '0') + digits + ".LST");
  added_.push_back(path);
  if (Below(3) == 0) {
    fs::remove(path);
    return "removed " + path.string();
  }
  Write(path, other.bytes, Below(2) == 0);
  return "wrote " + path.string();
}

std::string ChangingStation::MoveFolder() {
  const fs::path& folder = folders_[Below(folders_.size())];
  const fs::path away(folder.string() + kAway);
  std::error_code failure;
  if (fs::exists(away)) {
    fs::rename(away, folder, failure);
    return "back: " + folder.string();
  }
  fs::rename(folder, away, failure);
  return "away: " + folder.string();
}

// What is found without regard to case may be another file from now on.
std::string ChangingStation::AddTwin() {
  std::vector<const File*> files;
  for (const auto* list : {&logs_, &settings_, &lists_, &ownLists_}) {
    for (const File& file : *list) files.push_back(&file);
  }
  const File& file = *files[Below(files.size())];
  const fs::path twin = file.path.parent_path() / Swapped(file.path.filename().string());
  added_.push_back(twin);
  if (Below(2) == 0) {
    std::error_code ignored;
    fs::rename(file.path, twin, ignored);
    return "renamed to " + twin.string();
  }
  Write(twin, Vary(file, file.bytes), Below(2) == 0);
  return "wrote " + twin.string();
}

std::string ChangingStation::PutBack() {
  for (const auto* list : {&logs_, &settings_, &lists_, &ownLists_}) {
    for (const File& file : *list) {
      if (Below(3) == 0 && Bytes(file.path) != file.bytes) {
        Write(file.path, file.bytes, Below(2) == 0);
      }
    }
  }
  return "put some files back";
}

std::string ChangingStation::Change() {
  switch (Below(9)) {
    case 0:
    case 1:
      return ChangeLog();
    case 2:
      return ChangeSettings();
    case 3:
      return ChangeListFile();
    case 4:
      return ChangeOwnListFile();
    case 5:
      return MoveFolder();
    case 6:
      return AddTwin();
    case 7:
      Restore();
      return "made whole";
    default:
      return PutBack();
  }
}

void ChangingStation::Restore() {
  for (const fs::path& folder : folders_) {
    std::error_code failure;
    if (fs::exists(folder.string() + kAway)) fs::rename(folder.string() + kAway, folder, failure);
  }
  for (const fs::path& path : added_) {
    std::error_code failure;
    fs::remove(path, failure);
  }
  added_.clear();
  for (const auto* list : {&logs_, &settings_, &lists_, &ownLists_}) {
    for (const File& file : *list) {
      if (Bytes(file.path) != file.bytes) Write(file.path, file.bytes, true);
    }
  }
}

}  // namespace logchecker
