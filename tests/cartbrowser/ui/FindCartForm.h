// A store of 300 carts with four in use, and the search's window on it.
#pragma once

#include <QComboBox>
#include <QPushButton>
#include <functional>
#include <memory>

#include "cartbrowser/ui/FoundCartsView.h"
#include "cartbrowser/ui/frmFindCart.h"
#include "common/ui/QtUserInterface.h"
#include "tests/cartbrowser/ui/BrowserWindow.h"

namespace logchecker {

// Lets events run, and something more at each cart.
class WalkUi : public QtUserInterface {
 public:
  void Yield() override {
    ++carts;
    if (atCart) atCart(carts);
    QtUserInterface::Yield();
  }

  int carts = 0;
  std::function<void(int)> atCart;
};

class FindCartFormTest : public WindowTest {
 protected:
  void SetUp() override {
    OpenStore(300);
    PutCart(5, RecordOfLines("FIFTH CART", "WITH SPOONS", "AND FORKS"));
    PutCart(50, RecordOfLines("FIFTIETH CART", "", ""));
    PutCart(200, RecordOfLength(169.5F, "TWO HUNDREDTH CART"));
    PutCart(299, RecordOfLength(191, "LAST BUT ONE CART"));
    Open();
  }
  void TearDown() override { window.reset(); }

  void Open(int32_t start = 1) {
    if (!window) window = std::make_unique<frmFindCart>();
    window->StartCart = start;
    window->CallingBrowser = &browser;
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
  }
  template <typename Widget>
  Widget* The(const char* name) {
    return Control<Widget>(window.get(), name);
  }
  QComboBox* Text() { return The<QComboBox>("cmbSearchText"); }
  QPushButton* Find() { return The<QPushButton>("cmdFind"); }
  QPushButton* Stop() { return The<QPushButton>("cmdStop"); }
  FoundCartsView* List() { return The<FoundCartsView>("lviewItems"); }
  void FindText(const QString& text) {
    Text()->setEditText(text);
    Find()->click();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window->focusWidget(), key, modifiers);
  }
  QString Cell(int row, FoundColumn column) {
    return List()->model()->index(row, column).data().toString();
  }
  QStringList Numbers() {
    QStringList numbers;
    for (int row = 0; row < List()->model()->rowCount(); ++row) {
      numbers.push_back(Cell(row, kFoundNumber));
    }
    return numbers;
  }
  int SelectedRow() {
    const QModelIndexList rows = List()->selectionModel()->selectedRows(kFoundNumber);
    return rows.isEmpty() ? -1 : rows.front().row();
  }
  QPoint Middle(int row) {
    return List()->visualRect(List()->model()->index(row, kFoundLine1)).center();
  }

  RecordingBrowser browser;
  WalkUi walk;
  std::unique_ptr<frmFindCart> window;
};

}  // namespace logchecker
