#include "tests/support/TempFolder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "tests/support/KeepReport.h"

namespace logchecker {

namespace {

std::filesystem::path MakeUniqueFolder() {
  std::random_device random;
  const std::filesystem::path base = std::filesystem::temp_directory_path();
  for (int attempt = 0; attempt < 100; ++attempt) {
    const std::filesystem::path folder = base / ("logchecker-test-" + std::to_string(random()));
    if (std::filesystem::create_directory(folder)) return folder;
  }
  throw std::runtime_error("no temporary folder can be made");
}

}  // namespace

TempFolder::TempFolder() : folder_(MakeUniqueFolder()) {}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::string TempFolder::Path() const { return folder_.string(); }

std::string TempFolder::Path(std::string_view name) const { return (folder_ / name).string(); }

void TempFolder::WriteFile(std::string_view name, std::string_view bytes) const {
  std::ofstream file(folder_ / name, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("a test's file can't be written");
}

std::string TempFolder::ReadFile(std::string_view name) const {
  std::ifstream file(folder_ / name, std::ios::binary);
  if (!file) throw std::runtime_error("a test's file can't be read");
  return KeepReport({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
}

bool TempFolder::Exists(std::string_view name) const {
  return std::filesystem::exists(folder_ / name);
}

size_t TempFolder::Count() const {
  return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(folder_),
                                           std::filesystem::directory_iterator()));
}

}  // namespace logchecker
