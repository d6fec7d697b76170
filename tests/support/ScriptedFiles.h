// The scripted platform's files and directories.
#pragma once

#include "platform/Platform.h"
#include "tests/support/CallScript.h"

namespace logchecker {

class ScriptedFiles : public Files {
 public:
  ScriptedFiles(Files& real, CallScript& script) : real_(real), script_(script) {}

  int32_t FreeFile(int16_t* number) override {
    const int32_t error = script_.Enter("Files.FreeFile");
    return error != 0 ? error : real_.FreeFile(number);
  }
  int32_t OpenForInput(int16_t number, const std::string& path) override {
    const int32_t error = script_.Enter("Files.OpenForInput");
    return error != 0 ? error : real_.OpenForInput(number, path);
  }
  int32_t OpenForAppend(int16_t number, const std::string& path) override {
    const int32_t error = script_.Enter("Files.OpenForAppend");
    return error != 0 ? error : real_.OpenForAppend(number, path);
  }
  int32_t OpenForOutput(int16_t number, const std::string& path) override {
    const int32_t error = script_.Enter("Files.OpenForOutput");
    return error != 0 ? error : real_.OpenForOutput(number, path);
  }
  int32_t OpenRandom(int16_t number, const std::string& path, int32_t recordLength) override {
    const int32_t error = script_.Enter("Files.OpenRandom");
    return error != 0 ? error : real_.OpenRandom(number, path, recordLength);
  }
  int32_t ReopenIfReplaced(int16_t number, const std::string& path) override {
    const int32_t error = script_.Enter("Files.ReopenIfReplaced");
    return error != 0 ? error : real_.ReopenIfReplaced(number, path);
  }
  // A close that fails has let go of the number all the same, and of what was written.
  int32_t Close(int16_t number) override {
    const int32_t error = script_.Enter("Files.Close");
    if (error == 0) return real_.Close(number);
    real_.Abandon(number);
    return error;
  }
  int32_t CloseAndKeepNumber(int16_t number) override {
    const int32_t error = script_.Enter("Files.Close");
    const int32_t closing = real_.CloseAndKeepNumber(number);
    return error != 0 ? error : closing;
  }
  void Abandon(int16_t number) override { real_.Abandon(number); }
  void CloseAll() override { real_.CloseAll(); }
  int32_t Seek(int16_t number, int64_t position) override {
    const int32_t error = script_.Enter("Files.Seek");
    return error != 0 ? error : real_.Seek(number, position);
  }
  int32_t Position(int16_t number, int64_t* position) override {
    const int32_t error = script_.Enter("Files.Position");
    return error != 0 ? error : real_.Position(number, position);
  }
  int32_t EndOfFile(int16_t number, bool* atEnd) override {
    const int32_t error = script_.Enter("Files.EndOfFile");
    return error != 0 ? error : real_.EndOfFile(number, atEnd);
  }
  int32_t Peek(int16_t number, std::string_view* bytes) override {
    const int32_t error = script_.Enter("Files.Peek");
    return error != 0 ? error : real_.Peek(number, bytes);
  }
  void Skip(int16_t number, size_t count) override { real_.Skip(number, count); }
  int32_t Write(int16_t number, std::string_view bytes) override {
    const int32_t error = script_.Enter("Files.Write");
    return error != 0 ? error : real_.Write(number, bytes);
  }
  int32_t GetRecord(int16_t number, int64_t recordNumber, void* record) override {
    const int32_t error = script_.Enter("Files.GetRecord");
    return error != 0 ? error : real_.GetRecord(number, recordNumber, record);
  }
  int32_t PutRecord(int16_t number, int64_t recordNumber, const void* record) override {
    const int32_t error = script_.Enter("Files.PutRecord");
    return error != 0 ? error : real_.PutRecord(number, recordNumber, record);
  }
  int32_t LengthOfOpenFile(int16_t number, int64_t* length) override {
    const int32_t error = script_.Enter("Files.LengthOfOpenFile");
    return error != 0 ? error : real_.LengthOfOpenFile(number, length);
  }
  int32_t FileLength(const std::string& path, int64_t* length) override {
    const int32_t error = script_.Enter("Files.FileLength");
    return error != 0 ? error : real_.FileLength(path, length);
  }
  int32_t FileDateTime(const std::string& path, double* dateTime) override {
    const int32_t error = script_.Enter("Files.FileDateTime");
    return error != 0 ? error : real_.FileDateTime(path, dateTime);
  }
  FileStamp StampOf(const std::string& path) override {
    FileStamp stamp;
    stamp.error = script_.Enter("Files.StampOf");
    return stamp.error != 0 ? stamp : real_.StampOf(path);
  }
  int32_t ProbeFile(const std::string& path) override {
    const int32_t error = script_.Enter("Files.ProbeFile");
    return error != 0 ? error : real_.ProbeFile(path);
  }

 private:
  Files& real_;
  CallScript& script_;
};

class ScriptedDirectories : public Directories {
 public:
  ScriptedDirectories(Directories& real, CallScript& script) : real_(real), script_(script) {}

  int32_t FirstName(const std::string& path, bool withDirectories, std::string* name) override {
    const int32_t error = script_.Enter("Directories.FirstName");
    return error != 0 ? error : real_.FirstName(path, withDirectories, name);
  }
  int32_t MakeDirectory(const std::string& path) override {
    const int32_t error = script_.Enter("Directories.MakeDirectory");
    return error != 0 ? error : real_.MakeDirectory(path);
  }
  int32_t ChangeDrive(const std::string& path) override {
    const int32_t error = script_.Enter("Directories.ChangeDrive");
    return error != 0 ? error : real_.ChangeDrive(path);
  }
  int32_t ChangeDirectory(const std::string& path) override {
    const int32_t error = script_.Enter("Directories.ChangeDirectory");
    return error != 0 ? error : real_.ChangeDirectory(path);
  }
  int32_t CurrentDirectory(std::string* path) override {
    const int32_t error = script_.Enter("Directories.CurrentDirectory");
    return error != 0 ? error : real_.CurrentDirectory(path);
  }
  int32_t RootLength(const std::string& path) override { return real_.RootLength(path); }
  bool FindLookalike(const std::string& path, Lookalike* lookalike) override {
    return real_.FindLookalike(path, lookalike);
  }

 private:
  Directories& real_;
  CallScript& script_;
};

}  // namespace logchecker
