// The toolkit has no announcements of its own here: the words are the name of a thing that shows anew.
#include "desktop/announcer.h"

#include <QApplication>
#include <QTimer>
#include <utility>

namespace desktop {
namespace {

// A window that others follow at once is at the front for a moment only, and a screen reader has much to take in then.
constexpr int AfterFront = 500;  // milliseconds

// Words that wait for their window to come to the front; a report alone may write hundreds behind its box.
constexpr qsizetype MostHeld = 20;

// Between the words so far and the next.
QString Joint(const QString& words) {
  bool quoted = words.endsWith(u'"') || words.endsWith(u'\u201d');
  return words.back().isPunct() && !quoted ? QStringLiteral(" ") : QStringLiteral(". ");
}

}  // namespace

Announcer::Announcer(QWidget& window) : window_(window) { window.installEventFilter(this); }

bool Announcer::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::WindowActivate) QTimer::singleShot(AfterFront, this, [this] { Say(); });
  return false;
}

void Announcer::Add(const QString& words) {
  if (words.isEmpty()) return;
  added_.removeAll(words);
  added_.append(words);
  if (added_.size() > MostHeld) added_.removeFirst();
}

void Announcer::Say() {
  bool at_front = window_.isActiveWindow() || QApplication::activeModalWidget();
  if (added_.isEmpty() || !at_front) return;
  words_.clear();
  for (const QString& words : std::exchange(added_, {})) words_ += words_.isEmpty() ? words : Joint(words_) + words;
  ++times_;
  QAccessibleEvent named(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&named);
  QAccessibleEvent shown(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

QString AnnouncerInterface::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? announcer_.Words() : QString();
}

}  // namespace desktop
