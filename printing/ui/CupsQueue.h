// The queues of the system's print scheduler.
#pragma once

#include <QString>

namespace logchecker {

// Hands a PDF file over to a queue as one job, which the scheduler then has whole. Throws
// PrintError where there is no such queue, where it is stopped or takes no jobs, and where the
// scheduler refuses the job. `sides` is one of its words, or empty for the queue's own default. The
// printer makes the `copies`.
void SubmitToQueue(const QString& queue, const QString& file, const QString& title,
                   const char* sides, int copies);

}  // namespace logchecker
