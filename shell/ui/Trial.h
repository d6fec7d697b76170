// A made-up station to try the program on. It needs no settings of the machine and leaves none.
#pragma once

#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>

namespace logchecker {

// Writes the station into a folder, given by its station path, or throws Trouble.
using WriteMadeUpStation = std::function<void(const std::string& folder)>;

class Trial {
 public:
  ~Trial() { End(); }

  // Has the station written into a folder of its own, which stands for the Windows folder from then
  // on. False when that can't be done, which it has said, with what to do about it.
  bool Begin(const WriteMadeUpStation& write);
  // Takes the folder away, with all that has come into it. All files are closed by then.
  void End();

 private:
  std::unique_ptr<QTemporaryDir> folder_;
};

}  // namespace logchecker
