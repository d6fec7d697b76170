#include "platform/posix/OutputSpool.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace logchecker {

namespace {

// The offset in the file of a block.
off_t PlaceOf(uint32_t block) {
  return static_cast<off_t>(block) * static_cast<off_t>(OutputSpool::kBlock);
}

int WriteBlock(int file, uint32_t block, std::string_view bytes) {
  off_t place = PlaceOf(block);
  while (!bytes.empty()) {
    const ssize_t count = pwrite(file, bytes.data(), bytes.size(), place);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    bytes.remove_prefix(static_cast<size_t>(count));
    place += count;
  }
  return 0;
}

}  // namespace

OutputSpool::~OutputSpool() {
  if (file_ >= 0) close(file_);
}

// A file system that knows no files without a name has one with a name, for a moment.
int OutputSpool::Open() {
  const char* set = std::getenv("TMPDIR");
  const std::string folder = set != nullptr && *set != '\0' ? set : "/tmp";
  file_ = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
  if (file_ >= 0) return 0;
  if (errno != EOPNOTSUPP && errno != EISDIR) return errno;
  std::string name = folder + "/logcheck-XXXXXX";
  file_ = mkostemp(name.data(), O_CLOEXEC);
  if (file_ < 0) return errno;
  unlink(name.c_str());
  return 0;
}

int OutputSpool::Append(SpooledOutput& output, std::string_view bytes) {
  output.rest += bytes;
  output.length += static_cast<int64_t>(bytes.size());
  while (output.rest.size() >= kBlock) {
    int error = file_ < 0 ? Open() : 0;
    const uint32_t block = free_.empty() ? blocks_ : free_.back();
    if (error == 0)
      error = WriteBlock(file_, block, std::string_view(output.rest).substr(0, kBlock));
    if (error != 0) return error;
    if (free_.empty()) {
      ++blocks_;
    } else {
      free_.pop_back();
    }
    output.blocks.push_back(block);
    output.rest.erase(0, kBlock);
  }
  return 0;
}

int OutputSpool::Read(const SpooledOutput& output, int64_t position, std::string_view* bytes) {
  *bytes = {};
  const auto inBlocks = static_cast<int64_t>(output.blocks.size() * kBlock);
  if (position >= inBlocks) {
    const auto from =
        std::min<size_t>(static_cast<size_t>(position - inBlocks), output.rest.size());
    *bytes = std::string_view(output.rest).substr(from);
    return 0;
  }
  const size_t from = static_cast<size_t>(position) % kBlock;
  const uint32_t block = output.blocks[static_cast<size_t>(position) / kBlock];
  read_.resize(kBlock - from);
  const ssize_t count =
      pread(file_, read_.data(), read_.size(), PlaceOf(block) + static_cast<off_t>(from));
  // The block was written whole.
  if (count <= 0) return count < 0 ? errno : EIO;
  *bytes = std::string_view(read_).substr(0, static_cast<size_t>(count));
  return 0;
}

void OutputSpool::Release(SpooledOutput& output) {
  free_.insert(free_.end(), output.blocks.begin(), output.blocks.end());
  output = {};
}

}  // namespace logchecker
