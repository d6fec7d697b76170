// A small viewer for one text or rich text file, with buttons to print it and to save a copy.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <string>

namespace Ui {
class frmPrintPreview;
}

namespace logchecker {

// Who gets the keys that mean nothing to the viewer.
class KeyOwner {
 public:
  virtual ~KeyOwner() = default;
  // A key by its number; `shift` adds up 1 for Shift, 2 for Control, 4 for Alt. Errors are ignored.
  virtual void Form_KeyDown(int32_t keyCode, int32_t shift) = 0;
};

class frmPrintPreview : public QDialog {
  Q_OBJECT

 public:
  explicit frmPrintPreview(QWidget* parent = nullptr);
  ~frmPrintPreview() override;

  // Whether the window stands above all others. Neither moves nor activates it.
  void SetFloater();
  void SetNonFloater();

  // Shows the files of a folder by their names, without ".extension", beside the first one's text;
  // a click on a name opens it.
  void DisplayFolder(const std::string& folder, const std::string& extension);
  void HideFolder();

  // Stores the name and shows the file, rich or plain text; nothing where it is not there. Where
  // not all of it can be shown, a line under it says so.
  void LoadFile(const std::string& fileName);

  // None at first. Must outlive the window, or be released before.
  KeyOwner* Owner = nullptr;

 protected:
  void changeEvent(QEvent* event) override;
  void reject() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BecomeActive();
  void Place();
  void SetOnTop(bool onTop);
  void ListFolder();
  void ShowFile();
  void SayCut(bool cut);
  void OnPrint();
  void OnSave();
  void SaveAs(const std::string& file) const;

  std::unique_ptr<Ui::frmPrintPreview> ui_;
  std::string fileName_;
  std::string text_;  // what is shown, as plain text; UTF-8
  bool cut_ = false;  // the file has more than is shown
  std::string folder_;
  std::string extension_;
  int16_t activated_ = 0;  // the first activation has been handled
};

}  // namespace logchecker
