// Lays out the line, shows the newest notice or the work, and announces it.
#include "desktop/notice_line.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace desktop {
namespace {

constexpr int SmallestFont = 11;  // pixels
constexpr int BarWidth = 180;
constexpr int BarSteps = 1000;
constexpr QColor Back(0xFF, 0xF4, 0xCE);

// An alert: screen readers read its name out when it appears.
QAccessibleInterface* MakeAlert(const QString&, QObject* object) {
  auto* line = dynamic_cast<NoticeLine*>(object);
  return line ? new QAccessibleWidget(line, QAccessible::AlertMessage) : nullptr;
}

void InstallAlerts() {
  static const bool installed = (QAccessible::installFactory(MakeAlert), true);
  static_cast<void>(installed);
}

}  // namespace

NoticeLine::NoticeLine(std::function<void()> changed)
    : changed_(std::move(changed)), action_buttons_{&first_, &second_} {
  InstallAlerts();
  setAttribute(Qt::WA_NoMousePropagation);
  setFocusPolicy(Qt::NoFocus);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setAutoFillBackground(true);
  setPalette(QPalette(Qt::black, Back, Qt::white, Qt::darkGray, Qt::gray, Qt::black, Qt::white));
  text_.setTextFormat(Qt::PlainText);
  text_.setWordWrap(true);
  text_.setFocusPolicy(Qt::NoFocus);
  bar_.setRange(0, BarSteps);
  bar_.setFixedWidth(BarWidth);
  close_.setText(QStringLiteral("\u00D7"));
  close_.setAutoRaise(true);
  close_.setToolTip(QStringLiteral("Put away"));
  close_.setAccessibleName(QStringLiteral("Put away"));
  auto row = std::make_unique<QHBoxLayout>();
  row->setContentsMargins(8, 3, 4, 3);
  row->addWidget(&text_, 1);
  row->addWidget(&bar_);
  for (QAbstractButton* button : {static_cast<QAbstractButton*>(&first_), static_cast<QAbstractButton*>(&second_),
                                  static_cast<QAbstractButton*>(&close_)}) {
    button->setFocusPolicy(Qt::NoFocus);
    row->addWidget(button);
  }
  setLayout(row.release());
  for (std::size_t action = 0; action < action_buttons_.size(); ++action)
    connect(action_buttons_.at(action), &QAbstractButton::clicked, this, [this, action] { RunAction(action); });
  connect(&close_, &QAbstractButton::clicked, this, [this] { Clear(notices_.back().Key); });
}

void NoticeLine::Show(const QString& text, std::vector<Action> actions, const QString& key) {
  Remove(key);
  notices_.push_back({text, std::move(actions), key});
  Refresh();
}

void NoticeLine::Progress(const QString& work, double done) {
  work_ = Work{work, done};
  Refresh();
}

void NoticeLine::EndProgress() {
  if (!std::exchange(work_, std::nullopt)) return;
  Refresh();
}

void NoticeLine::Clear(const QString& key) {
  std::size_t before = notices_.size();
  Remove(key);
  if (notices_.size() != before) Refresh();
}

void NoticeLine::Remove(const QString& key) {
  std::erase_if(notices_, [&](const Notice& notice) { return notice.Key == key; });
}

// The action may replace or clear the notice that it belongs to.
void NoticeLine::RunAction(std::size_t action) {
  std::function<void()> run = notices_.back().Actions.at(action).Run;
  run();
}

void NoticeLine::Refresh() {
  const Notice* notice = work_ || notices_.empty() ? nullptr : &notices_.back();
  bar_.setVisible(work_.has_value());
  close_.setVisible(notice != nullptr);
  for (std::size_t action = 0; action < action_buttons_.size(); ++action) {
    bool there = notice && action < notice->Actions.size();
    action_buttons_.at(action)->setVisible(there);
    if (there) action_buttons_.at(action)->setText(notice->Actions[action].Caption);
  }
  if (work_) {
    bar_.setValue(static_cast<int>(std::lround(std::clamp(work_->Done, 0.0, 1.0) * BarSteps)));
    bar_.setAccessibleName(work_->Text);
  }
  QString text = work_ ? work_->Text : notice ? notice->Text : QString();
  bool news = text != text_.text();
  text_.setText(text);
  changed_();
  if (news && !text.isEmpty()) Announce(text);
}

void NoticeLine::Announce(const QString& text) {
  setAccessibleName(text);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void NoticeLine::Scale(const Grid& grid) {
  QFont scaled = font();
  scaled.setPixelSize(std::max(grid.Pixels(TextPoints), SmallestFont));
  if (scaled != font()) setFont(scaled);
}

int NoticeLine::HeightFor(int width) const {
  if (Empty()) return 0;
  ensurePolished();
  layout()->activate();
  return layout()->totalHeightForWidth(width);
}

}  // namespace desktop
