#include "printing/ui/QueueRefusal.h"

namespace logchecker {

// Here the toolkit's painter fails when a job is refused.
std::string QueueRefusal(const QString& /*queue*/) { return ""; }

}  // namespace logchecker
