// A store of 100 carts on disk, and the browser's window on it with ten rows.
#pragma once

#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "cartbrowser/ui/CartRowWidgets.h"
#include "cartbrowser/ui/frmCartBrowser.h"
#include "cartstore/AudiowallParts.h"
#include "cartstore/BlankCart.h"
#include "tests/cartbrowser/Recorders.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {

// A record with three lines of text, in colours of its own.
inline CartRecord RecordOfLines(const std::string& line1, const std::string& line2,
                                const std::string& line3, int32_t backColor = 0x0000FFFF,
                                int32_t foreColor = 0x00FF0000) {
  CartInfo info = gBlankCartInfo;
  const auto put = [](const std::string& text, CartLine& line) {
    std::copy_n(text.begin(), std::min(text.size(), line.size()), line.begin());
  };
  put(line1, info.Line1);
  put(line2, info.Line2);
  put(line3, info.Line3);
  info.BackColor = backColor;
  info.ForeColor = foreColor;
  info.Length = info.TotalLength = info.EndPoint = info.PlayLength = 30;
  CartRecord record;
  CartRecordFromInfo(record, info);
  return record;
}

class BrowserWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    OpenStore(100);
    Open();
  }
  void TearDown() override { window.reset(); }

  void Open(const std::string& tag = "") {
    window =
        std::make_unique<frmCartBrowser>([this](const std::string& file, QWidget* /*owner*/,
                                                bool modal) { notes.emplace_back(file, modal); });
    window->ParentForm = &opener;
    window->Tag = tag;
    Show();
    SetFrameHeight(10 * 21 + 2);
  }
  void Show() {
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
  }
  // In pixels: a row is 21 of them high, and 2 are the frame's edges.
  void SetFrameHeight(int height) {
    const int labels = Control<QFrame>(window.get(), "pnlCartLabels")->height();
    window->resize(window->width(), window->height() + height - labels);
    QApplication::processEvents();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = window->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : window.get(), key, modifiers);
  }
  void Press(const char* button) { Control<QAbstractButton>(window.get(), button)->click(); }
  CartNumberButton* Button(int row) {
    return Control<CartNumberButton>(window.get(), qPrintable(QString("cmdCartNumber%1").arg(row)));
  }
  CartPanel* Panel(int row) {
    return Control<CartPanel>(window.get(), qPrintable(QString("pnlCart%1").arg(row)));
  }
  QLineEdit* Number() { return Control<QLineEdit>(window.get(), "txtCartNumber"); }
  QPushButton* Jump() { return Control<QPushButton>(window.get(), "cmdJumpCart"); }
  // Those that can be seen, from the first row on.
  std::vector<std::string> NumbersShown() {
    std::vector<std::string> numbers;
    for (const auto* button : window->findChildren<CartNumberButton*>()) {
      if (button->isVisible()) numbers.push_back(button->text().toStdString());
    }
    return numbers;
  }
  void ExpectAt(const char* first, int row) {
    EXPECT_EQ(Button(1)->text(), first);
    EXPECT_EQ(Number()->text(), Button(row)->text());
    for (int r = 1; r <= window->RowCount(); ++r) {
      EXPECT_EQ(Button(r)->Colour(), r == row ? 0xC00000U : 0x8000000FU) << r;
    }
  }
  void ExpectClosedWith(int32_t cart) {
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(opener.told, std::vector<int32_t>{cart});
    EXPECT_EQ(window->Tag, std::to_string(cart));
    EXPECT_EQ(window->ParentForm, nullptr);
  }

  RecordingOpener opener;
  std::vector<std::pair<std::string, bool>> notes;
  std::unique_ptr<frmCartBrowser> window;
};

}  // namespace logchecker
