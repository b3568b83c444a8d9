// Draws the windows in stacking order.
#include "desktop/stack_view.h"

#include <QApplication>
#include <utility>

#include "desktop/text.h"
#include "forms/window.h"

namespace desktop {
namespace {

constexpr std::chrono::milliseconds LongWork(500);
constexpr std::chrono::milliseconds ProgressInterval(100);

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
  QString notice = notices_ ? notices_->Text() : QString();
  FormView* with_line = noticed_ ? noticed_ : Front();
  if (std::exchange(notice_said_, notice) != notice && with_line) with_line->Speech().Add(notice);
  for (const auto& [window, view] : views_) view->Speech().Say();
}

void StackView::Draw() {
  for (forms::Window* window : windows_.All()) {
    std::unique_ptr<FormView>* view = nullptr;
    if (auto found = views_.find(window); found != views_.end()) {
      view = &found->second;
    } else if (window->InSight()) {
      view = &views_.emplace(window, std::make_unique<FormView>(*window, *this)).first->second;
    }
    if (view) (*view)->Sync();
  }
  PlaceNotices();
  const forms::Window* front = windows_.Front();
  const forms::Window* behind = std::exchange(front_, front);
  if (behind == front || !front) return;
  FormView& view = *ViewOf(*front);
  if (behind && behind->InSight()) view.LieOver(*ViewOf(*behind));
  view.raise();
  view.activateWindow();
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
