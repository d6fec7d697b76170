// Opening, closing with a result, the mouse, the number's box, keys and children.
#include "cartbrowser/CartBrowser.h"
#include "tests/cartbrowser/CartBrowserFixture.h"

namespace logchecker {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class CartBrowserWindowTest : public CartBrowserTest {
 protected:
  void ExpectReturned(int32_t cart) const {
    EXPECT_THAT(opener.told, ElementsAre(cart));
    EXPECT_EQ(std::to_string(cart), browser.Tag);
    EXPECT_EQ(1, face.hidden);
    EXPECT_FALSE(browser.Activated());
    EXPECT_EQ(nullptr, browser.ParentForm);
  }
  void OpenAt(const std::string& tag) {
    browser.CloseBox();
    browser.Tag = tag;
    browser.Activate();
  }
};

TEST_F(CartBrowserWindowTest, ItOpensOnTheCartOfItsTag) {
  const std::pair<const char*, int32_t> cases[] = {
      {"42", 42}, {" 7", 7}, {"100", 100}, {"101", 100}, {"99999999999", 100}, {"3", 3}};
  for (const auto& [tag, cart] : cases) {
    OpenAt(tag);
    EXPECT_EQ(cart, browser.CurrentCart()) << tag;
    EXPECT_EQ("", browser.Tag);
  }
}

TEST_F(CartBrowserWindowTest, WithoutANumberInItsTagItStaysWhereItWas) {
  browser.JumpToCart(42);
  for (const char* tag : {"", "0", "-3", "x"}) {
    OpenAt(tag);
    EXPECT_EQ(42, browser.CurrentCart()) << tag;
    EXPECT_EQ(tag, browser.Tag);
  }
}

TEST_F(CartBrowserWindowTest, RowsScrollUnderTheCursorAsFarAsThereAreCartsForAll) {
  struct Case {
    float from;
    int32_t carts;
    float to;
    int refreshes;
  };
  const Case cases[] = {{0, 3, 3, 1},   {3, -2, 1, 1},  {1, -9, 0, 1},  {0, -1, 0, 0},
                        {88, 3, 90, 1}, {90, 1, 90, 0}, {95, 3, 95, 0}, {95, -3, 92, 1}};
  for (const Case& c : cases) {
    StandAt(c.from, 4);
    browser.ScrollRows(c.carts);
    EXPECT_EQ(c.to, browser.TopOffset()) << c.from << " " << c.carts;
    EXPECT_EQ(4, browser.CurrentRow());
    EXPECT_EQ(c.refreshes, face.refreshes) << c.from << " " << c.carts;
  }
}

TEST_F(CartBrowserWindowTest, OnlyTheFirstActivationOfAShowingJumps) {
  browser.Tag = "42";
  face.moves.clear();
  face.focused = 0;
  browser.Activate();
  EXPECT_EQ(1, browser.CurrentCart());
  EXPECT_EQ("42", browser.Tag);
  EXPECT_EQ(0, face.refreshes);
  EXPECT_THAT(face.moves, IsEmpty());
  EXPECT_EQ(1, face.focused);
}

TEST_F(CartBrowserWindowTest, TheFirstActivationOfAShowingReadsItsRowsAnew) {
  browser.CloseBox();
  PutCart(3, RecordOfLength(10, "NEW WORDS"));
  browser.Tag = "5";
  face.refreshes = 0;
  browser.Activate();
  EXPECT_EQ(1, face.refreshes) << "of the jump none, the cart is on show";
  EXPECT_EQ("NEW WORDS", browser.Row(3).Caption);
  EXPECT_EQ("3", browser.Row(3).Tag);
}

TEST_F(CartBrowserWindowTest, AWindowThatIsNotActiveTakesNoFocus) {
  face.active = false;
  face.focused = 0;
  browser.CloseBox();
  browser.Activate();
  browser.JumpToCart(5);
  browser.SetJumpText("9");
  browser.JumpClicked();
  EXPECT_EQ(0, face.focused);
  EXPECT_EQ(1, face.jumpTextSelected);
}

TEST_F(CartBrowserWindowTest, AResultHidesTheWindowAndTellsTheOpenerOnce) {
  browser.ReturnCartNumber(42);
  ExpectReturned(42);
  browser.ReturnCartNumber(43);
  EXPECT_THAT(opener.told, ElementsAre(42));
}

TEST_F(CartBrowserWindowTest, TheOpenerIsToldBehindTheHidingAndLetGoBehindTheCall) {
  class LookingOpener : public CartDisplay {
   public:
    LookingOpener(CartBrowser& browser, const RecordingBrowserFace& face)
        : browser_(browser), face_(face) {}
    void UpdateDisplay(int32_t /*cartNumber*/) override {
      EXPECT_EQ("42", browser_.Tag);
      EXPECT_EQ(1, face_.hidden);
      EXPECT_FALSE(browser_.Activated());
      EXPECT_EQ(this, browser_.ParentForm);
      browser_.ParentForm = this;
      ++calls;
    }
    int calls = 0;

   private:
    CartBrowser& browser_;
    const RecordingBrowserFace& face_;
  };
  LookingOpener looking(browser, face);
  browser.ParentForm = &looking;
  browser.ReturnCartNumber(42);
  EXPECT_EQ(1, looking.calls);
  EXPECT_EQ(nullptr, browser.ParentForm);
}

TEST_F(CartBrowserWindowTest, CancelReturnsNothing) {
  browser.Cancel();
  ExpectReturned(0);
}

TEST_F(CartBrowserWindowTest, AnOpenerThatFailsOrIsNotThereIsNoError) {
  opener.fails = true;
  browser.ReturnCartNumber(42);
  ExpectReturned(42);
  EXPECT_EQ(0, gErrorState.Number);
  browser.ParentForm = nullptr;
  browser.ReturnCartNumber(7);
  EXPECT_EQ("7", browser.Tag);
}

TEST_F(CartBrowserWindowTest, TheCloseButtonHidesWithoutTellingAnyone) {
  browser.CloseBox();
  EXPECT_THAT(opener.told, IsEmpty());
  EXPECT_EQ(1, face.hidden);
  EXPECT_FALSE(browser.Activated());
  EXPECT_EQ("", browser.Tag);
  EXPECT_EQ(&opener, browser.ParentForm);
}

TEST_F(CartBrowserWindowTest, TheNextUseStandsWhereTheLastOneEndedAtTheRightOfTheScreen) {
  browser.SetDouble(true);
  browser.JumpToCart(42);
  face.windowWidth = 9000;
  browser.ReturnCartNumber(0);
  face.moves.clear();
  browser.Activate();
  EXPECT_THAT(face.moves, ElementsAre(Pair(15000 - 9000 - 30, 30)));
  EXPECT_EQ(42, browser.CurrentCart());
  EXPECT_EQ(630, browser.RowHeight());
}

TEST_F(CartBrowserWindowTest, AClickOnARowTakesItsCart) {
  StandAt(20, 1);
  browser.ButtonDown(4);
  ExpectAt(20, 4);
  EXPECT_THAT(opener.told, IsEmpty());
  browser.ButtonClicked(4);
  ExpectReturned(24);
}

TEST_F(CartBrowserWindowTest, APanelTakesItsCartWhenTheLeftButtonComesUp) {
  StandAt(20, 1);
  browser.PanelDown(4, false, 10, 10);
  browser.PanelUp(4, false);
  ExpectAt(20, 4);
  EXPECT_THAT(opener.told, IsEmpty());
  browser.PanelDown(5, true, 10, 10);
  EXPECT_EQ("", browser.Row(5).Tag);
  browser.PanelUp(5, true);
  ExpectReturned(25);
}

TEST_F(CartBrowserWindowTest, AWindowThatPlaysReturnsNothing) {
  browser.PlayOnActivate = true;
  browser.ButtonClicked(4);
  browser.PanelUp(5, true);
  EXPECT_THAT(opener.told, IsEmpty());
  EXPECT_EQ(5, browser.CurrentRow());
  EXPECT_EQ(0, face.hidden);
}

class BrowserDragTest : public CartBrowserWindowTest {
 protected:
  void SetUp() override {
    CartBrowserWindowTest::SetUp();
    PutCart(3, 30.0F);
    browser.RefreshRows();
    browser.AllowDrag = true;
    browser.PlayOnActivate = true;
  }
  bool MoveFar() const { return browser.PanelMove(true, 500, 500, 15); }
};

TEST_F(BrowserDragTest, ADragBeginsMoreThanFivePixelsAway) {
  browser.PanelDown(3, true, 100, 200);
  EXPECT_FALSE(browser.PanelMove(true, 175, 275, 15));
  EXPECT_FALSE(browser.PanelMove(true, 25, 125, 15));
  EXPECT_TRUE(browser.PanelMove(true, 176, 200, 15));
  EXPECT_TRUE(browser.PanelMove(true, 100, 124, 15));
  EXPECT_FALSE(browser.PanelMove(true, 176, 200, 20));
  EXPECT_FALSE(browser.PanelMove(false, 500, 500, 15));
}

TEST_F(BrowserDragTest, OnlyACartWithAudioIsDraggedByTheLeftButtonWhereThatIsAllowed) {
  browser.PanelDown(4, true, 100, 200);
  EXPECT_FALSE(MoveFar());
  browser.PanelDown(3, false, 100, 200);
  EXPECT_FALSE(MoveFar());
  browser.PanelDown(3, true, 100, 200);
  EXPECT_TRUE(MoveFar());
  browser.AllowDrag = false;
  EXPECT_FALSE(MoveFar());
}

TEST_F(BrowserDragTest, ItIsOverWhenTheButtonComesUp) {
  EXPECT_FALSE(MoveFar());
  browser.PanelDown(3, true, 100, 200);
  browser.PanelUp(3, true);
  EXPECT_FALSE(MoveFar());
  browser.PanelDown(3, true, 100, 200);
  browser.PanelUp(3, false);
  EXPECT_FALSE(MoveFar());
}

TEST_F(CartBrowserWindowTest, JumpIsEnabledForNumbersOfTheStore) {
  const std::pair<const char*, bool> cases[] = {{"1", true},   {"100", true}, {"101", false},
                                                {"0", false},  {"", false},   {"-1", false},
                                                {"042", true}, {"x", false}};
  for (const auto& [text, enabled] : cases) {
    browser.SetJumpText(text);
    EXPECT_EQ(enabled, browser.JumpEnabled()) << text;
  }
}

TEST_F(CartBrowserWindowTest, TheFirstPressOfJumpGoesThereAndTheSecondTakesTheCart) {
  browser.SetJumpText("42");
  browser.JumpClicked();
  ExpectAt(41, 1);
  EXPECT_EQ(1, face.jumpTextSelected);
  EXPECT_THAT(opener.told, IsEmpty());
  browser.JumpClicked();
  ExpectReturned(42);
  EXPECT_EQ(1, face.jumpTextSelected);
}

TEST_F(CartBrowserWindowTest, JumpOnTheNumberThatIsCurrentAlreadyTakesItAtOnce) {
  browser.JumpClicked();
  ExpectReturned(1);
}

TEST_F(CartBrowserWindowTest, JumpDoesNothingWhileItsButtonIsDisabled) {
  for (const char* text : {"", "0", "101"}) {
    browser.SetJumpText(text);
    browser.JumpClicked();
    EXPECT_TRUE(browser.KeyDown('J', false));
    EXPECT_EQ(1, browser.CurrentCart());
    EXPECT_EQ(text, browser.JumpText());
  }
  EXPECT_EQ(0, face.refreshes);
}

TEST_F(CartBrowserWindowTest, KeysMoveTheCurrentRow) {
  EXPECT_TRUE(browser.KeyDown(40, false));
  ExpectAt(0, 2);
  EXPECT_TRUE(browser.KeyDown(38, false));
  ExpectAt(0, 1);
  EXPECT_FALSE(browser.KeyDown(34, false));
  ExpectAt(10, 1);
  EXPECT_FALSE(browser.KeyDown(33, false));
  ExpectAt(0, 1);
  for (const int32_t code : {36, 35, 45, 32, 112, 123}) browser.KeyDown(code, false);
  browser.KeyDown(81, true);
  browser.KeyPress('l');
  browser.KeyPress('\r');
  ExpectAt(0, 1);
  EXPECT_THAT(opener.told, IsEmpty());
  EXPECT_EQ(0, face.hidden);
}

TEST_F(CartBrowserWindowTest, EscapeCancels) {
  EXPECT_TRUE(browser.KeyPress(27));
  ExpectReturned(0);
}

TEST_F(CartBrowserWindowTest, TheSearchIsModalAsTabledWithNTheOtherWayRound) {
  StandAt(20, 5);
  const struct {
    char key;
    bool childrenModal;
    bool modal;
  } cases[] = {{'F', false, false}, {'F', true, true},  {'f', true, true},
               {'N', false, true},  {'N', true, false}, {'n', true, false},
               {'B', false, false}, {'B', true, true},  {'b', false, false}};
  for (const auto& row : cases) {
    face.finds.clear();
    browser.ChildrenModal = row.childrenModal;
    EXPECT_FALSE(browser.KeyPress(row.key));
    EXPECT_THAT(face.finds, ElementsAre(Pair(25, row.modal))) << row.key;
  }
  face.finds.clear();
  browser.ChildrenModal = true;
  browser.FindClicked();
  EXPECT_THAT(face.finds, ElementsAre(Pair(25, true)));
}

TEST_F(CartBrowserWindowTest, BehindTheStoreOnlyBSearches) {
  StandAt(20, 5);
  gNumberOfCarts = 24;
  browser.FindClicked();
  browser.KeyPress('f');
  browser.KeyPress('n');
  EXPECT_THAT(face.finds, IsEmpty());
  browser.KeyPress('b');
  EXPECT_EQ(1U, face.finds.size());
  gNumberOfCarts = 25;
  browser.KeyPress('f');
  browser.KeyPress('n');
  EXPECT_EQ(3U, face.finds.size());
}

TEST_F(CartBrowserWindowTest, TShowsTheNotesOfTheCurrentCartIfItHasAny) {
  folder().WriteFile("part1/VEL00025.TXT", "x");
  StandAt(20, 4);
  browser.KeyPress('t');
  EXPECT_THAT(face.notes, IsEmpty());
  browser.ButtonDown(5);
  browser.KeyPress('t');
  browser.ChildrenModal = true;
  browser.KeyPress('T');
  const std::string file = PartEntry(1).Path + "\\VEL00025.TXT";
  EXPECT_THAT(face.notes, ElementsAre(Pair(file, false), Pair(file, true)));
  browser.JumpToCart(101);
  browser.KeyPress('t');
  EXPECT_EQ(2U, face.notes.size());
}

}  // namespace
}  // namespace logchecker
