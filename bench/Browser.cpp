// What the windows of the cart store make a person wait for. Prints key=value lines: milliseconds
// of whole walks of the search, with what its window does on the way; how many carts a walk looks
// at after Stop was pressed, and milliseconds from there to its end; milliseconds of a refresh of
// the browser's rows to the end of its painting, and how many rows those are.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMouseEvent>
#include <QPushButton>
#include <chrono>
#include <cstdio>
#include <functional>

#include "bench/BenchStore.h"
#include "cartbrowser/ui/frmCartBrowser.h"
#include "cartbrowser/ui/frmFindCart.h"
#include "common/ui/QtUserInterface.h"

namespace logchecker {
namespace {

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

class CountingUi : public QtUserInterface {
 public:
  void Yield() override {
    ++carts;
    if (atCart) atCart(carts);
    QtUserInterface::Yield();
  }

  int carts = 0;
  std::function<void(int)> atCart;
};

class SearchBench {
 public:
  SearchBench() {
    window_.show();
    QApplication::processEvents();
  }

  double Walk(const char* text, bool notes) {
    window_.findChild<QCheckBox*>("chkNotes")->setChecked(notes);
    window_.findChild<QComboBox*>("cmbSearchText")->setEditText(text);
    const Clock::time_point begin = Clock::now();
    window_.findChild<QPushButton*>("cmdFind")->click();
    return MillisecondsSince(begin);
  }

  // Presses Stop, as the mouse does, when the walk has come to `cart`; the press waits among the
  // events that the walk lets run.
  void StopAt(int cart) {
    ui_.carts = 0;
    Clock::time_point pressed;
    ui_.atCart = [&](int at) {
      if (at != cart) return;
      auto* stop = window_.findChild<QPushButton*>("cmdStop");
      pressed = Clock::now();
      const QPointF middle = QRectF(stop->rect()).center();
      for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool down = type == QEvent::MouseButtonPress;
        QCoreApplication::postEvent(
            stop, new QMouseEvent(type, middle, stop->mapToGlobal(middle), Qt::LeftButton,
                                  down ? Qt::LeftButton : Qt::NoButton, {}));
      }
    };
    Walk("*", false);
    std::printf("carts_after_stop=%d\n", ui_.carts - cart);
    std::printf("stop=%.2f\n", MillisecondsSince(pressed));
    ui_.atCart = nullptr;
  }

 private:
  CountingUi ui_;
  frmFindCart window_;
};

void Walks() {
  OpenBenchStore(9999, false);
  {
    SearchBench search;
    for (int i = 0; i < 5; ++i) {
      std::printf("walk_none=%.1f\n", search.Walk("nothing like it", false));
      std::printf("walk_all=%.1f\n", search.Walk("*", false));
      search.StopAt(5000);
    }
  }
  OpenBenchStore(12000, true);
  SearchBench search;
  for (int i = 0; i < 3; ++i) {
    std::printf("walk_notes=%.1f\n", search.Walk("nothing like it", true));
  }
}

void Refreshes() {
  OpenBenchStore(9999, false);
  const QtUserInterface ui;
  frmCartBrowser browser({});
  browser.show();
  browser.resize(1200, 1150);
  QApplication::processEvents();
  std::printf("rows=%d\n", browser.RowCount());
  for (int cart = 1; cart < 9000; cart += 300) {
    const Clock::time_point begin = Clock::now();
    browser.JumpToCart(cart);
    QApplication::processEvents();
    std::printf("refresh=%.2f\n", MillisecondsSince(begin));
  }
}

}  // namespace
}  // namespace logchecker

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  logchecker::Refreshes();
  logchecker::Walks();
  return 0;
}
