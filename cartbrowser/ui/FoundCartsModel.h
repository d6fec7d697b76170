// A view's model on the carts that a search found.
#pragma once

#include "cartbrowser/FoundCarts.h"
#include "common/ui/RowsModel.h"

namespace logchecker {

class FoundCartsModel final : public RowsModel {
  Q_OBJECT

 public:
  // `carts` must outlive the model.
  explicit FoundCartsModel(const FoundCarts& carts, QObject* parent = nullptr);

  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  int CountRows() const override;
  int CountColumns() const override;

  const FoundCarts& carts_;
};

}  // namespace logchecker
