#include "printing/ui/PaperDialog.h"

#include <QList>
#include <QPrinterInfo>

#include "ui_frmPaper.h"

namespace logchecker {

namespace {

// A file takes any paper; these are what there is in a station.
constexpr QPageSize::PageSizeId kPapersOfAFile[] = {QPageSize::A4,     QPageSize::A3,
                                                    QPageSize::A5,     QPageSize::B5,
                                                    QPageSize::Letter, QPageSize::Legal};

// The trays of a driver by its own numbers; the toolkit gives names to some of them.
QString TrayName(QPrinter::PaperSource tray) {
  switch (tray) {
    case QPrinter::Upper:
      return "Upper";
    case QPrinter::Lower:
      return "Lower";
    case QPrinter::Middle:
      return "Middle";
    case QPrinter::Manual:
      return "Manual";
    case QPrinter::Envelope:
      return "Envelope";
    case QPrinter::EnvelopeManual:
      return "Envelope, manual";
    case QPrinter::Auto:
      return "Automatic";
    case QPrinter::Tractor:
      return "Tractor";
    case QPrinter::SmallFormat:
      return "Small format";
    case QPrinter::LargeFormat:
      return "Large format";
    case QPrinter::LargeCapacity:
      return "Large capacity";
    case QPrinter::Cassette:
      return "Cassette";
    case QPrinter::FormSource:
      return "By the paper";
    default:
      return QString("Tray %1").arg(static_cast<int>(tray));
  }
}

}  // namespace

PaperDialog::PaperDialog(QPrinter& printer, QWidget* owner)
    : QDialog(owner), printer_(printer), ui_(std::make_unique<Ui::frmPaper>()) {
  ui_->setupUi(this);
  ShowSizes();
  ShowTrays();
  ShowSidesAndColours();
  connect(ui_->buttons, &QDialogButtonBox::accepted, this, &PaperDialog::accept);
  connect(ui_->buttons, &QDialogButtonBox::rejected, this, &PaperDialog::reject);
}

PaperDialog::~PaperDialog() = default;

void PaperDialog::ShowSizes() {
  if (printer_.outputFormat() == QPrinter::PdfFormat) {
    for (const auto size : kPapersOfAFile) sizes_.emplace_back(size);
  } else {
    const auto known = QPrinterInfo::printerInfo(printer_.printerName()).supportedPageSizes();
    sizes_.assign(known.begin(), known.end());
  }
  const QPageSize now = printer_.pageLayout().pageSize();
  bool listed = false;
  for (const QPageSize& size : sizes_) listed = listed || size.isEquivalentTo(now);
  if (!listed) sizes_.insert(sizes_.begin(), now);
  for (const QPageSize& size : sizes_) {
    ui_->pageSizeCombo->addItem(size.name());
    if (size.isEquivalentTo(now)) {
      ui_->pageSizeCombo->setCurrentIndex(ui_->pageSizeCombo->count() - 1);
    }
  }
  const bool across = printer_.pageLayout().orientation() == QPageLayout::Landscape;
  (across ? ui_->landscape : ui_->portrait)->setChecked(true);
}

void PaperDialog::ShowTrays() {
  const bool file = printer_.outputFormat() == QPrinter::PdfFormat;
  const auto trays = file ? QList<QPrinter::PaperSource>() : printer_.supportedPaperSources();
  for (const auto tray : trays) {
    ui_->paperSource->addItem(TrayName(tray), static_cast<int>(tray));
    if (tray == printer_.paperSource()) {
      ui_->paperSource->setCurrentIndex(ui_->paperSource->count() - 1);
    }
  }
  ui_->paperSource->setVisible(!trays.isEmpty());
  ui_->sourceLabel->setVisible(!trays.isEmpty());
}

void PaperDialog::ShowSidesAndColours() {
  const bool file = printer_.outputFormat() == QPrinter::PdfFormat;
  const QPrinterInfo info =
      file ? QPrinterInfo() : QPrinterInfo::printerInfo(printer_.printerName());
  const auto sides = info.supportedDuplexModes();
  ui_->duplexLong->setEnabled(sides.contains(QPrinter::DuplexLongSide));
  ui_->duplexShort->setEnabled(sides.contains(QPrinter::DuplexShortSide));
  ui_->sidesBox->setVisible(ui_->duplexLong->isEnabled() || ui_->duplexShort->isEnabled());
  if (printer_.duplex() == QPrinter::DuplexLongSide) ui_->duplexLong->setChecked(true);
  if (printer_.duplex() == QPrinter::DuplexShortSide) ui_->duplexShort->setChecked(true);
  ui_->color->setEnabled(file || info.supportedColorModes().contains(QPrinter::Color));
  const bool grey = printer_.colorMode() == QPrinter::GrayScale || !ui_->color->isEnabled();
  (grey ? ui_->grayscale : ui_->color)->setChecked(true);
}

void PaperDialog::accept() {
  const int size = ui_->pageSizeCombo->currentIndex();
  if (size >= 0) printer_.setPageSize(sizes_[static_cast<size_t>(size)]);
  printer_.setPageOrientation(ui_->landscape->isChecked() ? QPageLayout::Landscape
                                                          : QPageLayout::Portrait);
  if (ui_->paperSource->count() > 0) {
    printer_.setPaperSource(
        static_cast<QPrinter::PaperSource>(ui_->paperSource->currentData().toInt()));
  }
  if (ui_->sidesBox->isVisible()) {
    printer_.setDuplex(ui_->duplexLong->isChecked()    ? QPrinter::DuplexLongSide
                       : ui_->duplexShort->isChecked() ? QPrinter::DuplexShortSide
                                                       : QPrinter::DuplexNone);
  }
  printer_.setColorMode(ui_->grayscale->isChecked() ? QPrinter::GrayScale : QPrinter::Color);
  QDialog::accept();
}

}  // namespace logchecker
