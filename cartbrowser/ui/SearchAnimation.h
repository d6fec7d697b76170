// The animation that runs while the store is searched.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

namespace logchecker {

class AnimationPlayer;

// Shows its film over and over while it plays, and its first picture otherwise.
class SearchAnimation : public QWidget {
  Q_OBJECT

 public:
  explicit SearchAnimation(QWidget* parent = nullptr);
  ~SearchAnimation() override;

  // Opens a film, given by its station path. False where there is none, or nothing to play it.
  bool Open(const std::string& file);
  void Play();
  void Stop();
  // Lets go of the film.
  void Close();

  QSize sizeHint() const override;

 signals:
  // A film that was opened can't be played after all.
  void failed();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowPicture(const QImage& picture);

  std::unique_ptr<AnimationPlayer> player_;
  QImage first_;
  QImage picture_;
  bool playing_ = false;
};

}  // namespace logchecker
