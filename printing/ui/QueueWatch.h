// What the system's print queues say of a job. The toolkit hands one over with hardly a word about
// what became of it.
#pragma once

#include <QString>
#include <cstdint>
#include <set>
#include <string>

namespace logchecker {

// Made before a job is handed over.
class QueueWatch {
 public:
  explicit QueueWatch(const QString& queue);

  // Why the queue did not take the job that this thread has just handed over, in station text;
  // empty where it took it, or has nothing to say. `drawn` is false where the toolkit itself gave
  // up.
  std::string Refusal(bool drawn) const;

 private:
  QString queue_;
  std::set<uint32_t> before_;  // the jobs that were there, on systems that number them
};

}  // namespace logchecker
