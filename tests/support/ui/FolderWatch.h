// Which files came into a folder while it was watched.
#pragma once

#include <QString>
#include <memory>

namespace logchecker {

class FolderWatch {
 public:
  explicit FolderWatch(const QString& folder);
  ~FolderWatch();
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  // How often a file of this name was made, or another one got its name, since the last question.
  int Arrivals(const QString& name);

 private:
  struct Watch;
  std::unique_ptr<Watch> watch_;
};

}  // namespace logchecker
