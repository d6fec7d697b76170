// A view's model on a plain list. A text with a remark is set off, and tells the remark in its tool
// tip, which names column and row too, and to those who can't see it.
#pragma once

#include "common/ListView.h"
#include "common/ui/RowsModel.h"

namespace logchecker {

class ListViewModel final : public RowsModel {
  Q_OBJECT

 public:
  // `list` must outlive the model.
  explicit ListViewModel(const ListView& list, QObject* parent = nullptr);

  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  int CountRows() const override;
  int CountColumns() const override;

  const ListView& list_;
};

}  // namespace logchecker
