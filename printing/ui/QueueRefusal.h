// What the system's print queues say.
#pragma once

#include <QString>
#include <string>

namespace logchecker {

// Why the queue of this name did not take the job that this thread has just handed over, in station
// text; empty where it took it. The toolkit hands a job over without a word about what became of
// it.
std::string QueueRefusal(const QString& queue);

}  // namespace logchecker
