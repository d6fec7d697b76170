// A view's model on the carts that a search found.
#pragma once

#include <QAbstractTableModel>

#include "cartstore/FoundCarts.h"

namespace logchecker {

class FoundCartsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // `carts` must outlive the model.
  explicit FoundCartsModel(const FoundCarts& carts, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

  // Takes over what has changed: all of it, or the rows added at the end.
  void Refresh();
  void TakeAddedRows();

 private:
  const FoundCarts& carts_;
  int rows_ = 0;
};

}  // namespace logchecker
