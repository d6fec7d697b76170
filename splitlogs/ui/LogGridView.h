// gridLog as the user sees it. A selection that stands in for a break that is not there says so, in
// a tool tip and to those who can't see it. The grid holds current row, selection and top row; the
// view follows it, and tells it what the user does.
#pragma once

#include <QTableView>

#include "common/ui/AccessibleTable.h"
#include "splitlogs/ui/LogGridModel.h"

namespace logchecker {

class LogGridView : public QTableView, public RowChooser, public LogGridObserver {
  Q_OBJECT

 public:
  // `grid` must outlive the view.
  explicit LogGridView(LogGrid& grid, QWidget* parent = nullptr);
  ~LogGridView() override;

  // Makes column 1 fill the view, by the grid's own figures.
  void FillDescriptionColumn();

  void GridChanged() override;
  void SelectionChanged() override;

  void MakeRowCurrent(int row) override;
  void ChooseRow(int row) override;

 signals:
  // A click of the left button anywhere on the grid, whose row is the one that was pressed, or
  // Enter in it. A double click is one click.
  void breakChosen();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void updateGeometries() override;

 private:
  void SetUpColumns();
  void FitFont();
  void OnScrolled(int value);
  void ShowMiss();
  void Describe();

  LogGrid& grid_;
  QString miss_;  // what the selection stands in for, in words; empty where it is a hit
  LogGridModel* model_;
  bool following_ = false;  // the view is being brought in line with the grid
  bool pressed_ = false;    // a click has begun
};

}  // namespace logchecker
