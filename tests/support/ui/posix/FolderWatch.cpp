#include "tests/support/ui/FolderWatch.h"

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <QFile>
#include <array>

namespace logchecker {

struct FolderWatch::Watch {
  int handle = inotify_init1(IN_NONBLOCK);
};

FolderWatch::FolderWatch(const QString& folder) : watch_(std::make_unique<Watch>()) {
  EXPECT_GE(inotify_add_watch(watch_->handle, QFile::encodeName(folder), IN_MOVED_TO | IN_CREATE),
            0);
}

FolderWatch::~FolderWatch() { close(watch_->handle); }

int FolderWatch::Arrivals(const QString& name) {
  alignas(inotify_event) std::array<char, 4096> events{};
  const ssize_t length = read(watch_->handle, events.data(), events.size());
  int arrivals = 0;
  for (ssize_t at = 0; at < length;) {
    const auto* event = reinterpret_cast<const inotify_event*>(events.data() + at);
    if (QFile::encodeName(name) == event->name) ++arrivals;
    at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
  }
  return arrivals;
}

}  // namespace logchecker
