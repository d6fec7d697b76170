#include "common/ui/ListViewModel.h"

#include <QFont>

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

}  // namespace

ListViewModel::ListViewModel(const ListView& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list) {
  Refresh();
}

int ListViewModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ListViewModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

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
      return text.isEmpty() ? QVariant() : AsToolTip(text);
    }
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

void ListViewModel::Refresh() {
  beginResetModel();
  rows_ = static_cast<int>(list_.ListItems.size());
  columns_ = static_cast<int>(list_.ColumnHeaders.size());
  endResetModel();
}

void ListViewModel::TakeAddedRows() {
  const int rows = static_cast<int>(list_.ListItems.size());
  if (rows <= rows_) return;
  beginInsertRows({}, rows_, rows - 1);
  rows_ = rows;
  endInsertRows();
}

}  // namespace logchecker
