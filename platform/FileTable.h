// The table of file numbers, with buffering, that both systems share. A system adds how a file is
// opened (OpenHost) and what is asked of a path.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace logchecker {

// kRandom makes a missing file, kRandomExisting does not.
enum class HostMode { kInput, kAppend, kReplace, kRandom, kRandomExisting };

// One open file of the system. Closing it without Commit drops a replacement. Each call returns an
// error number.
class HostFile {
 public:
  virtual ~HostFile() = default;

  // Reads up to `size` bytes from `offset` (from 0); *got is less only at the end of the file, and
  // nullptr serves where that does not matter.
  virtual int32_t ReadAt(int64_t offset, void* data, size_t size, size_t* got) = 0;
  virtual int32_t WriteAt(int64_t offset, const void* data, size_t size) = 0;
  // Adds behind what is there. For kAppend and kReplace.
  virtual int32_t Append(const void* data, size_t size) = 0;
  virtual int32_t Length(int64_t* length) = 0;
  // Whether a path leads to this very file.
  virtual int32_t IsAt(const std::string& path, bool* isThis) = 0;
  // Ends the file: a replacement takes the place of the old file.
  virtual int32_t Commit() = 0;
};

class FileTable : public Files {
 public:
  int32_t FreeFile(int16_t* number) override;
  int32_t OpenForInput(int16_t number, const std::string& path) override;
  int32_t OpenForAppend(int16_t number, const std::string& path) override;
  int32_t OpenForOutput(int16_t number, const std::string& path) override;
  int32_t OpenRandom(int16_t number, const std::string& path, int32_t recordLength) override;
  int32_t ReopenIfReplaced(int16_t number, const std::string& path) override;
  int32_t Close(int16_t number) override;
  int32_t CloseAndKeepNumber(int16_t number) override;
  void Abandon(int16_t number) override;
  void CloseAll() override;
  int32_t Seek(int16_t number, int64_t position) override;
  int32_t Position(int16_t number, int64_t* position) override;
  int32_t EndOfFile(int16_t number, bool* atEnd) override;
  int32_t Peek(int16_t number, std::string_view* bytes) override;
  void Skip(int16_t number, size_t count) override;
  int32_t Write(int16_t number, std::string_view bytes) override;
  int32_t GetRecord(int16_t number, int64_t recordNumber, void* record) override;
  int32_t PutRecord(int16_t number, int64_t recordNumber, const void* record) override;
  int32_t LengthOfOpenFile(int16_t number, int64_t* length) override;

 protected:
  virtual int32_t OpenHost(HostMode mode, const std::string& path,
                           std::unique_ptr<HostFile>* file) = 0;

 private:
  struct Slot {
    bool held = false;
    HostMode mode = HostMode::kInput;
    std::unique_ptr<HostFile> file;
    int32_t recordLength = 0;
    // Output: the bytes that wait to be written.
    std::string buffer;
    // Input: the bytes read ahead, their count, how many of them are used up, and where they begin
    // in the file.
    std::unique_ptr<char[]> ahead;
    size_t count = 0;
    size_t used = 0;
    int64_t aheadStart = 0;
    // The first failure of a write; a replacement that has one is never committed.
    int32_t writeError = 0;
  };

  int32_t Open(int16_t number, HostMode mode, const std::string& path, int32_t recordLength);
  Slot* OpenSlot(int16_t number, HostMode mode);
  static int32_t Fill(Slot& slot);
  static int32_t Flush(Slot& slot);
  // Writes what waits and ends the file; the slot is empty afterwards.
  static int32_t Finish(Slot& slot);

  std::array<Slot, kLastFileNumber + 1> slots_;
};

}  // namespace logchecker
