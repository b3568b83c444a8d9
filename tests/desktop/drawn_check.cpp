// Compares windows and controls with their widgets.
#include "tests/desktop/drawn_check.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>

#include "desktop/text.h"
#include "tests/story/player.h"

namespace story {
namespace {

using desktop::Shown;

void See(bool as_it_should_be, const std::string& name, const std::string& what) {
  if (!as_it_should_be) throw Unplayable{"expected " + name + " drawn as the form has it, got another " + what};
}

void CheckContent(const forms::Control& control, QWidget& widget) {
  if (control.Kind == forms::Kind::TextBox) {
    const auto& box = static_cast<const forms::TextBox&>(control);
    const auto& field = dynamic_cast<QLineEdit&>(widget);
    See(field.text() == Shown(box.Text()), control.Name, "text: " + field.text().toStdString());
    See((field.alignment() & Qt::AlignLeft) ==
            (box.Alignment() == forms::Align::Left ? Qt::AlignLeft : Qt::Alignment()),
        control.Name, "alignment");
  } else if (control.Kind == forms::Kind::ListBox) {
    const auto& list = static_cast<const forms::ListBox&>(control);
    const auto& rows = dynamic_cast<QListWidget&>(widget);
    See(rows.count() == static_cast<int>(list.Items().size()), control.Name, "number of items");
    for (int row = 0; row < rows.count(); ++row)
      See(rows.item(row)->text() == Shown(list.Items()[static_cast<std::size_t>(row)]), control.Name, "item");
    See(rows.currentRow() == list.ListIndex(), control.Name, "selection");
  } else if (control.Kind == forms::Kind::OptionButton) {
    bool value = static_cast<const forms::OptionButton&>(control).Value();
    See(dynamic_cast<QAbstractButton&>(widget).isChecked() == value, control.Name, "value");
  } else if (control.Kind == forms::Kind::CheckBox) {
    bool value = static_cast<const forms::CheckBox&>(control).Value();
    See(dynamic_cast<QAbstractButton&>(widget).isChecked() == value, control.Name, "value");
  }
}

void CheckControl(const forms::Control& control, const desktop::FormView& form) {
  if (control.Kind == forms::Kind::MenuItem) return;
  desktop::ControlView* view = form.ViewOf(control);
  See(control.Visible() == (view && view->Widget().isVisible()), control.Name, "visibility");
  if (!control.Visible()) return;
  See(control.Enabled() == view->Widget().isEnabled(), control.Name, "enabled state");
  CheckContent(control, view->Widget());
}

}  // namespace

void CheckDrawn(const forms::WindowStack& windows, const desktop::StackView& view) {
  for (const forms::Window* window : windows.All()) {
    desktop::FormView* form = view.ViewOf(*window);
    See(window->InSight() == (form && form->isVisible()), window->Name, "visibility");
    if (!window->InSight()) continue;
    See(form->windowTitle() == Shown(window->Caption()), window->Name, "title: " + form->windowTitle().toStdString());
    for (const forms::Control* control : window->Controls()) CheckControl(*control, *form);
    QWidget* holder = window->Focus() ? &form->ViewOf(*window->Focus())->Widget() : static_cast<QWidget*>(form);
    See(form->focusWidget() == holder, window->Name, "focus");
  }
}

}  // namespace story
