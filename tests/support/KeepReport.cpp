#include "tests/support/KeepReport.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

namespace logchecker {

namespace {

bool IsReport(const std::string& bytes) {
  return bytes.find("\"program\": \"logcheck\"") != std::string::npos;
}

}  // namespace

std::string KeepReport(std::string bytes) {
  const char* const folder = std::getenv("LOGCHECK_REPORTS");
  if (folder == nullptr || !IsReport(bytes)) return bytes;
  std::random_device random;
  const std::string name = "test-" + std::to_string(random()) + "-" + std::to_string(random());
  std::ofstream file(std::filesystem::path(folder) / (name + ".json"), std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("a report can't be kept");
  return bytes;
}

}  // namespace logchecker
