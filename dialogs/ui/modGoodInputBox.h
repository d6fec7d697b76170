// The front of the question box: each asks one thing and gives the answer, or nothing on Cancel and
// when the box is closed. Positions count from 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace logchecker {

// `longest` in characters; 0 is no limit.
std::optional<std::string> AskForText(QWidget* owner, const std::string& question,
                                      const std::string& preset, int32_t longest);

// One of the list, or a text of the user's own.
std::optional<std::string> AskForTextOrOneOf(QWidget* owner, const std::string& question,
                                             const std::vector<std::string>& items,
                                             const std::string& preset);

// The text of one of the list, which drops down; `sorted` puts it in order first.
std::optional<std::string> AskForOneOf(QWidget* owner, const std::string& question,
                                       const std::vector<std::string>& items, bool sorted);

// The position of one row.
std::optional<size_t> AskForRow(QWidget* owner, const std::string& question,
                                const std::vector<std::string>& items);

// The positions of the rows picked, which may be none.
std::optional<std::vector<size_t>> AskForRows(QWidget* owner, const std::string& question,
                                              const std::vector<std::string>& items);

}  // namespace logchecker
