// A view's model on gridLog. Row r of the grid is row r - 1 here, since the header is the view's.
#pragma once

#include <QAbstractTableModel>

#include "splitlogs/LogGrid.h"

namespace logchecker {

class LogGridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // `grid` must outlive the model.
  explicit LogGridModel(const LogGrid& grid, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

  // Takes the grid over as it now is.
  void Refresh();

 private:
  QString TextOf(int32_t row, int32_t column) const;

  const LogGrid& grid_;
  int rows_ = 0;
};

}  // namespace logchecker
