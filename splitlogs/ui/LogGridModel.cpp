#include "splitlogs/ui/LogGridModel.h"

#include <QColor>

#include "common/ui/StationQString.h"
#include "common/ui/SystemColours.h"

namespace logchecker {

LogGridModel::LogGridModel(const LogGrid& grid, QObject* parent) : RowsModel(parent), grid_(grid) {
  Refresh();
}

int LogGridModel::CountRows() const { return grid_.Rows() - 1; }

int LogGridModel::CountColumns() const { return kLogColumns; }

QVariant LogGridModel::data(const QModelIndex& index, int role) const {
  const int32_t row = index.row() + 1;
  const int32_t column = index.column();
  // While the grid is filled it may have fewer rows than the view still believes.
  if (!index.isValid() || row >= grid_.Rows()) return {};
  const int32_t colour = grid_.BackColour(row, column);
  switch (role) {
    case Qt::DisplayRole:
      return TextOf(row, column);
    case Qt::AccessibleTextRole:
      if (colour == kRed) return TextOf(row, column) + ", " + tr("no audio");
      return grid_.Text(row, column).empty() ? tr("blank") : TextOf(row, column);
    case Qt::BackgroundRole:
      return colour == kGridOwnColour ? QVariant() : QVariant(ToQColor(colour, {}));
    case Qt::ForegroundRole:
      // Black is readable on the white and on the red, whatever the desktop's own colours.
      return colour == kGridOwnColour ? QVariant() : QVariant(QColor(Qt::black));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(Qt::Alignment(column == kLengthColumn
                                                   ? Qt::AlignRight | Qt::AlignVCenter
                                                   : Qt::AlignLeft | Qt::AlignVCenter));
    default:
      return {};
  }
}

QString LogGridModel::TextOf(int32_t row, int32_t column) const {
  return ToQString(grid_.Text(row, column));
}

QVariant LogGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= kLogColumns) return {};
  if (role == Qt::DisplayRole) return TextOf(0, section);
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue(Qt::Alignment(section == kLengthColumn
                                                 ? Qt::AlignRight | Qt::AlignVCenter
                                                 : Qt::AlignLeft | Qt::AlignVCenter));
  }
  return {};
}

}  // namespace logchecker
