// The window in which a day, an hour and, when asked for, minutes are picked.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <string>

namespace Ui {
class frmSelectHour;
}

namespace logchecker {

class DayLabel;

// Takes its input and gives its answer through `Tag`: five digits of a day number, two of the hour,
// and with `AskMinutes` ":" and two of the minutes. An empty text on the way in starts from the
// present time; on the way out it means Cancel. The window is hidden, not destroyed, by OK and
// Cancel. Modal when shown through exec.
class frmSelectHour : public QDialog {
  Q_OBJECT

 public:
  explicit frmSelectHour(QWidget* parent = nullptr);
  ~frmSelectHour() override;

  std::string Tag;
  bool AskMinutes = false;  // cleared on OK and on Cancel

  void SetMinutes(const QString& minutes);
  // Turns the time's side off.
  void DisableTime();

  void RedrawMonth();
  void SelectDay();

  void reject() override;
  void setVisible(bool visible) override;

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Connect();
  void ColourCalendar();
  void FitTextSize();
  void BecomeActive();
  void TakeTag();
  void TakePresentTime();
  void ShowDate(int32_t day);
  void OnDayClicked(int16_t label);
  void OnDialPressed(const QPointF& position);
  void OnOk();
  void OnCancel();
  void Leave(const std::string& tag);
  DayLabel* LabelOfDay(int16_t label) const;
  QLabel* LabelOfWeekday(int weekday) const;
  DayLabel* LabelOfMarkedDay() const;
  void SetDayLook(int16_t label, bool reverse);
  bool FilterDayScroll(QEvent* event);
  void FilterYearScroll(QEvent* event);

  std::unique_ptr<Ui::frmSelectHour> ui_;
  bool shown_ = false;
  int32_t day_ = 0;   // while the window becomes active
  int32_t hour_ = 0;  // likewise
  int16_t SelectedDay = 1;
  int16_t SelectedMonth = 1;
  int16_t SelectedYear = kFirstYear;
  int16_t MarkedDay = 0;  // 0 for none
  int16_t DaysInMonth = 31;
  int16_t FirstDayOffset = 0;  // day d stands in label FirstDayOffset + d
  bool SuspendRedraw = false;
  bool DayHasFocus = false;
  bool Initialised = false;  // for this showing

  static constexpr int16_t kFirstYear = 1980;
};

}  // namespace logchecker
