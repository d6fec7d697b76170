#include "tests/support/ui/FolderWatch.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/windows/WindowsApi.h"

namespace logchecker {

struct FolderWatch::Watch {
  // Asks for what comes next. Between two questions the system keeps the events.
  void Ask() {
    EXPECT_TRUE(ReadDirectoryChangesW(folder, events.data(), static_cast<DWORD>(events.size()),
                                      FALSE, FILE_NOTIFY_CHANGE_FILE_NAME, nullptr, &asked,
                                      nullptr));
  }

  HANDLE folder = INVALID_HANDLE_VALUE;
  OVERLAPPED asked{};
  alignas(DWORD) std::array<char, 16384> events{};
};

FolderWatch::FolderWatch(const QString& folder) : watch_(std::make_unique<Watch>()) {
  watch_->folder =
      CreateFileW(folder.toStdWString().c_str(), FILE_LIST_DIRECTORY,
                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                  FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OVERLAPPED, nullptr);
  watch_->asked.hEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  watch_->Ask();
}

FolderWatch::~FolderWatch() {
  CancelIo(watch_->folder);
  DWORD length = 0;
  GetOverlappedResult(watch_->folder, &watch_->asked, &length, TRUE);
  CloseHandle(watch_->folder);
  CloseHandle(watch_->asked.hEvent);
}

int FolderWatch::Arrivals(const QString& name) {
  constexpr DWORD kQuiet = 500;  // milliseconds after which nothing more is on its way
  int arrivals = 0;
  while (WaitForSingleObject(watch_->asked.hEvent, kQuiet) == WAIT_OBJECT_0) {
    DWORD length = 0;
    EXPECT_TRUE(GetOverlappedResult(watch_->folder, &watch_->asked, &length, FALSE));
    for (DWORD at = 0; at < length;) {
      const auto* event =
          reinterpret_cast<const FILE_NOTIFY_INFORMATION*>(watch_->events.data() + at);
      const bool arrived =
          event->Action == FILE_ACTION_ADDED || event->Action == FILE_ACTION_RENAMED_NEW_NAME;
      const auto characters = static_cast<qsizetype>(event->FileNameLength / sizeof(wchar_t));
      if (arrived && QString::fromWCharArray(event->FileName, characters) == name) ++arrivals;
      if (event->NextEntryOffset == 0) break;
      at += event->NextEntryOffset;
    }
    watch_->Ask();
  }
  return arrivals;
}

}  // namespace logchecker
