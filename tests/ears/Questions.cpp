// Asks one question in each of the ways in which the input box can, and prints the answers. No
// program of the system asks any.
#include <QApplication>
#include <cstdio>

#include "common/ui/QtUserInterface.h"
#include "dialogs/ui/modGoodInputBox.h"

namespace {

using logchecker::AskForOneOf;

void Print(const std::optional<std::string>& answer) {
  std::printf("%s\n", answer ? answer->c_str() : "cancelled");
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const logchecker::QtUserInterface windows;
  const std::vector<std::string> items = {"North", "East", "South"};
  Print(logchecker::AskForText(nullptr, "Which text?", "before", 10));
  Print(logchecker::AskForTextOrOneOf(nullptr, "Which one, or another?", items, "before"));
  Print(AskForOneOf(nullptr, "Which one?", items, false));
  Print(AskForOneOf(nullptr, "Which one in order?", items, true));
  const std::optional<size_t> row = logchecker::AskForRow(nullptr, "Which row?", items);
  std::printf("%zu\n", row.value_or(0));
  for (const size_t picked :
       logchecker::AskForRows(nullptr, "Which rows?", items).value_or(std::vector<size_t>())) {
    std::printf("%zu ", picked);
  }
  std::printf("\n");
  return 0;
}
