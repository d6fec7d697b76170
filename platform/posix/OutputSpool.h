// Where the output of children lies until it is wanted.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace logchecker {

// The output of one child: its blocks in the spool, and what has not filled a block yet.
struct SpooledOutput {
  std::vector<uint32_t> blocks;
  std::string rest;
  int64_t length = 0;
};

// One file without a name in the folder for temporary files, so that nothing is left however the
// program ends. Many outputs share it in blocks, since each would need an open file of its own
// otherwise. Errors are errno codes, 0 for success.
class OutputSpool {
 public:
  static constexpr size_t kBlock = size_t{64} * 1024;

  OutputSpool() = default;
  ~OutputSpool();
  OutputSpool(const OutputSpool&) = delete;
  OutputSpool& operator=(const OutputSpool&) = delete;

  int Append(SpooledOutput& output, std::string_view bytes);
  // The bytes from `position` on, those of one block at most; empty behind the last. The view holds
  // until the next call.
  int Read(const SpooledOutput& output, int64_t position, std::string_view* bytes);
  // The blocks are used again.
  void Release(SpooledOutput& output);

 private:
  int Open();

  int file_ = -1;
  uint32_t blocks_ = 0;  // in the file
  std::vector<uint32_t> free_;
  std::string read_;
};

}  // namespace logchecker
