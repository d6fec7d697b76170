#include "common/ErrorState.h"

#include <utility>

namespace logchecker {

namespace {

struct NumberedText {
  int32_t number;
  const char* text;
};

constexpr NumberedText kTexts[] = {
    {kInvalidCall, "Invalid procedure call or argument"},
    {kOverflow, "Overflow"},
    {kOutOfMemory, "Out of memory"},
    {kSubscriptOutOfRange, "Subscript out of range"},
    {kDivisionByZero, "Division by zero"},
    {kBadFileNumber, "Bad file name or number"},
    {kFileNotFound, "File not found"},
    {kDeviceIoError, "Device I/O error"},
    {kDiskFull, "Disk full"},
    {kInputPastEnd, "Input past end of file"},
    {kTooManyFiles, "Too many files"},
    {kPermissionDenied, "Permission denied"},
    {kPathFileAccess, "Path/File access error"},
    {kPathNotFound, "Path not found"},
    {kPrinterError, "Printer error"},
    {kCancelled, "Cancel was selected"},
    {kInvalidGridRow, "Invalid row value"},
};

}  // namespace

ErrorState gErrorState;

void SetError(int32_t error) { gErrorState = {error, ErrorText(error)}; }

std::string ErrorText(int32_t number) {
  for (const NumberedText& row : kTexts) {
    if (row.number == number) return row.text;
  }
  return "";
}

RunTimeError::RunTimeError(int32_t number, std::string concerning)
    : number_(number), concerning_(std::move(concerning)) {
  text_ = "Run-time error " + std::to_string(number) + ": " + ErrorText(number);
  if (!concerning_.empty()) text_ += " (" + concerning_ + ")";
}

}  // namespace logchecker
