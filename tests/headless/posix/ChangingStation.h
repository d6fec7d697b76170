// A sample station that changes at random, as stations do.
#pragma once

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace logchecker {

// The files and folders of a sample station. Each change leaves a time stamp that no other has, so
// that what is seen of it does not hang on the clock.
class ChangingStation {
 public:
  ChangingStation(std::filesystem::path folder, uint32_t seed);

  // One change of any kind; says which, for a test that fails.
  std::string Change();
  // Brings all that was moved away back, and makes the station whole again.
  void Restore();

 private:
  using Path = std::filesystem::path;

  struct File {
    Path path;
    std::string bytes;
  };

  uint32_t Below(size_t bound) { return static_cast<uint32_t>(random_() % bound); }
  const File& AnyLog();
  const File& AnyListFile();
  uint32_t AnyCart();
  void Write(const Path& path, const std::string& bytes, bool byRename);
  void Stamp(const Path& path);

  std::string ChangeLog();
  std::string ChangeSettings();
  std::string ChangeListFile();
  std::string ChangeOwnListFile();
  std::string MoveFolder();
  std::string AddTwin();
  std::string PutBack();
  std::string Vary(const File& file, const std::string& text);

  Path folder_;
  std::mt19937 random_;
  int64_t stamps_ = 0;
  std::vector<File> logs_;
  std::vector<File> settings_;
  std::vector<File> lists_;
  std::vector<File> ownLists_;
  std::vector<Path> added_;
  std::vector<Path> folders_;
};

}  // namespace logchecker
