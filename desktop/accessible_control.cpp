// States, actions, and which label names which field.
#include "desktop/accessible_control.h"

#include "desktop/covered.h"

namespace desktop {
namespace {

bool Names(const forms::Control& label, const forms::Control& field) {
  return field.Kind == forms::Kind::TextBox && static_cast<const forms::TextBox&>(field).Tag == &label;
}

}  // namespace

QAccessible::State ControlInterface::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  if (control_.Visible() && Covered(control_)) state.invisible = state.offscreen = true;
  return state;
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> ControlInterface::relations(
    QAccessible::Relation match) const {
  auto found = QAccessibleWidget::relations(match);
  auto add = [&](const forms::Control& other, QAccessible::Relation relation) {
    ControlView* view = match & relation ? Form().ViewOf(other) : nullptr;
    if (view) found.append({QAccessible::queryAccessibleInterface(&view->Widget()), relation});
  };
  for (const forms::Control* other : control_.Owner().Controls()) {
    if (Names(*other, control_)) add(*other, QAccessible::Label);
    if (Names(control_, *other)) add(*other, QAccessible::Labelled);
  }
  return found;
}

QAccessible::State ButtonInterface::state() const {
  QAccessible::State state = ControlInterface::state();
  state.checkable = Button().isCheckable();
  state.checked = Button().isChecked();
  state.pressed = Button().isDown();
  return state;
}

QString ButtonInterface::OwnAction() const {
  return Button().isCheckable() ? QAccessibleActionInterface::toggleAction()
                                : QAccessibleActionInterface::pressAction();
}

QStringList ButtonInterface::actionNames() const {
  QStringList others = ControlInterface::actionNames();
  return widget()->isEnabled() ? QStringList(OwnAction()) + others : others;
}

void ButtonInterface::doAction(const QString& action) {
  if (action != OwnAction()) {
    ControlInterface::doAction(action);
  } else if (widget()->isEnabled()) {
    Button().click();
  }
}

QStringList ButtonInterface::keyBindingsForAction(const QString& action) const {
  char letter = forms::HotKey(static_cast<const forms::Captioned&>(Control()).Caption());
  if (action != OwnAction() || !letter) return ControlInterface::keyBindingsForAction(action);
  return {QStringLiteral("Alt+%1").arg(QLatin1Char(letter))};
}

}  // namespace desktop
