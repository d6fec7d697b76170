#include "platform/StandardStreams.h"
#include "platform/StationText.h"
#include "platform/windows/WindowsApi.h"

namespace logchecker {

namespace {

bool WriteWhole(DWORD stream, std::string_view bytes) {
  constexpr size_t kMostAtOnce = size_t{1} << 20U;
  const HANDLE handle = GetStdHandle(stream);
  while (!bytes.empty()) {
    const size_t size = bytes.size() < kMostAtOnce ? bytes.size() : kMostAtOnce;
    DWORD written = 0;
    if (WriteFile(handle, bytes.data(), static_cast<DWORD>(size), &written, nullptr) == 0) {
      return false;
    }
    bytes.remove_prefix(written);
  }
  return true;
}

bool IsTerminal(DWORD stream) {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(stream), &mode) != 0;
}

}  // namespace

// Standard input stays away: two programs would share what is typed.
void JoinConsole() {
  const auto given = [](DWORD stream) {
    const HANDLE handle = GetStdHandle(stream);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
  };
  const bool output = given(STD_OUTPUT_HANDLE);
  const bool error = given(STD_ERROR_HANDLE);
  if ((output && error) || !AttachConsole(ATTACH_PARENT_PROCESS)) return;
  for (const DWORD stream : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    if (stream == STD_OUTPUT_HANDLE ? output : error) continue;
    const HANDLE console =
        CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (console != INVALID_HANDLE_VALUE) SetStdHandle(stream, console);
  }
}

// A number that stands for nothing can become that of the next file which is opened, and what is
// meant for the stream would go there. No stream at all fails for good.
void HoldStandardStreams() {
  for (const DWORD stream : {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
    SetLastError(NO_ERROR);
    const bool known = GetFileType(GetStdHandle(stream)) != FILE_TYPE_UNKNOWN;
    if (!known && GetLastError() != NO_ERROR) SetStdHandle(stream, nullptr);
  }
}

bool WriteStandardOutput(std::string_view bytes) { return WriteWhole(STD_OUTPUT_HANDLE, bytes); }

bool StandardOutputIsTerminal() { return IsTerminal(STD_OUTPUT_HANDLE); }

void WriteStandardError(std::string_view stationText) {
  WriteWhole(STD_ERROR_HANDLE, WithoutControls(stationText));
}

void OverwriteTerminalLine(std::string_view stationText) {
  WriteWhole(STD_ERROR_HANDLE, "\r" + WithoutControls(stationText) + "\r");
}

bool StandardErrorIsTerminal() { return IsTerminal(STD_ERROR_HANDLE); }

}  // namespace logchecker
