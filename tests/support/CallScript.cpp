#include "tests/support/CallScript.h"

namespace logchecker {

void CallScript::FailCall(int n, int32_t error) {
  failAt_ = n;
  failWith_ = error;
}

void CallScript::FailNamed(const std::string& name, int n, int32_t error) {
  rules_[name] = {n, error};
}

void CallScript::Clear() { *this = CallScript(); }

int32_t CallScript::Enter(const char* name) {
  if (onCall && !isTelling_) {
    isTelling_ = true;
    onCall(name);
    isTelling_ = false;
  }
  calls_.emplace_back(name);
  const int count = ++counts_[name];
  int32_t error = static_cast<int>(calls_.size()) == failAt_ ? failWith_ : 0;
  const auto rule = rules_.find(name);
  if (rule != rules_.end() && (rule->second.n == 0 || rule->second.n == count)) {
    error = rule->second.error;
  }
  hasFailed_ = hasFailed_ || error != 0;
  return error;
}

int CallScript::CountOf(const std::string& name) const {
  const auto place = counts_.find(name);
  return place == counts_.end() ? 0 : place->second;
}

}  // namespace logchecker
