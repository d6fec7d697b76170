#include "dialogs/ui/modGoodInputBox.h"

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "dialogs/ui/frmGoodInputBox.h"

namespace logchecker {

namespace {

class Question {
 public:
  Question(QWidget* owner, const std::string& question, bool frmGoodInputBox::*mode) : box_(owner) {
    box_.UseText = false;
    box_.*mode = true;
    box_.SetCaption(question);
    box_.SavedPointer = Ui().CurrentMousePointer();
    // The close box sets no outcome.
    box_.SetCancelL("1");
  }

  frmGoodInputBox& box() { return box_; }

  std::optional<std::string> Ask() {
    box_.exec();
    if (box_.CancelL() != "0") return std::nullopt;
    return box_.Tag;
  }

 private:
  frmGoodInputBox box_;
};

std::vector<size_t> Positions(const std::string& answer) {
  std::vector<size_t> positions;
  int32_t start = 1;
  int32_t comma = 0;
  if (answer.empty()) return positions;
  do {
    positions.push_back(
        static_cast<size_t>(Val(GetDelimitedField(answer, start, ",", comma, true, false))) - 1);
    start = comma + 1;
  } while (comma > 0);
  return positions;
}

}  // namespace

std::optional<std::string> AskForText(QWidget* owner, const std::string& question,
                                      const std::string& preset, int32_t longest) {
  Question asked(owner, question, &frmGoodInputBox::UseText);
  asked.box().SetTLength(longest);
  asked.box().SetText(preset);
  return asked.Ask();
}

std::optional<std::string> AskForTextOrOneOf(QWidget* owner, const std::string& question,
                                             const std::vector<std::string>& items,
                                             const std::string& preset) {
  Question asked(owner, question, &frmGoodInputBox::UseComboCombo);
  asked.box().SetItems(items);
  asked.box().SetText(preset);
  return asked.Ask();
}

std::optional<std::string> AskForOneOf(QWidget* owner, const std::string& question,
                                       const std::vector<std::string>& items, bool sorted) {
  Question asked(owner, question,
                 sorted ? &frmGoodInputBox::UseComboSortedList : &frmGoodInputBox::UseComboList);
  asked.box().SetItems(items);
  return asked.Ask();
}

std::optional<size_t> AskForRow(QWidget* owner, const std::string& question,
                                const std::vector<std::string>& items) {
  Question asked(owner, question, &frmGoodInputBox::UseListMultiNonSel);
  asked.box().SetItems(items);
  const std::optional<std::string> answer = asked.Ask();
  // OK without a row leaves its outcome behind when the box is closed next.
  if (!answer || answer->empty()) return std::nullopt;
  return Positions(*answer).front();
}

std::optional<std::vector<size_t>> AskForRows(QWidget* owner, const std::string& question,
                                              const std::vector<std::string>& items) {
  Question asked(owner, question, &frmGoodInputBox::UseListMulti);
  asked.box().SetItems(items);
  const std::optional<std::string> answer = asked.Ask();
  if (!answer) return std::nullopt;
  return Positions(*answer);
}

}  // namespace logchecker
