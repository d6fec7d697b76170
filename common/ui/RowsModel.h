// What the models on the program's own lists and grids share: rows that a view is told of when the
// window says so, since the plain halves know no view.
#pragma once

#include <QAbstractTableModel>

namespace logchecker {

class RowsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  int rowCount(const QModelIndex& parent = {}) const final;
  int columnCount(const QModelIndex& parent = {}) const final;

  // Takes over what has changed: all of it, or the rows added at the end.
  void Refresh();
  void TakeAddedRows();

 protected:
  // How many there are by now.
  virtual int CountRows() const = 0;
  virtual int CountColumns() const = 0;

 private:
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace logchecker
