// Tells screen readers what comes up on a window without getting the focus: films, headings, counts, notices.
#pragma once

#include <QAccessibleObject>
#include <QStringList>
#include <QWidget>

namespace desktop {

class Announcer final : public QObject {
 public:
  explicit Announcer(QWidget& window);
  // Empty words are left out.
  void Add(const QString& words);
  // Says what was added since the last call, if anything; the same words again are said again. A window that has not
  // come to the front yet says it then: what a screen reader hears before that, it drops.
  void Say();
  // What was said last, and how often something was said.
  const QString& Words() const { return words_; }
  unsigned Times() const { return times_; }
  QWidget& Window() const { return window_; }
  bool eventFilter(QObject* window, QEvent* event) override;

 private:
  QWidget& window_;
  QStringList added_;
  QString words_;
  unsigned times_ = 0;
};

// A notification: a screen reader speaks its name each time it shows.
class AnnouncerInterface final : public QAccessibleObject {
 public:
  explicit AnnouncerInterface(Announcer& announcer) : QAccessibleObject(&announcer), announcer_(announcer) {}
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }
  QString text(QAccessible::Text kind) const override;
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&announcer_.Window()); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

 private:
  Announcer& announcer_;
};

}  // namespace desktop
