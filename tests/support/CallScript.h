// Which calls to the system fail, and which were made.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace logchecker {

class CallScript {
 public:
  // The n-th call of all, counted from 1, fails with `error`.
  void FailCall(int n, int32_t error);
  // The n-th call of this name fails; with n 0, every one. Names are such as "Files.OpenForInput".
  void FailNamed(const std::string& name, int n, int32_t error);
  void Clear();

  // Called at the beginning of each call, with its name. Calls of its own are not told.
  std::function<void(const char* name)> onCall;

  // Takes a call down. The error that it is to fail with, or 0.
  int32_t Enter(const char* name);

  // Whether any call was made to fail.
  bool HasFailed() const { return hasFailed_; }
  const std::vector<std::string>& Calls() const { return calls_; }
  int CountOf(const std::string& name) const;

 private:
  struct Rule {
    int n = 0;
    int32_t error = 0;
  };

  int failAt_ = -1;
  int32_t failWith_ = 0;
  std::map<std::string, Rule> rules_;
  std::map<std::string, int> counts_;
  std::vector<std::string> calls_;
  bool hasFailed_ = false;
  bool isTelling_ = false;
};

}  // namespace logchecker
