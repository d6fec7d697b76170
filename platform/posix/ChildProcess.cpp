#include "platform/posix/ChildProcess.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace logchecker {

namespace {

// No signal comes while it lives, so that none finds a child that nobody knows of yet.
class NoSignals {
 public:
  NoSignals() {
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_SETMASK, &all, &before_);
  }
  ~NoSignals() { Restore(); }
  NoSignals(const NoSignals&) = delete;
  NoSignals& operator=(const NoSignals&) = delete;
  void Restore() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_;
};

struct Pipe {
  PipeEnd reading;
  PipeEnd writing;

  bool Open() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    reading.Take(ends[0]);
    writing.Take(ends[1]);
    return true;
  }
};

// A file without a name, so that nobody has to feed a pipe. An errno code.
int OpenInput(std::string_view bytes, PipeEnd* input) {
  if (bytes.empty()) {
    input->Take(open("/dev/null", O_RDONLY | O_CLOEXEC));
    return input->IsOpen() ? 0 : errno;
  }
  std::error_code failure;
  std::string name = std::filesystem::temp_directory_path(failure).string() + "/logcheck-XXXXXX";
  if (failure) return failure.value();
  input->Take(mkostemp(name.data(), O_CLOEXEC));
  if (!input->IsOpen()) return errno;
  unlink(name.c_str());
  while (!bytes.empty()) {
    const ssize_t count = write(input->get(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return errno;
    bytes.remove_prefix(static_cast<size_t>(count));
  }
  return lseek(input->get(), 0, SEEK_SET) == 0 ? 0 : errno;
}

// In the child, with what may be called there. Ends it with an errno code in `failure`.
[[noreturn]] void Become(pid_t parent, const char* program, char* const* words, int input,
                         int output, int errors, int failure, NoSignals& signals) {
  constexpr unsigned kFirstOther = STDERR_FILENO + 1;
  setpgid(0, 0);
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  const bool ready = getppid() == parent && dup2(input, STDIN_FILENO) >= 0 &&
                     dup2(output, STDOUT_FILENO) >= 0 && dup2(errors, STDERR_FILENO) >= 0;
  if (ready) {
    // Files that this program was itself started with are not the child's to hold.
    close_range(kFirstOther, ~0U, CLOSE_RANGE_CLOEXEC);
    signals.Restore();
    execv(program, words);
  }
  const int code = errno;
  const ssize_t written = write(failure, &code, sizeof code);
  _exit(written == sizeof code ? 1 : 2);
}

// What `Become` has to say; 0 when it became the program.
int FailureOf(const PipeEnd& pipe) {
  int code = 0;
  ssize_t count = 0;
  do {
    count = read(pipe.get(), &code, sizeof code);
  } while (count < 0 && errno == EINTR);
  return count == sizeof code ? code : 0;
}

}  // namespace

void PipeEnd::Close() {
  if (descriptor_ >= 0) close(descriptor_);
  descriptor_ = -1;
}

int ChildProcess::Start(const std::string& program, const std::vector<std::string>& words,
                        std::string_view input) {
  std::vector<char*> texts;
  texts.reserve(words.size() + 1);
  for (const std::string& word : words) texts.push_back(const_cast<char*>(word.c_str()));
  texts.push_back(nullptr);
  Pipe out;
  Pipe err;
  Pipe failure;
  PipeEnd in;
  if (const int error = OpenInput(input, &in); error != 0) return error;
  if (!out.Open() || !err.Open() || !failure.Open()) return errno;
  const pid_t self = getpid();
  {
    NoSignals signals;
    process_ = fork();
    if (process_ < 0) return errno;
    if (process_ == 0) {
      Become(self, program.c_str(), texts.data(), in.get(), out.writing.get(), err.writing.get(),
             failure.writing.get(), signals);
    }
    setpgid(process_, process_);
    vanishing_.Hold(process_);
  }
  failure.writing.Close();
  const int code = FailureOf(failure.reading);
  if (code != 0) {
    EndNow();
    return code;
  }
  for (Pipe* pipe : {&out, &err}) fcntl(pipe->reading.get(), F_SETFL, O_NONBLOCK);
  output.TakeFrom(out.reading);
  errors.TakeFrom(err.reading);
  return 0;
}

bool ChildProcess::HasEnded(int* status) {
  // As long as it has not been taken note of, no other group can have its number.
  siginfo_t end{};
  const bool told = process_ > 0 && waitid(P_PID, static_cast<id_t>(process_), &end,
                                           WEXITED | WNOHANG | WNOWAIT) == 0;
  if (!told || end.si_pid == 0) return false;
  kill(-process_, SIGKILL);
  waitpid(process_, status, 0);
  process_ = -1;
  vanishing_.Release();
  return true;
}

void ChildProcess::AskToEnd() {
  if (process_ > 0) kill(-process_, SIGTERM);
}

void ChildProcess::EndNow() {
  if (process_ < 0) return;
  kill(-process_, SIGKILL);
  int status = 0;
  constexpr int kTries = 100;
  for (int i = 0; i < kTries && waitpid(process_, &status, WNOHANG) == 0; ++i) {
    constexpr useconds_t kTenMilliseconds = 10000;
    usleep(kTenMilliseconds);
  }
  process_ = -1;
  vanishing_.Release();
}

}  // namespace logchecker
