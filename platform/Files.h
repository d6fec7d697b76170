// Files by number: sequential reading, appending, whole replacement, and random access by records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/FileStamp.h"

namespace logchecker {

// A file number runs from 1 to kLastFileNumber. FreeFile hands a number out and keeps it for the
// caller until Close, whether or not an open succeeds in between, so that a number that is held
// without a file never comes to mean somebody else's file. A number that nobody holds can't be
// opened. Paths are station paths (see
// StationText.h). Each call returns an error number, kNoError for success.
class Files {
 public:
  static constexpr int16_t kLastFileNumber = 511;

  virtual ~Files() = default;

  // Gives a number that nobody holds; kTooManyFiles (with *number 0) when all are held.
  virtual int32_t FreeFile(int16_t* number) = 0;

  // Each opens `path` under a number from FreeFile, shared with other programs.
  virtual int32_t OpenForInput(int16_t number, const std::string& path) = 0;
  virtual int32_t OpenForAppend(int16_t number, const std::string& path) = 0;
  // What is written becomes the file `path` when the number is closed: until then, and when a write
  // or the close fails, the file that was there stays as it was. A target that is no regular file
  // (a device, a pipe) is written in place.
  virtual int32_t OpenForOutput(int16_t number, const std::string& path) = 0;
  // For reading and writing, or for reading alone where that is refused. Makes a missing file.
  virtual int32_t OpenRandom(int16_t number, const std::string& path, int32_t recordLength) = 0;

  // Where `path` leads to another file by now than the one that is open for random access under
  // `number`, that one is opened in its place, and a failure leaves the number without a file. A
  // file that is missing is not made: it is an error that leaves the old one open.
  virtual int32_t ReopenIfReplaced(int16_t number, const std::string& path) = 0;

  // Closes and gives the number back. A number without an open file is no error. For an output file
  // an error means that the old file still stands.
  virtual int32_t Close(int16_t number) = 0;
  // The same, but the number stays the caller's, for a file that is opened again under it.
  virtual int32_t CloseAndKeepNumber(int16_t number) = 0;
  // Gives the number back; what an output file was given is dropped.
  virtual void Abandon(int16_t number) = 0;
  // Closes every open file and gives every number back.
  virtual void CloseAll() = 0;

  // Sequential reading. Positions count bytes from 1.
  virtual int32_t Seek(int16_t number, int64_t position) = 0;
  virtual int32_t Position(int16_t number, int64_t* position) = 0;
  virtual int32_t EndOfFile(int16_t number, bool* atEnd) = 0;
  // The bytes that can be had without another read: at least one unless the file is at its end. The
  // view holds until the next call for this number but Skip, which passes over bytes that it shows.
  virtual int32_t Peek(int16_t number, std::string_view* bytes) = 0;
  virtual void Skip(int16_t number, size_t count) = 0;

  // Adds to a file opened for appending or for output.
  virtual int32_t Write(int16_t number, std::string_view bytes) = 0;

  // Random access. Records count from 1. Bytes of a record that lie behind the end of the file stay
  // as they are in `record`, without an error.
  virtual int32_t GetRecord(int16_t number, int64_t recordNumber, void* record) = 0;
  virtual int32_t PutRecord(int16_t number, int64_t recordNumber, const void* record) = 0;
  // Length in bytes of an open file.
  virtual int32_t LengthOfOpenFile(int16_t number, int64_t* length) = 0;

  // Length in bytes of the regular file `path`.
  virtual int32_t FileLength(const std::string& path, int64_t* length) = 0;
  // Time of the last change, local, as a date number (see Clock.h).
  virtual int32_t FileDateTime(const std::string& path, double* dateTime) = 0;
  // What `path` leads to by now, links followed.
  virtual FileStamp StampOf(const std::string& path) = 0;
  // Opens an existing file with no access rights asked and closes it at once. Works for a file that
  // another program holds open.
  virtual int32_t ProbeFile(const std::string& path) = 0;
};

}  // namespace logchecker
