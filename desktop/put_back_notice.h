// After a film was overwritten by another or by blanks: a notice that names it, with a button that puts it back.
#pragma once

#include <QString>
#include <functional>

#include "app/overwritten_films.h"

namespace desktop {

class StackView;

class PutBackNotice {
 public:
  explicit PutBackNotice(Program& program) : program_(program), films_(program) {}
  // The view whose line shows the notices.
  void DrawOn(StackView& view) { view_ = &view; }

  // Delivers the event to the program and offers to put back what it has overwritten.
  void Deliver(const std::function<void()>& event);

 private:
  void Offer(const QString& text, const store::KeptFilm& kept);
  void PutBack(const store::KeptFilm& kept);

  Program& program_;
  OverwrittenFilms films_;
  StackView* view_ = nullptr;
};

}  // namespace desktop
