// A view's model on gridLog. Row r of the grid is row r - 1 here, since the header is the view's.
#pragma once

#include "common/ui/RowsModel.h"
#include "splitlogs/LogGrid.h"

namespace logchecker {

class LogGridModel final : public RowsModel {
  Q_OBJECT

 public:
  // `grid` must outlive the model.
  explicit LogGridModel(const LogGrid& grid, QObject* parent = nullptr);

  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  int CountRows() const override;
  int CountColumns() const override;
  QString TextOf(int32_t row, int32_t column) const;

  const LogGrid& grid_;
};

}  // namespace logchecker
