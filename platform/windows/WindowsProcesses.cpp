#include <algorithm>
#include <map>
#include <vector>

#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsErrors.h"
#include "platform/windows/WindowsParts.h"
#include "platform/windows/WindowsText.h"

namespace logchecker {

namespace {

// A handle of the system, closed with it.
class Handle {
 public:
  Handle() = default;
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() { Close(); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  void Take(HANDLE handle) {
    Close();
    handle_ = handle;
  }
  void Close() {
    if (handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    handle_ = nullptr;
  }
  HANDLE get() const { return handle_; }
  bool IsGood() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE handle_ = nullptr;
};

// As the runtime of the child takes the words apart: backslashes count only in front of a quote. A
// plain word stays plain, since the command processor does not know its own options else.
std::wstring Quoted(const std::wstring& word) {
  constexpr wchar_t kSpecial[] = L" \t\n\v\"*?&|<>^%();,";
  if (!word.empty() && word.find_first_of(kSpecial) == std::wstring::npos) return word;
  std::wstring quoted = L"\"";
  size_t backslashes = 0;
  for (const wchar_t c : word) {
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring ThisProgram() {
  constexpr DWORD kMostLetters = 32768;
  std::wstring path(kMostLetters, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), kMostLetters));
  return path;
}

std::wstring ShellProgram() {
  std::wstring path(MAX_PATH + 1, L'\0');
  path.resize(GetSystemDirectoryW(path.data(), static_cast<UINT>(path.size())));
  return path + L"\\cmd.exe";
}

SECURITY_ATTRIBUTES ForAChild() { return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE}; }

// A file that goes when its last handle is closed, which the system does for a program that ends.
bool OpenTemporary(Handle& file) {
  std::wstring folder(MAX_PATH + 1, L'\0');
  folder.resize(GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()));
  std::wstring name(MAX_PATH + 1, L'\0');
  if (GetTempFileNameW(folder.c_str(), L"lck", 0, name.data()) == 0) return false;
  SECURITY_ATTRIBUTES inherited = ForAChild();
  file.Take(CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE,
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inherited,
                        CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE,
                        nullptr));
  return file.IsGood();
}

bool OpenInput(const std::string& bytes, Handle& file) {
  if (!OpenTemporary(file)) return false;
  size_t done = 0;
  while (done < bytes.size()) {
    constexpr size_t kAPiece = size_t{1} << 20U;
    DWORD count = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size() - done, kAPiece));
    if (!WriteFile(file.get(), bytes.data() + done, size, &count, nullptr)) return false;
    done += count;
  }
  return SetFilePointer(file.get(), 0, nullptr, FILE_BEGIN) == 0;
}

int64_t LengthOf(const Handle& file) {
  LARGE_INTEGER length;
  return GetFileSizeEx(file.get(), &length) ? length.QuadPart : 0;
}

// Not from the place that the child writes at, which is one for both.
int32_t ReadAt(const Handle& file, int64_t position, char* bytes, DWORD size, DWORD* count) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(position & 0xFFFFFFFF);
  place.OffsetHigh = static_cast<DWORD>(position >> 32U);
  *count = 0;
  if (ReadFile(file.get(), bytes, size, count, &place)) return kNoError;
  return GetLastError() == ERROR_HANDLE_EOF ? kNoError : LastErrorNumber();
}

struct Child {
  Handle process;
  Handle job;  // ends all that is in it when its last handle is closed
  Handle output;
  Handle errors;
  int32_t seconds = 0;
  ULONGLONG deadline = 0;  // in milliseconds of the system's run
  bool ended = false;
};

bool MakeJob(Handle& job) {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  job.Take(CreateJobObjectW(nullptr, nullptr));
  return job.IsGood() && SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation,
                                                 &limits, sizeof limits);
}

// The handles that a child gets, and no others that may be open for a child.
class HandleList {
 public:
  explicit HandleList(std::vector<HANDLE> handles) : handles_(std::move(handles)) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    memory_.resize(size);
    made_ = InitializeProcThreadAttributeList(get(), 1, 0, &size) &&
            UpdateProcThreadAttribute(get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                      handles_.size() * sizeof(HANDLE), nullptr, nullptr);
  }
  ~HandleList() { DeleteProcThreadAttributeList(get()); }
  HandleList(const HandleList&) = delete;
  HandleList& operator=(const HandleList&) = delete;
  bool IsMade() const { return made_; }
  LPPROC_THREAD_ATTRIBUTE_LIST get() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data());
  }

 private:
  std::vector<HANDLE> handles_;
  std::vector<char> memory_;
  bool made_ = false;
};

// It stands still until it is in its job, so that nothing it starts is outside.
int32_t Launch(const ChildOrder& order, Child& child) {
  std::wstring program = order.program.empty() ? ThisProgram() : Widen(order.program);
  std::wstring line = Quoted(program);
  for (const std::string& argument : order.arguments) line += L' ' + Quoted(Widen(argument));
  if (!order.shellLine.empty()) {
    program = ShellProgram();
    // The shell takes the outermost quotes away, and the line as it stands between them.
    line = L"cmd /d /s /c \"" + Widen(order.shellLine) + L"\"";
  }
  for (const auto& [name, value] : order.environment) {
    SetEnvironmentVariableW(Widen(name).c_str(), Widen(value).c_str());
  }
  SECURITY_ATTRIBUTES inherited = ForAChild();
  Handle input(CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                           OPEN_EXISTING, 0, nullptr));
  if (!order.input.empty() && !OpenInput(order.input, input)) return LastErrorNumber();
  if (!input.IsGood() || !OpenTemporary(child.output) || !OpenTemporary(child.errors) ||
      !MakeJob(child.job)) {
    return LastErrorNumber();
  }
  HandleList handles({input.get(), child.output.get(), child.errors.get()});
  if (!handles.IsMade()) return LastErrorNumber();
  STARTUPINFOEXW start{};
  start.StartupInfo.cb = sizeof start;
  start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  start.StartupInfo.hStdInput = input.get();
  start.StartupInfo.hStdOutput = child.output.get();
  start.StartupInfo.hStdError = child.errors.get();
  start.lpAttributeList = handles.get();
  constexpr DWORD kFlags = CREATE_SUSPENDED | CREATE_NO_WINDOW | EXTENDED_STARTUPINFO_PRESENT;
  PROCESS_INFORMATION facts{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, kFlags, nullptr,
                      nullptr, &start.StartupInfo, &facts)) {
    return LastErrorNumber();
  }
  child.process.Take(facts.hProcess);
  const Handle thread(facts.hThread);
  if (!AssignProcessToJobObject(child.job.get(), facts.hProcess)) {
    const int32_t error = LastErrorNumber();
    TerminateProcess(facts.hProcess, 1);
    return error;
  }
  ResumeThread(thread.get());
  return kNoError;
}

std::string Hexadecimal(DWORD code) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[(code >> shift) & 0xFU];
  return text;
}

class WindowsProcessTable : public Processes {
 public:
  int32_t Processors() override {
    DWORD_PTR mine = 0;
    DWORD_PTR all = 0;
    if (!GetProcessAffinityMask(GetCurrentProcess(), &mine, &all)) return 1;
    return std::max(__builtin_popcountll(mine), 1);
  }

  int32_t Start(const ChildOrder& order, int32_t* child) override {
    const auto running = std::count_if(children_.begin(), children_.end(),
                                       [](const auto& entry) { return !entry.second.ended; });
    if (running >= kMostChildren) return kTooManyFiles;
    const int32_t number = last_ + 1;
    Child& entry = children_[number];
    const int32_t error = Launch(order, entry);
    if (error != kNoError) {
      children_.erase(number);
      return error;
    }
    constexpr ULONGLONG kMilliseconds = 1000;
    entry.seconds = order.seconds;
    entry.deadline = GetTickCount64() + static_cast<ULONGLONG>(order.seconds) * kMilliseconds;
    *child = last_ = number;
    return kNoError;
  }

  int32_t Wait(int32_t* child, ChildEnd* end) override {
    while (true) {
      std::vector<HANDLE> waiting;
      bool anyRuns = false;
      for (auto& [number, entry] : children_) {
        if (entry.ended) continue;
        anyRuns = true;
        if (IsOver(entry, end)) {
          *child = number;
          return kNoError;
        }
        if (waiting.size() < MAXIMUM_WAIT_OBJECTS) waiting.push_back(entry.process.get());
      }
      if (!anyRuns) return kInvalidCall;
      // Beyond those that can be waited for, and for time and length, each is looked at.
      constexpr DWORD kMilliseconds = 50;
      WaitForMultipleObjects(static_cast<DWORD>(waiting.size()), waiting.data(), FALSE,
                             kMilliseconds);
    }
  }

  int32_t ReadOutput(int32_t child, int64_t position, std::string_view* bytes) override {
    *bytes = {};
    const auto found = children_.find(child);
    if (found == children_.end() || !found->second.ended) return kInvalidCall;
    constexpr size_t kAtOnce = size_t{64} * 1024;
    read_.resize(kAtOnce);
    DWORD count = 0;
    const int32_t error =
        ReadAt(found->second.output, position, read_.data(), static_cast<DWORD>(kAtOnce), &count);
    *bytes = std::string_view(read_).substr(0, count);
    return error;
  }

  void Release(int32_t child) override { children_.erase(child); }

 private:
  // Whether it has ended by itself, or was ended for its time or its length.
  bool IsOver(Child& child, ChildEnd* end) {
    std::string reason;
    if (WaitForSingleObject(child.process.get(), 0) != WAIT_OBJECT_0) {
      if (GetTickCount64() >= child.deadline) {
        reason = "took longer than " + std::to_string(child.seconds) + " seconds";
      } else if (LengthOf(child.output) > kMostChildOutput ||
                 LengthOf(child.errors) > kMostChildOutput) {
        reason = "wrote more than " + std::to_string(kMostChildOutput) + " bytes";
      } else {
        return false;
      }
    }
    DWORD code = 0;
    GetExitCodeProcess(child.process.get(), &code);
    TerminateJobObject(child.job.get(), 1);
    constexpr DWORD kGraceMilliseconds = 2000;
    WaitForSingleObject(child.process.get(), kGraceMilliseconds);
    *end = {};
    constexpr DWORD kFirstFault = 0xC0000000;
    if (reason.empty() && code >= kFirstFault) reason = "was ended by fault " + Hexadecimal(code);
    if (reason.empty()) end->exitCode = static_cast<int32_t>(code);
    end->reason = reason;
    end->errors.resize(kMostChildErrors);
    DWORD count = 0;
    ReadAt(child.errors, 0, end->errors.data(), static_cast<DWORD>(kMostChildErrors), &count);
    end->errors.resize(count);
    child.errors.Close();
    child.job.Close();
    child.ended = true;
    return true;
  }

  std::map<int32_t, Child> children_;
  int32_t last_ = 0;
  std::string read_;
};

}  // namespace

Processes& WindowsProcesses() {
  static WindowsProcessTable processes;
  return processes;
}

}  // namespace logchecker
