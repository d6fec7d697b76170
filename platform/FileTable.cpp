#include "platform/FileTable.h"

#include "platform/ErrorNumbers.h"

namespace logchecker {

namespace {

constexpr size_t kReadAhead = size_t{64} * 1024;
constexpr size_t kWriteBehind = size_t{64} * 1024;

}  // namespace

int32_t FileTable::FreeFile(int16_t* number) {
  for (int16_t n = 1; n <= kLastFileNumber; ++n) {
    if (!slots_[n].held) {
      slots_[n].held = true;
      *number = n;
      return kNoError;
    }
  }
  *number = 0;
  return kTooManyFiles;
}

int32_t FileTable::Open(int16_t number, HostMode mode, const std::string& path,
                        int32_t recordLength) {
  if (number < 1 || number > kLastFileNumber) return kBadFileNumber;
  Slot& slot = slots_[number];
  if (!slot.held || slot.file) return kBadFileNumber;
  std::unique_ptr<HostFile> file;
  const int32_t error = OpenHost(mode, path, &file);
  if (error != kNoError) return error;
  slot.mode = mode;
  slot.file = std::move(file);
  slot.recordLength = recordLength;
  slot.buffer.clear();
  slot.count = 0;
  slot.used = 0;
  slot.aheadStart = 0;
  return kNoError;
}

int32_t FileTable::OpenForInput(int16_t number, const std::string& path) {
  return Open(number, HostMode::kInput, path, 0);
}

int32_t FileTable::OpenForAppend(int16_t number, const std::string& path) {
  return Open(number, HostMode::kAppend, path, 0);
}

int32_t FileTable::OpenForOutput(int16_t number, const std::string& path) {
  return Open(number, HostMode::kReplace, path, 0);
}

int32_t FileTable::OpenRandom(int16_t number, const std::string& path, int32_t recordLength) {
  if (recordLength < 1) return kInvalidCall;
  return Open(number, HostMode::kRandom, path, recordLength);
}

int32_t FileTable::ReopenIfReplaced(int16_t number, const std::string& path) {
  Slot* slot = OpenSlot(number, HostMode::kRandom);
  if (slot == nullptr) return kBadFileNumber;
  bool isThis = false;
  int32_t error = slot->file->IsAt(path, &isThis);
  if (error != kNoError || isThis) return error;
  std::unique_ptr<HostFile> other;
  error = OpenHost(HostMode::kRandomExisting, path, &other);
  // It may have gone just now.
  if (error != kFileNotFound && error != kPathNotFound) slot->file = std::move(other);
  return error;
}

int32_t FileTable::Finish(Slot& slot) {
  int32_t error = kNoError;
  if (slot.file) {
    if (slot.mode == HostMode::kAppend || slot.mode == HostMode::kReplace) error = Flush(slot);
    if (error == kNoError) error = slot.writeError;
    if (error == kNoError) error = slot.file->Commit();
  }
  slot = Slot();
  return error;
}

int32_t FileTable::Close(int16_t number) {
  if (number < 1 || number > kLastFileNumber) return kBadFileNumber;
  return Finish(slots_[number]);
}

int32_t FileTable::CloseAndKeepNumber(int16_t number) {
  if (number < 1 || number > kLastFileNumber || !slots_[number].held) return kBadFileNumber;
  const int32_t error = Finish(slots_[number]);
  slots_[number].held = true;
  return error;
}

void FileTable::Abandon(int16_t number) {
  if (number >= 1 && number <= kLastFileNumber) slots_[number] = Slot();
}

void FileTable::CloseAll() {
  for (int16_t n = 1; n <= kLastFileNumber; ++n) {
    if (slots_[n].held) Close(n);
  }
}

FileTable::Slot* FileTable::OpenSlot(int16_t number, HostMode mode) {
  if (number < 1 || number > kLastFileNumber) return nullptr;
  Slot& slot = slots_[number];
  return slot.file && slot.mode == mode ? &slot : nullptr;
}

int32_t FileTable::Seek(int16_t number, int64_t position) {
  Slot* slot = OpenSlot(number, HostMode::kInput);
  if (slot == nullptr) return kBadFileNumber;
  if (position < 1) return kInvalidCall;
  slot->count = 0;
  slot->used = 0;
  slot->aheadStart = position - 1;
  return kNoError;
}

int32_t FileTable::Position(int16_t number, int64_t* position) {
  const Slot* slot = OpenSlot(number, HostMode::kInput);
  if (slot == nullptr) return kBadFileNumber;
  *position = slot->aheadStart + static_cast<int64_t>(slot->used) + 1;
  return kNoError;
}

int32_t FileTable::Fill(Slot& slot) {
  if (slot.used < slot.count) return kNoError;
  if (!slot.ahead) slot.ahead = std::make_unique_for_overwrite<char[]>(kReadAhead);
  slot.aheadStart += static_cast<int64_t>(slot.count);
  slot.count = 0;
  slot.used = 0;
  size_t got = 0;
  const int32_t error = slot.file->ReadAt(slot.aheadStart, slot.ahead.get(), kReadAhead, &got);
  if (error == kNoError) slot.count = got;
  return error;
}

int32_t FileTable::EndOfFile(int16_t number, bool* atEnd) {
  Slot* slot = OpenSlot(number, HostMode::kInput);
  if (slot == nullptr) return kBadFileNumber;
  const int32_t error = Fill(*slot);
  *atEnd = slot->used >= slot->count;
  return error;
}

int32_t FileTable::Peek(int16_t number, std::string_view* bytes) {
  Slot* slot = OpenSlot(number, HostMode::kInput);
  if (slot == nullptr) return kBadFileNumber;
  const int32_t error = Fill(*slot);
  *bytes = std::string_view(slot->ahead.get(), slot->count).substr(slot->used);
  return error;
}

void FileTable::Skip(int16_t number, size_t count) {
  Slot* slot = OpenSlot(number, HostMode::kInput);
  if (slot == nullptr) return;
  const size_t left = slot->count - slot->used;
  slot->used += count < left ? count : left;
}

int32_t FileTable::Flush(Slot& slot) {
  if (slot.buffer.empty()) return kNoError;
  const int32_t error = slot.file->Append(slot.buffer.data(), slot.buffer.size());
  slot.buffer.clear();
  if (slot.writeError == kNoError) slot.writeError = error;
  return error;
}

int32_t FileTable::Write(int16_t number, std::string_view bytes) {
  Slot* slot = OpenSlot(number, HostMode::kReplace);
  if (slot == nullptr) slot = OpenSlot(number, HostMode::kAppend);
  if (slot == nullptr) return kBadFileNumber;
  slot->buffer.append(bytes);
  return slot->buffer.size() >= kWriteBehind ? Flush(*slot) : kNoError;
}

int32_t FileTable::GetRecord(int16_t number, int64_t recordNumber, void* record) {
  const Slot* slot = OpenSlot(number, HostMode::kRandom);
  if (slot == nullptr) return kBadFileNumber;
  if (recordNumber < 1) return kInvalidCall;
  return slot->file->ReadAt((recordNumber - 1) * slot->recordLength, record,
                            static_cast<size_t>(slot->recordLength), nullptr);
}

int32_t FileTable::PutRecord(int16_t number, int64_t recordNumber, const void* record) {
  const Slot* slot = OpenSlot(number, HostMode::kRandom);
  if (slot == nullptr) return kBadFileNumber;
  if (recordNumber < 1) return kInvalidCall;
  return slot->file->WriteAt((recordNumber - 1) * slot->recordLength, record,
                             static_cast<size_t>(slot->recordLength));
}

int32_t FileTable::LengthOfOpenFile(int16_t number, int64_t* length) {
  if (number < 1 || number > kLastFileNumber) return kBadFileNumber;
  const Slot& slot = slots_[number];
  return slot.file ? slot.file->Length(length) : kBadFileNumber;
}

}  // namespace logchecker
