// All drawn windows of the program, and the one path on which the user's events reach the forms.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "desktop/form_view.h"
#include "desktop/notice_line.h"
#include "desktop/window_places.h"
#include "forms/window_stack.h"

namespace desktop {

class StackView {
 public:
  // Delivers one user event to the program.
  using Delivery = std::function<void(const std::function<void()>&)>;
  StackView(forms::WindowStack& windows, Delivery deliver);

  // From now on windows open where the user left them. Call before the first Sync.
  void RememberPlaces(WindowPlaces& places) { places_ = &places; }
  // nullptr if places are not remembered.
  WindowPlaces* Places() const { return places_; }

  // Delivers the event, then updates what is drawn. Does nothing while another event runs.
  void Deliver(const std::function<void()>& event);
  // Updates all drawn windows, and says what has come up; a window is first drawn when it becomes visible.
  void Sync();
  // News: what has come up besides what the windows themselves write, said with it; "" for nothing.
  void SayAlso(std::function<QString()> news) { news_ = std::move(news); }
  // From now on the windows stay as they are drawn, and no event is delivered.
  void StopDrawing() { stopped_ = true; }
  bool Stopped() const { return stopped_; }
  // An event runs.
  bool Delivering() const { return delivering_; }
  // Brings the front window before those of other programs, and a box that is open over it.
  void BringToFront();
  // Updates and paints before it returns; input is held back meanwhile.
  void Paint();

  // nullptr if the window has not been drawn yet.
  FormView* ViewOf(const forms::Window& window) const;
  // The drawn front window; nullptr if none is visible.
  FormView* Front() const;

  // The line of notices below the front window. It stays with its window until that is hidden.
  NoticeLine& Notices();
  void ClearNotice(const QString& key);
  // How far long work of the running event is, from 0 to 1. Shown once the work has taken half a second since the first
  // call, until the event is over.
  void Progress(std::string_view work, double done);
  void EndProgress();

 private:
  void Draw();
  void Draw(forms::Window& window);
  void Say();
  void HearNotice();
  void PlaceNotices();

  forms::WindowStack& windows_;
  WindowPlaces* places_ = nullptr;
  Delivery deliver_;
  std::function<QString()> news_;
  bool delivering_ = false;
  bool stopped_ = false;
  const forms::Window* front_ = nullptr;
  std::unordered_map<const forms::Window*, std::unique_ptr<FormView>> views_;
  FormView* noticed_ = nullptr;  // the window with the line
  QString notice_said_;
  // After the views: it goes before the window that it lies in.
  std::unique_ptr<NoticeLine> notices_;
  std::optional<std::chrono::steady_clock::time_point> work_since_;
  std::chrono::steady_clock::time_point progress_shown_;
};

}  // namespace desktop
