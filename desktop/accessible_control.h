// The controls of a window as screen readers know them.
#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

#include "desktop/control_view.h"
#include "desktop/form_view.h"

namespace desktop {

// A label, a strip or a picture; below, what all controls share: no control that lies covered is said to show.
class ControlInterface : public QAccessibleWidget {
 public:
  ControlInterface(ControlView& view, QAccessible::Role role)
      : QAccessibleWidget(&view.Widget(), role), control_(view.Control()) {}
  QAccessible::State state() const override;
  // A field has its label, and a label its field.
  QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
      QAccessible::Relation match = QAccessible::AllRelations) const override;

 protected:
  forms::Control& Control() const { return control_; }
  FormView& Form() const { return dynamic_cast<FormView&>(*widget()->window()); }

 private:
  forms::Control& control_;
};

// A button, an option button or a check box.
class ButtonInterface final : public ControlInterface {
 public:
  using ControlInterface::ControlInterface;
  QAccessible::State state() const override;
  QStringList actionNames() const override;
  void doAction(const QString& action) override;
  QStringList keyBindingsForAction(const QString& action) const override;

 private:
  QAbstractButton& Button() const { return dynamic_cast<QAbstractButton&>(*widget()); }
  QString OwnAction() const;
};

}  // namespace desktop
