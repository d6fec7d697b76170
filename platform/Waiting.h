// A sign for the person while a call to the system waits for another program.
#pragma once

namespace logchecker {

// Told true when a wait begins that a person would notice, and false when it is over.
using WaitSign = void (*)(bool waiting);

// The sign to give from here on; none at first. Returns the one that was.
WaitSign UseWaitSign(WaitSign sign);

// Gives the sign, for those who wait.
void GiveWaitSign(bool waiting);

}  // namespace logchecker
