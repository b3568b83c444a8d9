// Dispatches the toolkit's events and handles the mouse; user_keys.cpp handles the keys.
#include "desktop/user_input.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTimer>
#include <utility>

#include "desktop/button_view.h"
#include "desktop/field_view.h"
#include "desktop/form_view.h"
#include "desktop/list_view.h"
#include "desktop/notices.h"
#include "desktop/stack_view.h"
#include "desktop/text.h"

namespace desktop {
namespace {

FieldView* AsField(ControlView* view) { return dynamic_cast<FieldView*>(view); }

void SetDown(ControlView& view, bool down) {
  if (auto* button = dynamic_cast<QAbstractButton*>(&view.Widget())) button->setDown(down && button->isEnabled());
}

// Lets the widget handle the event natively, before the form gets it.
void LetEdit(FieldView& field, QEvent& event) { static_cast<QObject&>(field).event(&event); }

}  // namespace

UserInput::UserInput(FormView& form, StackView& stack) : form_(form), stack_(stack) {}

forms::Window& UserInput::Window() const { return form_.Window(); }

void UserInput::Watch(QWidget& bare) {
  bare.setMouseTracking(true);
  bare.installEventFilter(this);
}

void UserInput::Watch(ControlView& view) {
  for (QWidget* part : {&view.Widget(), &view.Face()}) {
    part->setAttribute(Qt::WA_NoMousePropagation);
    views_[part] = &view;
    part->removeEventFilter(this);
    Watch(*part);
  }
  WatchSignals(view);
}

// Changes that arrive as no event: clipboard, dragging, input methods, screen readers.
void UserInput::WatchSignals(ControlView& view) {
  if (FieldView* field = AsField(&view)) {
    connect(field, &QLineEdit::textChanged, this, [this, field](const QString& text) {
      if (field->Mirroring()) return;
      stack_.ClearNotice(CharacterNotice);
      Deliver(*field, [&] { Window().UserEdit(field->Box(), Stored(text)); });
    });
  } else if (auto* list = dynamic_cast<ListView*>(&view)) {
    connect(list, &QListWidget::currentRowChanged, this, [this, list](int row) {
      if (!list->Mirroring()) Deliver(*list, [&] { Window().UserPick(list->List(), row); });
    });
  } else if (auto* button = dynamic_cast<QAbstractButton*>(&view.Widget())) {
    connect(button, &QAbstractButton::clicked, this, [this, &view] { Click(view); });
  }
}

void UserInput::Deliver(ControlView& view, const std::function<void()>& event) {
  view.Forget();
  stack_.Deliver(event);
}

bool UserInput::eventFilter(QObject* watched, QEvent* event) {
  auto found = views_.find(watched);
  ControlView* view = found == views_.end() ? nullptr : found->second;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      return KeepsFromHotKeys(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyPress:
      event->accept();
      return KeyPressed(*static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod:
      return AsField(view) && Composed(*AsField(view), *static_cast<QInputMethodEvent*>(event));
    case QEvent::MouseButtonPress:
      return MousePressed(view, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      return MouseReleased(view, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return MouseMoved(view, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonDblClick:
      return MouseDoubled(view, *static_cast<QMouseEvent*>(event));
    case QEvent::ContextMenu:
      return ContextMenuAsked(view);
    case QEvent::FocusIn:
      // The toolkit moves its focus when a widget disappears, but the form's focus is authoritative.
      if (view && !view->Control().HoldsFocus()) QTimer::singleShot(0, this, [this] { stack_.Sync(); });
      return false;
    default:
      return false;
  }
}

bool UserInput::MousePressed(ControlView* view, QMouseEvent& mouse) {
  if (!view) return false;
  if (mouse.button() == Qt::RightButton) Deliver(*view, [&] { Window().UserRightClick(view->Control()); });
  if (mouse.button() != Qt::LeftButton) return !AsField(view);
  pressed_ = view;
  SetDown(*view, true);
  PickAt(*view, mouse.position().toPoint());
  return !AsField(view);
}

void UserInput::PickAt(ControlView& view, const QPoint& position) {
  auto* list = dynamic_cast<ListView*>(&view);
  if (!list) return;
  int row = list->indexAt(position).row();  // -1 outside the items
  Deliver(view, [&] { Window().UserPick(list->List(), row); });
}

bool UserInput::MouseReleased(ControlView* view, QMouseEvent& mouse) {
  if (!view || mouse.button() != Qt::LeftButton) return false;
  if (AsField(view)) LetEdit(*AsField(view), mouse);
  SetDown(*view, false);
  bool inside = view->Face().rect().contains(mouse.position().toPoint());
  bool whole = std::exchange(pressed_, nullptr) == view && inside;
  if (whole && view->Control().Kind != forms::Kind::ListBox) Click(*view);
  mouse.accept();
  return true;
}

void UserInput::Click(ControlView& view) {
  FieldView* field = AsField(&view);
  if (field) field->SetCaretByMouse(true);
  Deliver(view, [&] { Window().UserClick(view.Control()); });
  if (!field) return;
  field->SetCaretByMouse(false);
  if (!view.Control().HoldsFocus()) field->deselect();
}

bool UserInput::MouseMoved(ControlView* view, QMouseEvent& mouse) {
  if (view && AsField(view)) LetEdit(*AsField(view), mouse);
  if (view && pressed_ == view) SetDown(*view, view->Face().rect().contains(mouse.position().toPoint()));
  stack_.Deliver([&] { Window().UserMove(view ? &view->Control() : nullptr); });
  mouse.accept();
  return true;
}

// The first of the two clicks has been delivered already. A button reports the second on the release, as it does the
// first.
bool UserInput::MouseDoubled(ControlView* view, QMouseEvent& mouse) {
  if (!view || mouse.button() != Qt::LeftButton) return false;
  if (dynamic_cast<QAbstractButton*>(&view->Widget())) return MousePressed(view, mouse);
  if (AsField(view)) LetEdit(*AsField(view), mouse);
  Deliver(*view, [&] { Window().UserSecondClick(view->Control()); });
  mouse.accept();
  return true;
}

// Opens the native menu only if the field has got the focus.
bool UserInput::ContextMenuAsked(ControlView* view) { return !AsField(view) || !view->Control().HoldsFocus(); }

}  // namespace desktop
