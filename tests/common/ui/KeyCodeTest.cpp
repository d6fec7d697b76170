// The numbers of keys.
#include "common/ui/KeyCode.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace logchecker {
namespace {

int32_t NumberOf(int key) { return KeyCodeOf(QKeyEvent(QEvent::KeyPress, key, {})); }

TEST(KeyCodeTest, EachKeyHasItsNumber) {
  const struct {
    int key;
    int32_t number;
  } rows[] = {
      {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
      {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
      {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},
      {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},
      {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
      {Qt::Key_Execute, 43},  {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},  {Qt::Key_0, 48},
      {Qt::Key_9, 57},        {Qt::Key_A, 65},        {Qt::Key_Z, 90},       {Qt::Key_Plus, 107},
      {Qt::Key_Minus, 109},   {Qt::Key_F1, 112},      {Qt::Key_F16, 127},    {Qt::Key_F17, 0},
      {Qt::Key_Slash, 0}};
  for (const auto& row : rows) EXPECT_EQ(NumberOf(row.key), row.number) << row.key;
}

TEST(KeyCodeTest, ShiftControlAndAltAddUp) {
  const auto state = [](Qt::KeyboardModifiers modifiers) {
    return ShiftStateOf(QKeyEvent(QEvent::KeyPress, Qt::Key_A, modifiers));
  };
  EXPECT_EQ(state({}), 0);
  EXPECT_EQ(state(Qt::ShiftModifier), 1);
  EXPECT_EQ(state(Qt::ControlModifier), 2);
  EXPECT_EQ(state(Qt::AltModifier), 4);
  EXPECT_EQ(state(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier), 7);
}

}  // namespace
}  // namespace logchecker
