#include "headless/ReadRecorder.h"

#include <array>

#include "common/UnreadableSettings.h"

namespace logchecker {

namespace {

// A file that is not there is an answer like others.
bool IsRefusal(int32_t error) {
  return error != kNoError && error != kFileNotFound && error != kPathNotFound;
}

// One question about a path: noted before it is asked, confirmed behind the answer.
class Question {
 public:
  Question(WatchedFiles& watched, const std::string& path) : watched_(watched), path_(path) {
    watched_.Note(path_);
  }
  ~Question() { watched_.Confirm(path_); }
  Question(const Question&) = delete;
  Question& operator=(const Question&) = delete;

  int32_t Answer(int32_t error) {
    if (IsRefusal(error)) watched_.NoteRefused(path_);
    return error;
  }

 private:
  WatchedFiles& watched_;
  const std::string& path_;
};

// What is read by a number is noted when the number is opened, but for what fails later.
class RecordedFiles : public Files {
 public:
  RecordedFiles(Files& real, WatchedFiles& watched) : real_(real), watched_(watched) {}

  int32_t FreeFile(int16_t* number) override { return real_.FreeFile(number); }
  int32_t OpenForInput(int16_t number, const std::string& path) override {
    Question question(watched_, path);
    PathOf(number) = path;
    return question.Answer(real_.OpenForInput(number, path));
  }
  int32_t OpenRandom(int16_t number, const std::string& path, int32_t recordLength) override {
    Question question(watched_, path);
    PathOf(number) = path;
    return question.Answer(real_.OpenRandom(number, path, recordLength));
  }
  int32_t ReopenIfReplaced(int16_t number, const std::string& path) override {
    Question question(watched_, path);
    return question.Answer(real_.ReopenIfReplaced(number, path));
  }
  int32_t OpenForAppend(int16_t number, const std::string& path) override {
    PathOf(number) = path;
    return real_.OpenForAppend(number, path);
  }
  int32_t OpenForOutput(int16_t number, const std::string& path) override {
    PathOf(number) = path;
    return real_.OpenForOutput(number, path);
  }
  int32_t Close(int16_t number) override { return real_.Close(number); }
  int32_t CloseAndKeepNumber(int16_t number) override { return real_.CloseAndKeepNumber(number); }
  void Abandon(int16_t number) override { real_.Abandon(number); }
  void CloseAll() override { real_.CloseAll(); }
  int32_t Seek(int16_t number, int64_t position) override {
    return Read(number, real_.Seek(number, position));
  }
  int32_t Position(int16_t number, int64_t* position) override {
    return real_.Position(number, position);
  }
  int32_t EndOfFile(int16_t number, bool* atEnd) override {
    return Read(number, real_.EndOfFile(number, atEnd));
  }
  int32_t Peek(int16_t number, std::string_view* bytes) override {
    return Read(number, real_.Peek(number, bytes));
  }
  void Skip(int16_t number, size_t count) override { real_.Skip(number, count); }
  int32_t Write(int16_t number, std::string_view bytes) override {
    return Written(number, real_.Write(number, bytes));
  }
  int32_t GetRecord(int16_t number, int64_t recordNumber, void* record) override {
    return Read(number, real_.GetRecord(number, recordNumber, record));
  }
  int32_t PutRecord(int16_t number, int64_t recordNumber, const void* record) override {
    return Written(number, real_.PutRecord(number, recordNumber, record));
  }
  int32_t LengthOfOpenFile(int16_t number, int64_t* length) override {
    return Read(number, real_.LengthOfOpenFile(number, length));
  }
  int32_t FileLength(const std::string& path, int64_t* length) override {
    Question question(watched_, path);
    return question.Answer(real_.FileLength(path, length));
  }
  int32_t FileDateTime(const std::string& path, double* dateTime) override {
    Question question(watched_, path);
    return question.Answer(real_.FileDateTime(path, dateTime));
  }
  FileStamp StampOf(const std::string& path) override { return real_.StampOf(path); }
  int32_t ProbeFile(const std::string& path) override {
    Question question(watched_, path);
    return question.Answer(real_.ProbeFile(path));
  }

 private:
  std::string& PathOf(int16_t number) { return paths_.at(static_cast<size_t>(number)); }

  // A number that nobody holds was never opened, and says nothing about a file.
  int32_t Read(int16_t number, int32_t error) {
    if (IsRefusal(error) && error != kBadFileNumber) watched_.NoteRefused(PathOf(number));
    return error;
  }
  int32_t Written(int16_t number, int32_t error) {
    if (error != kBadFileNumber) watched_.NoteWritten(PathOf(number));
    return error;
  }

  Files& real_;
  WatchedFiles& watched_;
  std::array<std::string, Files::kLastFileNumber + 1> paths_;
};

class RecordedDirectories : public Directories {
 public:
  RecordedDirectories(Directories& real, WatchedFiles& watched) : real_(real), watched_(watched) {}

  int32_t FirstName(const std::string& path, bool withDirectories, std::string* name) override {
    Question question(watched_, path);
    return question.Answer(real_.FirstName(path, withDirectories, name));
  }
  int32_t MakeDirectory(const std::string& path) override {
    const int32_t error = real_.MakeDirectory(path);
    watched_.NoteWritten(path);
    return error;
  }
  int32_t ChangeDrive(const std::string& path) override { return real_.ChangeDrive(path); }
  int32_t ChangeDirectory(const std::string& path) override { return real_.ChangeDirectory(path); }
  int32_t CurrentDirectory(std::string* path) override { return real_.CurrentDirectory(path); }
  int32_t RootLength(const std::string& path) override { return real_.RootLength(path); }
  bool FindLookalike(const std::string& path, Lookalike* lookalike) override {
    const Question question(watched_, path);
    const bool found = real_.FindLookalike(path, lookalike);
    watched_.NoteLookalike(path, found ? *lookalike : Lookalike());
    return found;
  }

 private:
  Directories& real_;
  WatchedFiles& watched_;
};

class RecordedProfiles : public ProfileFiles {
 public:
  RecordedProfiles(ProfileFiles& real, WatchedFiles& watched) : real_(real), watched_(watched) {}

  ProfileState StateOf(const std::string& file) override {
    const std::string path = PathOfSettings(file);
    Question question(watched_, path);
    const ProfileState state = real_.StateOf(file);
    question.Answer(state == ProfileState::kRefused ? kPermissionDenied : kNoError);
    return state;
  }
  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& defaultValue, int32_t bufferSize,
                        const std::string& file) override {
    const std::string path = PathOfSettings(file);
    const Question question(watched_, path);
    return real_.GetString(section, key, defaultValue, bufferSize, file);
  }
  int32_t GetInt(const std::string& section, const std::string& key, int32_t defaultValue,
                 const std::string& file) override {
    const std::string path = PathOfSettings(file);
    const Question question(watched_, path);
    return real_.GetInt(section, key, defaultValue, file);
  }
  int32_t WriteString(const std::string& section, const std::string& key, const std::string& value,
                      const std::string& file) override {
    return Written(file, real_.WriteString(section, key, value, file));
  }
  int32_t DeleteKey(const std::string& section, const std::string& key,
                    const std::string& file) override {
    return Written(file, real_.DeleteKey(section, key, file));
  }
  int32_t DeleteSection(const std::string& section, const std::string& file) override {
    return Written(file, real_.DeleteSection(section, file));
  }

 private:
  int32_t Written(const std::string& file, int32_t error) {
    watched_.NoteWritten(PathOfSettings(file));
    return error;
  }

  ProfileFiles& real_;
  WatchedFiles& watched_;
};

}  // namespace

struct ReadRecorder::Parts {
  Parts(Platform& real, WatchedFiles& watched)
      : files(real.files, watched),
        directories(real.directories, watched),
        profiles(real.profiles, watched),
        platform{files,      directories,      real.shell,  profiles,      real.registry,
                 real.clock, real.waveDevices, real.system, real.processes} {}

  RecordedFiles files;
  RecordedDirectories directories;
  RecordedProfiles profiles;
  Platform platform;
};

ReadRecorder::ReadRecorder(WatchedFiles& watched)
    : watched_(watched),
      parts_(std::make_unique<Parts>(Os(), watched)),
      before_(UsePlatform(parts_->platform)) {
  watched_.BeginCheck();
}

ReadRecorder::~ReadRecorder() {
  UsePlatform(before_);
  watched_.EndCheck();
}

}  // namespace logchecker
