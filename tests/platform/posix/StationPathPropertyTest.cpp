// Station paths, whose folders are kept from look to look, against a plain walk from part to part,
// in a folder that changes between the looks.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <stdio.h>
#include <sys/stat.h>
#include <time.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "platform/StationText.h"
#include "platform/posix/FolderNames.h"
#include "platform/posix/StationPath.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

namespace fs = std::filesystem;

using Parts = std::vector<std::string>;

// Each part exactly if it exists so, else the first in byte order that differs in case alone, and
// the rest as it is written where one is not there.
std::string WalkPlainly(const fs::path& base, const Parts& parts) {
  fs::path result = base;
  for (const std::string& part : parts) {
    std::error_code error;
    std::string found;
    if (fs::exists(fs::symlink_status(result / part, error))) {
      found = part;
    } else {
      for (const fs::directory_entry& entry : fs::directory_iterator(result, error)) {
        const std::string name = entry.path().filename();
        if (ToUpper(name) == ToUpper(part) && (found.empty() || name < found)) found = name;
      }
    }
    result /= found.empty() ? part : found;
  }
  return result;
}

// Quicker than a generator of each name, so that many rounds come within one tick.
class Dice {
 public:
  Dice() : random_(*rc::gen::arbitrary<uint32_t>()) {}

  // From 0 to below `count`.
  size_t Throw(size_t count) { return random_() % count; }

  Parts AnyParts(size_t most) {
    static const Parts kNames = {"x", "X", "yz", "yZ", "Yz", "YZ"};
    Parts parts(1 + Throw(most));
    for (std::string& part : parts) part = kNames[Throw(kNames.size())];
    return parts;
  }

  fs::path AnyPath(const fs::path& base) {
    fs::path path = base;
    for (const std::string& part : AnyParts(3)) path /= part;
    return path;
  }

 private:
  std::mt19937 random_;
};

void RemoveWhatIsIn(const fs::path& folder) {
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
    fs::remove_all(entry.path(), ignored);
  }
}

// One change by somebody else. Many fail, since what they need is not there.
void ChangeSomething(const fs::path& base, Dice& dice) {
  static int changes = 0;
  std::error_code ignored;
  const fs::path path = dice.AnyPath(base);
  const fs::path other = dice.AnyPath(base);
  switch (dice.Throw(12)) {
    case 0:
      fs::remove_all(path, ignored);
      break;
    case 1:
      RemoveWhatIsIn(path);
      break;
    case 2:
      fs::create_symlink(other, path, ignored);
      break;
    case 3:
      fs::create_symlink(other.filename(), path, ignored);
      break;
    case 4:
      renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE);
      break;
    case 5:
    case 6:
      fs::rename(path, other, ignored);
      break;
    case 7:
      fs::remove_all(path, ignored);
      fs::create_directories(path, ignored);
      break;
    case 8:
    case 9:
      std::ofstream(path) << ++changes;
      break;
    default:
      fs::create_directories(path, ignored);
      break;
  }
}

std::string FirstRecord(const std::string& path) {
  Files& files = Os().files;
  std::string record(12, ' ');
  int16_t number = 0;
  RC_ASSERT(files.FreeFile(&number) == kNoError);
  RC_ASSERT(files.OpenRandom(number, path, static_cast<int32_t>(record.size())) == kNoError);
  RC_ASSERT(files.GetRecord(number, 1, record.data()) == kNoError);
  RC_ASSERT(files.Close(number) == kNoError);
  return record.substr(0, record.find(' '));
}

// What the program says of a path is what the walk finds at this moment.
void LookAt(const fs::path& base, const Parts& parts, Dice& dice) {
  std::string station = base;
  for (const std::string& part : parts) station += (dice.Throw(2) == 0 ? '\\' : '/') + part;
  const std::string walked = WalkPlainly(base, parts);
  RC_ASSERT(HostPath(station) == walked);
  struct stat facts {};
  const bool isFile = stat(walked.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
  int64_t length = -1;
  RC_ASSERT((Os().files.FileLength(station, &length) == kNoError) == isFile);
  if (!isFile) return;
  std::string text;
  std::ifstream(walked) >> text;
  RC_ASSERT(length == facts.st_size);
  RC_ASSERT(FirstRecord(station) == text);
}

// Stamps of files move at least with this clock.
timespec Tick() {
  timespec tick{};
  clock_gettime(CLOCK_REALTIME_COARSE, &tick);
  return tick;
}

void WaitForTheNextTick() {
  const timespec begin = Tick();
  const timespec pause = {0, 200'000};
  while (begin.tv_sec == Tick().tv_sec && begin.tv_nsec == Tick().tv_nsec) {
    nanosleep(&pause, nullptr);
  }
}

// Each path is looked at twice, so that the second look can go by what the first has left, and
// again after changes.
void ChangeAndLook(const fs::path& base, size_t rounds, bool waits) {
  Dice dice;
  std::vector<Parts> paths(8);
  for (Parts& parts : paths) parts = dice.AnyParts(4);
  for (size_t round = 0; round < rounds; ++round) {
    if (waits) WaitForTheNextTick();
    for (size_t left = 1 + dice.Throw(3); left > 0; --left) ChangeSomething(base, dice);
    for (const Parts& parts : paths) LookAt(base, parts, dice);
    for (const Parts& parts : paths) LookAt(base, parts, dice);
  }
}

class OtherFolderCalls {
 public:
  explicit OtherFolderCalls(FolderCalls calls) { gFolderCalls = calls; }
  ~OtherFolderCalls() { gFolderCalls = FolderCalls(); }
  OtherFolderCalls(const OtherFolderCalls&) = delete;
  OtherFolderCalls& operator=(const OtherFolderCalls&) = delete;
};

// As on a share whose stamps are of two seconds: many changes come under the same stamp.
int CoarseStat(const char* path, struct stat* facts) {
  if (stat(path, facts) != 0) return -1;
  facts->st_mtim = {facts->st_mtim.tv_sec / 2 * 2, 0};
  facts->st_ctim = {facts->st_ctim.tv_sec / 2 * 2, 0};
  return 0;
}

RC_GTEST_PROP(StationPathProperty, AChangeWithinTheTickOfTheLookBeforeIsSeen, ()) {
  const TempFolder folder;
  const OtherFolderCalls coarse({CoarseStat, time});
  ChangeAndLook(folder.Path(), 15, false);
}

// What is kept of a folder from a tick behind its last change on.
RC_GTEST_PROP(StationPathProperty, AChangeOfAFolderThatWasJustWrittenIsSeen, ()) {
  const TempFolder folder;
  ChangeAndLook(folder.Path(), 15, *rc::gen::arbitrary<bool>());
}

// Each folder counts as one that has not changed for long, and is kept.
time_t InAnHour(time_t*) { return time(nullptr) + 3600; }

RC_GTEST_PROP(StationPathProperty, WhatIsKeptIsWhatAPlainWalkFindsAfterAnyChange, ()) {
  const TempFolder folder;
  const OtherFolderCalls later({stat, InAnHour});
  ChangeAndLook(folder.Path(), 8, true);
}

}  // namespace
}  // namespace logchecker
