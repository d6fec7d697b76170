#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <tuple>

#include "common/ui/Twips.h"
#include "dialogs/ui/frmGoodInputBox.h"
#include "dialogs/ui/modGoodInputBox.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

const std::vector<std::string> kItems = {"pear", "apple", "plum"};

class GoodInputBoxTest : public WindowTest {
 protected:
  void Show(bool frmGoodInputBox::*mode) {
    box.UseText = false;
    box.*mode = true;
    box.SetCaption("Which one?");
    box.SetItems(kItems);
    box.show();
    QApplication::setActiveWindow(&box);
  }
  void Press(const char* button) { Control<QPushButton>(&box, button)->click(); }
  template <typename Widget>
  Widget* Part(const char* name) {
    return Control<Widget>(&box, name);
  }
  QStringList Seen() {
    QStringList seen;
    for (const char* name :
         {"comboCombo", "comboList", "comboSortedList", "listMulti", "listMultiNonSel", "Text1"}) {
      if (Part<QWidget>(name)->isVisible()) seen << name;
    }
    return seen;
  }

  frmGoodInputBox box;
};

TEST_F(GoodInputBoxTest, StartsInTheTextModeAboveAllOtherWindows) {
  EXPECT_TRUE(box.UseText);
  EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  box.show();
  EXPECT_EQ(Seen(), QStringList("Text1"));
  EXPECT_FALSE(Part<QLabel>("CancelL")->isVisible());
  EXPECT_FALSE(Part<QLabel>("TLength")->isVisible());
}

TEST_F(GoodInputBoxTest, EachModeShowsItsControlAndAnswersWithIt) {
  const struct {
    bool frmGoodInputBox::*mode;
    const char* control;
    const char* answer;
  } rows[] = {{&frmGoodInputBox::UseComboCombo, "comboCombo", "pear"},
              {&frmGoodInputBox::UseComboList, "comboList", "pear"},
              {&frmGoodInputBox::UseComboSortedList, "comboSortedList", "apple"},
              {&frmGoodInputBox::UseListMulti, "listMulti", ""},
              {&frmGoodInputBox::UseListMultiNonSel, "listMultiNonSel", "2"},
              {&frmGoodInputBox::UseText, "Text1", "typed"}};
  for (const auto& row : rows) {
    box.Unload();
    Show(row.mode);
    if (row.mode == &frmGoodInputBox::UseText) box.SetText("typed");
    if (auto* combo = qobject_cast<QComboBox*>(Part<QWidget>(row.control))) {
      combo->setCurrentIndex(0);
    }
    if (row.mode == &frmGoodInputBox::UseListMultiNonSel) {
      Part<QListWidget>("listMultiNonSel")->setCurrentRow(1);
    }
    EXPECT_EQ(Seen(), QStringList(row.control));
    EXPECT_TRUE(Part<QWidget>(row.control)->hasFocus()) << row.control;
    Press("cmdOK");
    EXPECT_EQ(box.CancelL(), "0");
    EXPECT_EQ(box.Tag, row.answer) << row.control;
    EXPECT_FALSE(box.isVisible());
  }
}

TEST_F(GoodInputBoxTest, TheFocusGoesToTheControlOnlyWhereItIsEnabled) {
  const struct {
    bool frmGoodInputBox::*mode;
    const char* control;
  } rows[] = {{&frmGoodInputBox::UseComboCombo, "comboCombo"},
              {&frmGoodInputBox::UseComboList, "comboList"},
              {&frmGoodInputBox::UseComboSortedList, "comboSortedList"},
              {&frmGoodInputBox::UseListMulti, "listMulti"},
              {&frmGoodInputBox::UseListMultiNonSel, "listMultiNonSel"},
              {&frmGoodInputBox::UseText, "Text1"}};
  for (const auto& row : rows) {
    box.hide();
    box.Unload();
    auto* control = Part<QWidget>(row.control);
    control->setEnabled(false);
    Show(row.mode);
    EXPECT_EQ(Seen(), QStringList(row.control));
    EXPECT_FALSE(control->isEnabled()) << row.control;
    EXPECT_FALSE(control->hasFocus()) << row.control;
    control->setEnabled(true);
    Part<QWidget>("cmdOK")->setFocus();
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::setActiveWindow(&box);
    EXPECT_TRUE(control->hasFocus()) << row.control;
  }
}

TEST_F(GoodInputBoxTest, TheFirstOfTheModesInTheirOrderCounts) {
  box.UseListMulti = true;
  box.UseComboList = true;
  Show(&frmGoodInputBox::UseListMultiNonSel);
  EXPECT_EQ(Seen(), QStringList("comboList"));
}

TEST_F(GoodInputBoxTest, SeveralRowsAnswerWithTheirPositions) {
  Show(&frmGoodInputBox::UseListMulti);
  Part<QListWidget>("listMulti")->item(0)->setSelected(true);
  Part<QListWidget>("listMulti")->item(2)->setSelected(true);
  Press("cmdOK");
  EXPECT_EQ(box.Tag, "1,3");
}

TEST_F(GoodInputBoxTest, OneRowAnswersWithItsPositionByADoubleClickToo) {
  Show(&frmGoodInputBox::UseListMultiNonSel);
  auto* list = Part<QListWidget>("listMultiNonSel");
  list->setCurrentRow(2);
  const QPoint place = list->visualItemRect(list->item(2)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(box.Tag, "3");
  EXPECT_FALSE(box.isVisible());
}

TEST_F(GoodInputBoxTest, ListsBeginWithNothingChosen) {
  for (const auto& [mode, name] :
       {std::pair(&frmGoodInputBox::UseComboCombo, "comboCombo"),
        std::pair(&frmGoodInputBox::UseComboList, "comboList"),
        std::pair(&frmGoodInputBox::UseComboSortedList, "comboSortedList")}) {
    box.Unload();
    Show(mode);
    EXPECT_EQ(Part<QComboBox>(name)->currentIndex(), -1) << name;
    EXPECT_EQ(Part<QComboBox>(name)->currentText(), "") << name;
    Press("cmdOK");
    EXPECT_EQ(box.CancelL(), "0");
    EXPECT_EQ(box.Tag, "") << name;
  }
  for (const auto& [mode, name] :
       {std::pair(&frmGoodInputBox::UseListMulti, "listMulti"),
        std::pair(&frmGoodInputBox::UseListMultiNonSel, "listMultiNonSel")}) {
    box.hide();
    box.Unload();
    Show(mode);
    QApplication::processEvents();
    EXPECT_TRUE(Part<QListWidget>(name)->hasFocus());
    EXPECT_TRUE(Part<QListWidget>(name)->selectedItems().isEmpty()) << name;
  }
  Press("cmdOK");
  EXPECT_TRUE(box.isVisible());
  EXPECT_EQ(ui.messages.size(), 1U);
}

TEST_F(GoodInputBoxTest, ItemsTakeThePlaceOfThoseBefore) {
  for (const auto& [mode, name] : {std::pair(&frmGoodInputBox::UseComboList, "comboList"),
                                   std::pair(&frmGoodInputBox::UseListMulti, "listMulti")}) {
    box.hide();
    box.Unload();
    Show(mode);
    box.SetItems({"other", "than these"});
    const auto* combo = qobject_cast<QComboBox*>(Part<QWidget>(name));
    EXPECT_EQ(combo != nullptr ? combo->count() : Part<QListWidget>(name)->count(), 2) << name;
  }
}

TEST_F(GoodInputBoxTest, APresetTextStandsInTheBoxWhateverTheListHolds) {
  for (const char* preset : {"own", "plum", ""}) {
    DialogScript script([&](QDialog* dialog) {
      EXPECT_EQ(Control<QComboBox>(dialog, "comboCombo")->currentText(), preset);
      EXPECT_EQ(Control<QComboBox>(dialog, "comboCombo")->count(), 3);
      Control<QPushButton>(dialog, "cmdOK")->click();
    });
    EXPECT_EQ(AskForTextOrOneOf(nullptr, "Name?", kItems, preset), preset);
  }
}

TEST_F(GoodInputBoxTest, ItStandsOverItsOwner) {
  QWidget owner;
  const auto seen = [&](QDialog* dialog) {
    EXPECT_EQ(dialog->parentWidget(), &owner);
    EXPECT_TRUE(dialog->isModal());
    dialog->reject();
  };
  DialogScript script;
  for (int kind = 0; kind < 5; ++kind) script.Then(seen);
  AskForText(&owner, "?", "", 0);
  AskForTextOrOneOf(&owner, "?", kItems, "");
  AskForOneOf(&owner, "?", kItems, true);
  AskForRow(&owner, "?", kItems);
  AskForRows(&owner, "?", kItems);
}

TEST_F(GoodInputBoxTest, ReturnPressesTheButtonThatHasTheFocus) {
  box.Tag = "old";
  Show(&frmGoodInputBox::UseText);
  Part<QWidget>("cmdCancel")->setFocus();
  QTest::keyClick(Part<QWidget>("cmdCancel"), Qt::Key_Return);
  EXPECT_EQ(box.CancelL(), "1");
  EXPECT_FALSE(box.isVisible());
  Show(&frmGoodInputBox::UseText);
  QTest::keyClick(Part<QWidget>("Text1"), Qt::Key_Return);
  EXPECT_EQ(box.CancelL(), "0") << "in the box it is OK";
}

TEST_F(GoodInputBoxTest, ATextThatIsBeingTypedIsLeftAloneWhenTheBoxComesBack) {
  for (const auto& [mode, name] : {std::pair(&frmGoodInputBox::UseText, "Text1"),
                                   std::pair(&frmGoodInputBox::UseComboCombo, "comboCombo")}) {
    box.hide();
    box.Unload();
    Show(mode);
    QApplication::processEvents();
    QTest::keyClicks(Part<QWidget>(name), "mine");
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    QApplication::setActiveWindow(&box);
    QApplication::processEvents();
    QTest::keyClicks(Part<QWidget>(name), "!");
    Press("cmdOK");
    EXPECT_EQ(box.Tag, "mine!") << name;
  }
}

TEST_F(GoodInputBoxTest, WithoutARowTheBoxSaysSoAndStays) {
  Show(&frmGoodInputBox::UseListMultiNonSel);
  Part<QListWidget>("listMultiNonSel")->clearSelection();
  Press("cmdOK");
  EXPECT_TRUE(box.isVisible());
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text, "You must select an item before clicking 'OK'");
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kExclamation);
}

TEST_F(GoodInputBoxTest, CancelAndEscapeGiveOneAndNoAnswer) {
  for (int way = 0; way < 2; ++way) {
    box.Tag = "old";
    Show(&frmGoodInputBox::UseText);
    if (way == 0) Press("cmdCancel");
    if (way == 1) QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(box.CancelL(), "1");
    EXPECT_EQ(box.Tag, "");
    EXPECT_FALSE(box.isVisible());
  }
}

TEST_F(GoodInputBoxTest, TheCloseBoxHidesAndSetsNeither) {
  box.Tag = "old";
  box.SetCancelL("preset");
  Show(&frmGoodInputBox::UseText);
  box.close();
  EXPECT_FALSE(box.isVisible());
  EXPECT_EQ(box.CancelL(), "preset");
  EXPECT_EQ(box.Tag, "old");
}

TEST_F(GoodInputBoxTest, TheLengthLimitHoldsAndZeroIsNone) {
  box.SetTLength(3);
  Show(&frmGoodInputBox::UseText);
  QTest::keyClicks(Part<QWidget>("Text1"), "abcdef");
  EXPECT_EQ(Part<QLineEdit>("Text1")->text(), "abc");
  box.SetTLength(0);
  QTest::keyClicks(Part<QWidget>("Text1"), "defg");
  EXPECT_EQ(Part<QLineEdit>("Text1")->text(), "abcdefg");
}

TEST_F(GoodInputBoxTest, TheButtonsStandUnderTheListAndUnderTheTextAgainAfterUnloading) {
  Show(&frmGoodInputBox::UseListMulti);
  const auto* list = Part<QWidget>("listMulti");
  const auto* cancel = Part<QWidget>("cmdCancel");
  const auto* ok = Part<QWidget>("cmdOK");
  EXPECT_EQ(cancel->y(), list->y() + list->height() + ToPixels(120));
  EXPECT_EQ(ok->y(), cancel->y());
  EXPECT_EQ(box.height(), ok->y() + ok->height() + ToPixels(120));
  box.Unload();
  const auto* text = Part<QWidget>("Text1");
  EXPECT_TRUE(box.UseText);
  EXPECT_FALSE(box.UseListMulti);
  EXPECT_EQ(cancel->y(), text->y() + text->height() + ToPixels(120));
  EXPECT_EQ(Part<QComboBox>("comboList")->count(), 0);
}

TEST_F(GoodInputBoxTest, TextIsSelectedOnFocus) {
  box.SetText("preset");
  Show(&frmGoodInputBox::UseText);
  QApplication::processEvents();
  EXPECT_EQ(Part<QLineEdit>("Text1")->selectedText(), "preset");
}

TEST_F(GoodInputBoxTest, ThePointerIsTheDefaultInsideAndTheSavedOneOutside) {
  box.SavedPointer = MousePointer::kHourglass;
  ui.pointer = MousePointer::kHourglass;
  Show(&frmGoodInputBox::UseText);
  EXPECT_EQ(ui.pointer, MousePointer::kDefault);
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  EXPECT_EQ(ui.pointer, MousePointer::kHourglass);
}

TEST_F(GoodInputBoxTest, ThePointerGoesBackWhenTheBoxGoes) {
  box.SavedPointer = MousePointer::kHourglass;
  Show(&frmGoodInputBox::UseText);
  EXPECT_EQ(ui.pointer, MousePointer::kDefault);
  Press("cmdOK");
  EXPECT_EQ(ui.pointer, MousePointer::kHourglass);
}

TEST_F(GoodInputBoxTest, WhatIsTypedIsTheAnswerAndNotAnItemThatBeginsWithIt) {
  Show(&frmGoodInputBox::UseComboCombo);
  auto* combo = Part<QComboBox>("comboCombo");
  combo->setEditText("");
  QTest::keyClicks(combo, "pl");
  Press("cmdOK");
  EXPECT_EQ(box.Tag, "pl");
}

TEST_F(GoodInputBoxTest, TheTextWithAListIsSelectedWheneverItGetsTheFocus) {
  box.UseText = false;
  box.UseComboCombo = true;
  box.SetText("own");
  Show(&frmGoodInputBox::UseComboCombo);
  auto* combo = Part<QComboBox>("comboCombo");
  combo->setEditText("own");
  Part<QWidget>("cmdOK")->setFocus();
  combo->lineEdit()->deselect();
  combo->setFocus(Qt::MouseFocusReason);
  QApplication::processEvents();
  EXPECT_EQ(combo->lineEdit()->selectedText(), "own");
}

TEST_F(GoodInputBoxTest, ADoubleClickBelowTheRowsIsOkToo) {
  Show(&frmGoodInputBox::UseListMultiNonSel);
  auto* list = Part<QListWidget>("listMultiNonSel");
  list->setCurrentRow(1);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->viewport()->rect().bottomLeft());
  EXPECT_EQ(box.Tag, "2");
  EXPECT_FALSE(box.isVisible());
}

TEST_F(GoodInputBoxTest, AnAmpersandOfTheQuestionIsShown) {
  box.SetCaption("Tom & Sons?");
  EXPECT_EQ(Part<QLabel>("lblCaption")->text(), "Tom && Sons?");
  EXPECT_EQ(Part<QWidget>("Text1")->accessibleName(), "Tom & Sons?");
}

TEST_F(GoodInputBoxTest, EverythingHasAName) {
  for (auto mode : {&frmGoodInputBox::UseComboCombo, &frmGoodInputBox::UseComboList,
                    &frmGoodInputBox::UseListMulti, &frmGoodInputBox::UseText}) {
    box.Unload();
    Show(mode);
    ExpectEverythingNamed(&box);
    ExpectFocusSeen(&box);
  }
}

TEST_F(GoodInputBoxTest, TheFrontAsksForEachKind) {
  const auto ok = [](QDialog* dialog) { Control<QPushButton>(dialog, "cmdOK")->click(); };
  {
    DialogScript script([&](QDialog* dialog) {
      EXPECT_EQ(Control<QLabel>(dialog, "lblCaption")->text(), "Name?");
      auto* text = Control<QLineEdit>(dialog, "Text1");
      EXPECT_EQ(text->text(), "preset");
      EXPECT_EQ(text->maxLength(), 8);
      text->setText("mine");
      ok(dialog);
    });
    EXPECT_EQ(AskForText(nullptr, "Name?", "preset", 8), "mine");
  }
  {
    DialogScript script(ok);
    EXPECT_EQ(AskForTextOrOneOf(nullptr, "Name?", kItems, "own"), "own");
  }
  for (const auto& [sorted, name, first] :
       {std::tuple(false, "comboList", "pear"), std::tuple(true, "comboSortedList", "apple")}) {
    DialogScript script([&](QDialog* dialog) {
      Control<QComboBox>(dialog, name)->setCurrentIndex(0);
      ok(dialog);
    });
    EXPECT_EQ(AskForOneOf(nullptr, "Name?", kItems, sorted), first);
  }
  {
    DialogScript script([&](QDialog* dialog) {
      Control<QListWidget>(dialog, "listMultiNonSel")->setCurrentRow(1);
      ok(dialog);
    });
    EXPECT_EQ(AskForRow(nullptr, "Name?", kItems), size_t{1});
  }
  {
    DialogScript script([&](QDialog* dialog) {
      Control<QListWidget>(dialog, "listMulti")->selectAll();
      ok(dialog);
    });
    EXPECT_EQ(AskForRows(nullptr, "Name?", kItems), (std::vector<size_t>{0, 1, 2}));
  }
}

TEST_F(GoodInputBoxTest, TheFrontGivesNothingOnCancelAndOnTheCloseBox) {
  {
    DialogScript script([](QDialog* dialog) { dialog->close(); });
    EXPECT_EQ(AskForText(nullptr, "Name?", "preset", 0), std::nullopt);
  }
  {
    DialogScript script([](QDialog* dialog) { dialog->reject(); });
    EXPECT_EQ(AskForRows(nullptr, "Name?", kItems), std::nullopt);
  }
  {
    DialogScript script([](QDialog* dialog) {
      Control<QListWidget>(dialog, "listMultiNonSel")->clearSelection();
      Control<QPushButton>(dialog, "cmdOK")->click();
      dialog->close();
    });
    EXPECT_EQ(AskForRow(nullptr, "Which?", kItems), std::nullopt) << "OK without a row before";
    EXPECT_EQ(ui.messages.size(), 1U);
  }
}

}  // namespace
}  // namespace logchecker
