// The paper of a print job: its size, tray and way round, its sides and colours.
#pragma once

#include <QDialog>
#include <QPageSize>
#include <QPrinter>
#include <memory>
#include <vector>

namespace Ui {
class frmPaper;
}

namespace logchecker {

class PaperDialog : public QDialog {
 public:
  // Shows what `printer` is set to and, when it is confirmed, sets it.
  PaperDialog(QPrinter& printer, QWidget* owner);
  ~PaperDialog() override;
  void accept() override;

 private:
  void ShowSizes();
  void ShowTrays();
  void ShowSidesAndColours();

  QPrinter& printer_;
  std::unique_ptr<Ui::frmPaper> ui_;
  std::vector<QPageSize> sizes_;  // as the box lists them
};

}  // namespace logchecker
