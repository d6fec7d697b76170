// Programs that are started, watched and ended.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace logchecker {

// What is to be run. Texts are station text where nothing else is said.
struct ChildOrder {
  // A line for the system's shell, in the encoding of the command line; it takes the place of the
  // program and its arguments.
  std::string shellLine;
  std::string program;  // the host's path of its file; empty for this very program
  std::vector<std::string> arguments;
  // What it reads from standard input, as bytes. It has all of it however this program ends.
  std::string input;
  // Names and values that it has in its environment. So has this program from then on.
  std::vector<std::pair<std::string, std::string>> environment;
  int32_t seconds = 0;  // after which it is ended
};

// How a child has ended.
struct ChildEnd {
  // The code that it ended with by itself; nothing else that is said here fits below 0.
  int32_t exitCode = -1;
  // Otherwise why it has none, as a half sentence behind a name: "took longer than 600 seconds".
  std::string reason;
  // The beginning of what it wrote on standard error, as bytes: kMostChildErrors at most.
  std::string errors;
};

inline constexpr size_t kMostChildErrors = size_t{64} * 1024;
// A child that writes more than this on standard output is ended.
inline constexpr int64_t kMostChildOutput = int64_t{1} << 30U;

// Children read what they are given, and have none of the files that this program holds open. What
// they write is taken from them however much it is: none waits for another. Their output lies in
// the folder for temporary files, in a file that has no name or goes with the program. Each child
// has whatever it starts ended with it, and all are ended when this program ends, by a signal or
// its console too. Calls come from one thread. Each returns an error number, kNoError for success.
class Processes {
 public:
  virtual ~Processes() = default;

  // How many processors this program may use, at least 1.
  virtual int32_t Processors() = 0;

  // Starts a child; `*child` gets a number that is its own until Release. At most kMostChildren run
  // at once; one more is refused with kTooManyFiles.
  virtual int32_t Start(const ChildOrder& order, int32_t* child) = 0;
  static constexpr int32_t kMostChildren = 256;

  // Waits until one of the children that run has ended, and says which and how. kInvalidCall when
  // none runs.
  virtual int32_t Wait(int32_t* child, ChildEnd* end) = 0;

  // What an ended child wrote on standard output, from byte `position` on (counted from 0) as far
  // as it is at hand; empty behind the last. The view holds until the next call.
  virtual int32_t ReadOutput(int32_t child, int64_t position, std::string_view* bytes) = 0;

  // Gives the number and the output back; ends a child that runs.
  virtual void Release(int32_t child) = 0;
};

}  // namespace logchecker
