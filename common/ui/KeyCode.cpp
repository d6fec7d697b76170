#include "common/ui/KeyCode.h"

#include <QKeyEvent>

namespace logchecker {

namespace {

struct KeyNumber {
  int key;
  int32_t number;
};

constexpr KeyNumber kNumbers[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9}, {Qt::Key_Return, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},  {Qt::Key_Alt, 18},    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20}, {Qt::Key_Enter, 13},    {Qt::Key_Escape, 27}, {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},    {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},  {Qt::Key_Down, 40},
    {Qt::Key_Execute, 43},  {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46}, {Qt::Key_Plus, 107},
    {Qt::Key_Minus, 109},
};

}  // namespace

int32_t KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F16) return 112 + key - Qt::Key_F1;
  for (const KeyNumber& row : kNumbers) {
    if (row.key == key) return row.number;
  }
  return 0;
}

int32_t ShiftStateOf(const QKeyEvent& event) {
  int32_t state = 0;
  if (event.modifiers().testFlag(Qt::ShiftModifier)) state += 1;
  if (event.modifiers().testFlag(Qt::ControlModifier)) state += 2;
  if (event.modifiers().testFlag(Qt::AltModifier)) state += 4;
  return state;
}

}  // namespace logchecker
