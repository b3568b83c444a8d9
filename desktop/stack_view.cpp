// Draws the windows in stacking order.
#include "desktop/stack_view.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "desktop/text.h"
#include "forms/window.h"

namespace desktop {
namespace {

constexpr std::chrono::milliseconds LongWork(500);
constexpr std::chrono::milliseconds ProgressInterval(100);

// Windows that always lie in front of another. "" for the others.
struct Over {
  std::string_view Window, Below;
};
constexpr Over Overs[] = {{"frmQuickStart", "frmPage1"}, {"frmCopy", "frmPage1"}};

std::string_view LiesOver(const forms::Window& window) {
  for (const Over& over : Overs)
    if (over.Window == window.Name) return over.Below;
  return "";
}

}  // namespace

StackView::StackView(forms::WindowStack& windows, Delivery deliver) : windows_(windows), deliver_(std::move(deliver)) {}

void StackView::Deliver(const std::function<void()>& event) {
  if (delivering_ || stopped_) return;
  delivering_ = true;
  deliver_(event);
  EndProgress();
  delivering_ = false;
  Sync();
}

void StackView::Sync() {
  if (stopped_) return;
  Draw();
  if (FormView* front = news_ ? Front() : nullptr) front->Speech().Add(news_());
  Say();
}

void StackView::Say() {
  if (!delivering_) HearNotice();
  for (const auto& [window, view] : views_) view->Speech().Say();
}

// When the event is over: a box that follows at once would drown it.
void StackView::HearNotice() {
  QString notice = notices_ ? notices_->Text() : QString();
  FormView* with_line = noticed_ ? noticed_ : Front();
  if (std::exchange(notice_said_, notice) != notice && with_line) with_line->Speech().Add(notice);
}

void StackView::Draw() {
  // A desktop takes note of what a window lies over only if that is there when the window comes up.
  for (bool over_others : {false, true})
    for (forms::Window* window : windows_.All())
      if (LiesOver(*window).empty() != over_others) Draw(*window);
  PlaceNotices();
  const forms::Window* front = windows_.Front();
  if (std::exchange(front_, front) == front || !front) return;
  FormView& view = *ViewOf(*front);
  view.raise();
  view.activateWindow();
}

void StackView::Draw(forms::Window& window) {
  FormView* view = ViewOf(window);
  if (!view && window.InSight())
    view = views_.emplace(&window, std::make_unique<FormView>(window, *this)).first->second.get();
  if (!view) return;
  auto below = std::find_if(views_.begin(), views_.end(),
                            [&](const auto& other) { return other.first->Name == LiesOver(window); });
  if (window.InSight() && below != views_.end() && below->second->isVisible()) view->LieOver(*below->second);
  view->Sync();
}

void StackView::BringToFront() {
  QWidget* box = QApplication::activeModalWidget();
  for (QWidget* window : {static_cast<QWidget*>(Front()), box}) {
    if (!window) continue;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
  }
}

// What comes up in the middle of long work is said when it is over, but for what the program writes.
void StackView::Paint() {
  if (stopped_) return;
  Draw();
  Say();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

FormView* StackView::ViewOf(const forms::Window& window) const {
  auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second.get();
}

FormView* StackView::Front() const {
  const forms::Window* front = windows_.Front();
  return front ? ViewOf(*front) : nullptr;
}

NoticeLine& StackView::Notices() {
  // While an event runs, the Sync after it places the line: the window in front may still change.
  if (!notices_)
    notices_ = std::make_unique<NoticeLine>([this] {
      if (delivering_) return;
      PlaceNotices();
      Say();
    });
  return *notices_;
}

void StackView::ClearNotice(const QString& key) {
  if (notices_) notices_->Clear(key);
}

void StackView::PlaceNotices() {
  if (!notices_ || stopped_) return;
  FormView* wanted = nullptr;
  if (!notices_->Empty()) wanted = noticed_ && noticed_->Window().Visible() ? noticed_ : Front();
  if (noticed_ && noticed_ != wanted) noticed_->PlaceNotices(nullptr);
  noticed_ = wanted;
  if (wanted) {
    wanted->PlaceNotices(notices_.get());
  } else {
    notices_->hide();
  }
}

void StackView::Progress(std::string_view work, double done) {
  auto now = std::chrono::steady_clock::now();
  if (!work_since_) work_since_ = now;
  if (now - *work_since_ < LongWork || now - progress_shown_ < ProgressInterval) return;
  progress_shown_ = now;
  Notices().Progress(Shown(work), done);
  Paint();
}

void StackView::EndProgress() {
  work_since_.reset();
  if (notices_) notices_->EndProgress();
}

}  // namespace desktop
