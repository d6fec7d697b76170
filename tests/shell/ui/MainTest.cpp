#include "tests/shell/ui/MainTest.h"

#include "cartstore/Velmar_Cart_Routines.h"

namespace logchecker {

void MainTest::CloseStore() {
  CloseAudiowall();
  CloseAllFiles();
}

}  // namespace logchecker
