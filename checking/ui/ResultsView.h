// lvwResults as the user sees it.
#pragma once

#include <QFont>
#include <QTreeView>
#include <cstdint>
#include <functional>
#include <vector>

#include "common/ListView.h"
#include "common/ui/AccessibleTable.h"
#include "common/ui/ListViewModel.h"

namespace logchecker {

class CompactHeader;

class ResultsView : public QTreeView, public RowChooser {
  Q_OBJECT

 public:
  // `list` must outlive the view.
  explicit ResultsView(ListView& list, QWidget* parent = nullptr);

  // Takes over the list as it is, or what has been added to it, which is painted at once.
  void Refresh();
  void TakeAddedRows();

  // The key of the selected row, of several the one that was last gone to; empty without any.
  std::string KeyOfSelectedRow() const;
  // Makes this row, counted from 0, the only selected one, and brings it into view.
  void SelectRow(size_t row);

  // Gives all columns but the first even shares of what that one leaves. The first one takes its
  // width from the list unless it is to keep the one that it has. A width that the user gives a
  // column goes into the list.
  //
  // Where a share is too narrow for a text, a condensed face is tried; then columns take what their
  // texts need, with a scroll bar below the list where the list is too narrow for that.
  void ShareColumns(bool keepFirst);

  // Makes room for the texts of the rows that have come since, unless the user has given a column a
  // width.
  void FitColumns();

  void MakeRowCurrent(int row) override;
  void ChooseRow(int row) override;

 signals:
  // A single click in the list, or Enter in it.
  void rowChosen();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  // A face of the list's font, and what each column but the first needs in it, in pixels.
  struct Face {
    QFont font;
    std::vector<int> widths;

    int Widest() const;
    int Sum() const;
  };

  void TakeTextSize();
  void MeasureTexts();
  std::vector<int> WidthsIn(const QFont& font, bool twoLines) const;
  void UseFace(const QFont& font);
  int32_t EvenShare() const;
  void GiveWidths();
  const Face* FirstFace(const std::function<bool(const Face&)>& fits) const;
  void GiveEvenShares(const Face& face, int32_t share);
  void GiveNeededWidths(const Face& face, int room);

  ListView& list_;
  ListViewModel* model_;
  CompactHeader* headings_;
  std::vector<Face> faces_;  // from the widest to the narrowest; empty while nothing is measured
  Face scrolled_;            // what is used with a scroll bar, with headings of one line
  bool sharing_ = false;     // the widths are the list's, not the user's
  bool dragged_ = false;     // the user has given a column its width
};

}  // namespace logchecker
