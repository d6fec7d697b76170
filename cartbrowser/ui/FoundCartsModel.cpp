#include "cartbrowser/ui/FoundCartsModel.h"

#include "common/ui/StationQString.h"
#include "common/ui/VisibleText.h"

namespace logchecker {

FoundCartsModel::FoundCartsModel(const FoundCarts& carts, QObject* parent)
    : RowsModel(parent), carts_(carts) {
  Refresh();
}

int FoundCartsModel::CountRows() const { return static_cast<int>(carts_.Count()); }

int FoundCartsModel::CountColumns() const { return static_cast<int>(kFoundColumnCount); }

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
  const QString caption = ToQString(FoundColumnHeaders(0)[column].caption);
  if (role == Qt::DisplayRole) return caption;
  if (role == Qt::ToolTipRole) {
    return QString("%1: sort by it with a click or Ctrl+%2").arg(caption).arg(section);
  }
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

}  // namespace logchecker
