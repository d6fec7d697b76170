// What the system's print queues say.
#pragma once

#include <string>

namespace logchecker {

// Why the queue did not take the job that this thread has just handed over, in station text; empty
// where it took it. The toolkit hands a job over without a word about what became of it.
std::string QueueRefusal();

}  // namespace logchecker
