// A window that sees keys before its controls do.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <functional>

namespace logchecker {

// The character that a key types, which Escape and backspace do too; 0 for none. One typed with Alt
// is for the access keys.
char CharacterOf(const QKeyEvent& key);

// Lives as long as its window.
class KeyPreview : public QObject {
 public:
  // True when the key is swallowed.
  using Handler = std::function<bool(const QKeyEvent&)>;

  KeyPreview(QWidget& window, Handler handler);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& window_;
  Handler handler_;
};

}  // namespace logchecker
