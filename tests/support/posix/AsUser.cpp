#include "tests/support/posix/AsUser.h"

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>

namespace logchecker {

namespace {

constexpr int kNotRun = 100;

bool Become(unsigned user) {
  if (geteuid() != 0) return true;
  const gid_t group = kStudio;
  return setgroups(1, &group) == 0 && setresgid(user, user, user) == 0 &&
         setresuid(user, user, user) == 0;
}

// Nothing may get out of the child into the tests behind this one.
int Finish(const std::function<int()>& work) {
  try {
    return work();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "in a child: %s\n", error.what());
    return kNotRun;
  }
}

}  // namespace

int InAChild(const std::function<int()>& work) {
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error("a test's process can't be started");
  if (process == 0) _exit(Finish(work));
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : kNotRun;
}

int AsUser(unsigned user, const std::function<int()>& work) {
  return InAChild([&] { return Become(user) ? work() : kNotRun; });
}

void GiveTo(unsigned user, const char* path) {
  if (geteuid() == 0 && chown(path, user, kStudio) != 0) {
    throw std::runtime_error("a test's file can't be given away");
  }
}

}  // namespace logchecker
