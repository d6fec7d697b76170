// The splash that stands while the program starts, and the about box.
#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>
#include <string>

namespace Ui {
class frmSplash;
}

namespace logchecker {

class frmSplash : public QWidget {
  Q_OBJECT

 public:
  explicit frmSplash(QWidget* parent = nullptr);
  ~frmSplash() override;

  // Whether the window stands above all others. Setting it neither moves nor activates it.
  int16_t Floating() const { return floating_; }
  void SetFloating(int16_t floating);

  // Shows it and waits until it is painted, which a window manager can delay; half a second at
  // most.
  void ShowAtStart();
  // What the program is doing at its start; seen at once.
  void SetCurrentAction(const std::string& text);

  // Shows it as the about box, which the user closes with OK. The window is deleted then.
  void ShowAsAboutBox();

 signals:
  void painted();

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FillIdentity();
  void ShowLogo();
  void OnOk();

  std::unique_ptr<Ui::frmSplash> ui_;
  int16_t floating_ = 0;
};

}  // namespace logchecker
