#include "common/ui/RowsModel.h"

namespace logchecker {

int RowsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int RowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

void RowsModel::Refresh() {
  beginResetModel();
  rows_ = CountRows();
  columns_ = CountColumns();
  endResetModel();
}

void RowsModel::TakeAddedRows() {
  const int rows = CountRows();
  if (rows <= rows_) return;
  beginInsertRows({}, rows_, rows - 1);
  rows_ = rows;
  endInsertRows();
}

}  // namespace logchecker
