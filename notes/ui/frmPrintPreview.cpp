#include "notes/ui/frmPrintPreview.h"

#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTextDocumentFragment>
#include <algorithm>
#include <iterator>

#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/Messages.h"
#include "common/PathText.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "common/ui/KeyCode.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "dialogs/ui/HostFolder.h"
#include "dialogs/ui/SaveDialog.h"
#include "notes/RichText.h"
#include "notes/TextFile.h"
#include "notes/ui/PrintNote.h"
#include "notes/ui/RichTextView.h"
#include "platform/HostPaths.h"
#include "printing/PrintCanvas.h"
#include "printing/ui/PrinterChoice.h"
#include "ui_frmPrintPreview.h"

namespace logchecker {

namespace {

constexpr int kTop = 30;  // twips
constexpr QSize kDesignSize{520, 420};

// Page down and up, home, end, the arrows, execute, enter, and the buttons' letters stay here.
constexpr int32_t kOwnKeys[] = {34, 33, 36, 35, 38, 37, 40, 39, 43, 13, 80, 83, 79};

}  // namespace

frmPrintPreview::frmPrintPreview(QWidget* parent)
    : QDialog(parent, Qt::Window), ui_(std::make_unique<Ui::frmPrintPreview>()) {
  ui_->setupUi(this);
  resize(kDesignSize);
  ui_->rtfFile->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  connect(ui_->cmdPrint, &QPushButton::clicked, this, [this] { OnPrint(); });
  connect(ui_->cmdSave, &QPushButton::clicked, this, [this] { OnSave(); });
  connect(ui_->cmdDone, &QPushButton::clicked, this, [this] { close(); });
  connect(ui_->listFiles, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
    LoadFile(folder_ + "\\" + FromQString(item->text()) + "." + extension_);
  });
  for (QWidget* control : findChildren<QWidget*>()) control->installEventFilter(this);
  SetFloater();
  Place();
}

frmPrintPreview::~frmPrintPreview() = default;

void frmPrintPreview::Place() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  move(screen->geometry().x() + (screen->geometry().width() - frameGeometry().width()) / 2,
       ToPixels(kTop));
}

void frmPrintPreview::SetOnTop(bool onTop) {
  if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop) return;
  const bool shown = isVisible();
  const QPoint place = pos();
  setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
  if (!shown) return;
  // The toolkit hides a window when its layer changes.
  setAttribute(Qt::WA_ShowWithoutActivating);
  move(place);
  show();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void frmPrintPreview::SetFloater() { SetOnTop(true); }

void frmPrintPreview::SetNonFloater() { SetOnTop(false); }

void frmPrintPreview::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) BecomeActive();
}

// The file is read again here, the first time.
void frmPrintPreview::BecomeActive() {
  if (activated_ != 0) return;
  activated_ = -1;
  Place();
  LoadFile(std::string(fileName_));
  Ui().SetMousePointer(MousePointer::kDefault);
}

void frmPrintPreview::LoadFile(const std::string& fileName) {
  fileName_ = fileName;
  if (!fileName_.empty()) {
    ui_->rtfFile->clear();
    std::string bytes;
    if (GetFileLength(fileName_) >= 0 && ReadTextFile(fileName_, kMostBytes, &bytes)) {
      ShowTextFile(*ui_->rtfFile, bytes);
    }
  }
  ui_->rtfFile->moveCursor(QTextCursor::Start);
}

void frmPrintPreview::OnPrint() {
  const bool anySelected = ui_->rtfFile->textCursor().hasSelection();
  const std::optional<PrinterChoice> choice =
      AskForPrinter(this, {windowTitle(), anySelected, JobKind::kNote});
  if (!choice) return;
  if (!choice->selectionOnly) ui_->rtfFile->moveCursor(QTextCursor::Start);
  QTextCursor source = ui_->rtfFile->textCursor();
  if (!source.hasSelection()) source.select(QTextCursor::Document);
  const std::string name = GetFileNamePart(fileName_);
  try {
    PrintNote(source.selection(), *choice->printer, name.empty() ? windowTitle() : ToQString(name));
  } catch (const PrintError& error) {
    gErrorState = {error.number(), error.what()};
    ShowErrorMessage("while printing.", error.number(), false);
  }
}

void frmPrintPreview::OnSave() {
  SaveDialog dialog(this, "Select File to Save to", {{"All Files", "*"}}, "", "");
  dialog.SetOverwritePrompt(false);
  const std::optional<std::string> file = dialog.Ask("*.*");
  if (file && !Trim(GetFileNamePart(*file)).empty()) SaveAs(*file);
}

// As plain text, without a word whatever comes of it.
void frmPrintPreview::SaveAs(const std::string& file) {
  // The box's own plain text would turn blanks that don't break into others.
  QString text = ui_->rtfFile->document()->toRawText();
  text.replace(QChar::ParagraphSeparator, "\r\n").replace(QChar::LineSeparator, "\r\n");
  WriteTextFile(file, FromQString(text));
}

bool frmPrintPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && Owner != nullptr) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const int32_t code = KeyCodeOf(key);
    const bool own =
        std::find(std::begin(kOwnKeys), std::end(kOwnKeys), code) != std::end(kOwnKeys);
    if (code != 0 && !own) {
      try {
        Owner->Form_KeyDown(code, ShiftStateOf(key));
      } catch (const std::exception&) {
        // The owner's errors are its own.
      }
    }
  }
  return QDialog::eventFilter(watched, event);
}

// Whichever way the window goes.
void frmPrintPreview::reject() {
  QDialog::reject();
  SetNonFloater();
  Owner = nullptr;
  activated_ = 0;
  ui_->rtfFile->clear();
}

void frmPrintPreview::DisplayFolder(const std::string& folder, const std::string& extension) {
  folder_ = folder;
  extension_ = extension;
  ui_->cmdSave->hide();
  ui_->listFiles->show();
  ListFolder();
}

void frmPrintPreview::ListFolder() {
  ui_->listFiles->clear();
  const QDir folder(QString::fromStdString(ToHostPath(folder_)));
  const QString pattern = "*." + ToQString(extension_);
  for (const QFileInfo& file : folder.entryInfoList({pattern}, QDir::Files, QDir::Name)) {
    ui_->listFiles->addItem(file.completeBaseName());
  }
  if (ui_->listFiles->count() == 0) return;
  ui_->listFiles->setCurrentRow(0);
  emit ui_->listFiles->itemClicked(ui_->listFiles->item(0));
}

void frmPrintPreview::HideFolder() {
  ui_->cmdSave->show();
  ui_->listFiles->hide();
}

}  // namespace logchecker
