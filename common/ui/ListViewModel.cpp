#include "common/ui/ListViewModel.h"

#include <QFont>

#include "common/ui/CellDelegate.h"
#include "common/ui/StationQString.h"

namespace logchecker {

namespace {

Qt::Alignment AlignmentOf(ColumnAlignment alignment) {
  switch (alignment) {
    case ColumnAlignment::kRight:
      return Qt::AlignRight | Qt::AlignVCenter;
    case ColumnAlignment::kCentre:
      return Qt::AlignCenter;
    case ColumnAlignment::kLeft:
      break;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

QString WithRemark(const QString& text, const ListSubItem& subItem) {
  return subItem.Remark.empty() ? text : text + ", " + ToQString(subItem.Remark);
}

}  // namespace

ListViewModel::ListViewModel(const ListView& list, QObject* parent)
    : RowsModel(parent), list_(list) {
  Refresh();
}

int ListViewModel::CountRows() const { return static_cast<int>(list_.ListItems.size()); }

int ListViewModel::CountColumns() const { return static_cast<int>(list_.ColumnHeaders.size()); }

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<size_t>(index.row());
  const auto column = static_cast<size_t>(index.column());
  if (!index.isValid() || row >= list_.ListItems.size() || column >= list_.ColumnHeaders.size()) {
    return {};
  }
  const ListItem& item = list_.ListItems[row];
  const ListSubItem* subItem =
      column > 0 && column <= item.ListSubItems.size() ? &item.ListSubItems[column - 1] : nullptr;
  switch (role) {
    case Qt::DisplayRole:
      if (column == 0) return ToQString(item.text);
      return subItem != nullptr ? ToQString(subItem->text) : QString();
    case Qt::ToolTipRole: {
      const QString text = data(index, Qt::DisplayRole).toString();
      if (text.isEmpty()) return {};
      if (subItem == nullptr) return AsToolTip(text);
      return AsToolTip(ToQString(list_.ColumnHeaders[column].text + ", " + item.text + ": ") +
                       WithRemark(text, *subItem));
    }
    case Qt::AccessibleTextRole:
      return subItem != nullptr ? WithRemark(ToQString(subItem->text), *subItem) : QVariant();
    case kSetOffRole:
      return subItem != nullptr && !subItem->Remark.empty();
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(AlignmentOf(list_.ColumnHeaders[column].alignment));
    case Qt::FontRole: {
      QFont font;
      font.setBold(column == 0 ? item.Bold : subItem != nullptr && subItem->Bold);
      return font.bold() ? QVariant(font) : QVariant();
    }
    default:
      return {};
  }
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto column = static_cast<size_t>(section);
  if (orientation != Qt::Horizontal || column >= list_.ColumnHeaders.size()) return {};
  const ColumnHeader& header = list_.ColumnHeaders[column];
  if (role == Qt::DisplayRole) return ToQString(header.text);
  if (role == Qt::ToolTipRole) return AsToolTip(ToQString(header.text));
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(header.alignment));
  return {};
}

}  // namespace logchecker
