// A disk that has room for so many bytes of a file and no more, for any user.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace logchecker {

class FullDisk {
 public:
  explicit FullDisk(rlim_t room) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &limit_);
    const rlimit full{room, limit_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &limit_);
    std::signal(SIGXFSZ, before_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*before_)(int);
  rlimit limit_{};
};

}  // namespace logchecker
