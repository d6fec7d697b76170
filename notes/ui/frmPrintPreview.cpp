#include "notes/ui/frmPrintPreview.h"

#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>
#include <iterator>

#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/Messages.h"
#include "common/PathText.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "common/ui/Guide.h"
#include "common/ui/KeyCode.h"
#include "common/ui/StationQString.h"
#include "common/ui/Twips.h"
#include "dialogs/ui/HostFolder.h"
#include "dialogs/ui/SaveDialog.h"
#include "notes/RichText.h"
#include "notes/TextFile.h"
#include "platform/HostPaths.h"
#include "printing/PrintCanvas.h"
#include "printing/ui/PrinterChoice.h"
#include "ui_frmPrintPreview.h"

namespace logchecker {

namespace {

constexpr int kTop = 30;  // twips
constexpr QSize kDesignSize{520, 420};
// All of a file's text is in memory, a few times over, while it is saved.
constexpr size_t kMostSaved = size_t{64} * 1024 * 1024;  // bytes

// Page down and up, home, end, the arrows, execute, enter, and the buttons' letters stay here.
constexpr int32_t kOwnKeys[] = {34, 33, 36, 35, 38, 37, 40, 39, 43, 13, 80, 83, 79};

}  // namespace

frmPrintPreview::frmPrintPreview(QWidget* parent)
    : QDialog(parent, Qt::Window), ui_(std::make_unique<Ui::frmPrintPreview>()) {
  ui_->setupUi(this);
  SetGuidePage(*this, kGuideNotes);
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
    text_.clear();
    SayCut(false);
    if (GetFileLength(fileName_) >= 0) ShowFile();
  }
  ui_->rtfFile->moveCursor(QTextCursor::Start);
}

void frmPrintPreview::ShowFile() {
  std::string bytes;
  // A byte more tells that there is more.
  if (!ReadTextFile(fileName_, kMostBytes + 1, &bytes)) return;
  const RichTextDocument note = ReadRichText(bytes);
  text_ = note.PlainText();
  SayCut(!ui_->rtfFile->ShowNote(note, IsRichText(bytes)));
}

void frmPrintPreview::SayCut(bool cut) {
  cut_ = cut;
  const bool saved = !cut || GetFileLength(fileName_) <= static_cast<double>(kMostSaved);
  ui_->cmdSave->setEnabled(saved);
  ui_->lblCut->setText(saved ? "This note is too large: a part of it is not shown. Save writes all "
                               "of its text."
                             : "This note is too large: a part of it is not shown, and it can't be "
                               "saved from here.");
  ui_->lblCut->setVisible(cut);
}

void frmPrintPreview::OnPrint() {
  const bool anySelected = ui_->rtfFile->textCursor().hasSelection();
  const std::optional<PrinterChoice> choice =
      AskForPrinter(this, {windowTitle(), anySelected, JobKind::kNote});
  if (!choice) return;
  if (!choice->selectionOnly) ui_->rtfFile->moveCursor(QTextCursor::Start);
  const std::string name = GetFileNamePart(fileName_);
  try {
    ui_->rtfFile->PrintNote(*choice->printer, name.empty() ? windowTitle() : ToQString(name),
                            choice->selectionOnly);
  } catch (const PrintError& error) {
    gErrorState = {error.number(), error.what()};
    ShowErrorMessage("while printing.", error.number(), false);
  }
}

void frmPrintPreview::OnSave() {
  SaveDialog dialog(this, "Select File to Save to", {{"All Files", "*"}}, "", "");
  // Without a word, but where the file gets more than there is to see.
  dialog.SetOverwritePrompt(cut_);
  const std::optional<std::string> file = dialog.Ask("*.*");
  if (file && !Trim(GetFileNamePart(*file)).empty()) SaveAs(*file);
}

// As plain text, without a word whatever comes of it.
void frmPrintPreview::SaveAs(const std::string& file) const {
  if (!cut_) {
    WriteTextFile(file, PlainTextFile(text_));
    return;
  }
  std::string bytes;
  const bool whole = ReadTextFile(fileName_, kMostSaved + 1, &bytes) && bytes.size() <= kMostSaved;
  if (whole) WriteTextFile(file, PlainTextFile(ReadWholeText(bytes)));
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
  text_.clear();
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
