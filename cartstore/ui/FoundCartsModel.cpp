#include "cartstore/ui/FoundCartsModel.h"

#include "common/ui/StationQString.h"
#include "common/ui/VisibleText.h"

namespace logchecker {

FoundCartsModel::FoundCartsModel(const FoundCarts& carts, QObject* parent)
    : QAbstractTableModel(parent), carts_(carts) {}

int FoundCartsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int FoundCartsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kFoundColumnCount);
}

QVariant FoundCartsModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<size_t>(index.row());
  const auto column = static_cast<size_t>(index.column());
  if (!index.isValid() || row >= carts_.Count() || column >= kFoundColumnCount) return {};
  const QString text = ToVisibleQString(carts_.Row(row).texts[column]);
  if (role == Qt::DisplayRole) return text;
  // What is empty to the eye has a name all the same.
  if (role != Qt::AccessibleTextRole || !text.trimmed().isEmpty()) return {};
  return headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString() + " is empty";
}

QVariant FoundCartsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto column = static_cast<size_t>(section);
  if (orientation != Qt::Horizontal || column >= kFoundColumnCount) return {};
  if (role == Qt::DisplayRole) return ToQString(FoundColumnHeaders(0)[column].caption);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

void FoundCartsModel::Refresh() {
  beginResetModel();
  rows_ = static_cast<int>(carts_.Count());
  endResetModel();
}

void FoundCartsModel::TakeAddedRows() {
  const int rows = static_cast<int>(carts_.Count());
  if (rows <= rows_) return;
  beginInsertRows({}, rows_, rows - 1);
  rows_ = rows;
  endInsertRows();
}

}  // namespace logchecker
