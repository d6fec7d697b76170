// A view's model on a plain list.
#pragma once

#include <QAbstractTableModel>

#include "common/ListView.h"

namespace logchecker {

class ListViewModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // `list` must outlive the model.
  explicit ListViewModel(const ListView& list, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

  // Takes over what has changed in the list: all of it, or the rows added at its end.
  void Refresh();
  void TakeAddedRows();

 private:
  const ListView& list_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace logchecker
