// Who speaks for which object, and the order of what a window holds.
#include "desktop/accessible.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "desktop/accessible_control.h"
#include "desktop/accessible_field.h"
#include "desktop/accessible_table.h"
#include "desktop/announcer.h"
#include "desktop/button_view.h"
#include "desktop/covered.h"
#include "desktop/help_viewer.h"
#include "desktop/notice_line.h"

namespace desktop {
namespace {

// Children that are not the toolkit's own, or stand in another order.
class HolderInterface : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;
  int childCount() const override { return static_cast<int>(Children().size()); }
  QAccessibleInterface* child(int index) const override {
    auto all = Children();
    if (index < 0 || index >= static_cast<int>(all.size())) return nullptr;
    return QAccessible::queryAccessibleInterface(all[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    auto all = Children();
    auto found = child ? std::find(all.begin(), all.end(), child->object()) : all.end();
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
  }

 protected:
  virtual std::vector<QObject*> Children() const = 0;
};

class WindowInterface final : public HolderInterface {
 public:
  explicit WindowInterface(FormView& form) : HolderInterface(&form, QAccessible::Window), form_(form) {}

 protected:
  std::vector<QObject*> Children() const override {
    std::vector<QObject*> all;
    if (!form_.Menu().Empty()) all.push_back(&form_.Menu().Bar());
    all.push_back(&form_.Surface());
    for (QObject* other : form_.children())
      if (dynamic_cast<NoticeLine*>(other)) all.push_back(other);
    all.push_back(&form_.Speech());
    return all;
  }

 private:
  FormView& form_;
};

class HelpInterface final : public HolderInterface {
 public:
  explicit HelpInterface(HelpViewer& help) : HolderInterface(&help, QAccessible::Window), help_(help) {}

 protected:
  std::vector<QObject*> Children() const override {
    std::vector<QObject*> all;
    for (QWidget* part : help_.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) all.push_back(part);
    all.push_back(&help_.Speech());
    return all;
  }

 private:
  HelpViewer& help_;
};

// Left out: what is only there to be looked at, and lists that lie under others.
bool IsTold(const forms::Control& control) {
  switch (control.Kind) {
    case forms::Kind::MenuItem:
    case forms::Kind::Strip:
      return false;
    case forms::Kind::Picture:
      return !AccessibleName(control).isEmpty();
    case forms::Kind::ListBox:
      return control.Visible() && !Covered(control);
    case forms::Kind::Label:
      return !AccessibleName(control).isEmpty();
    default:
      return !ListCellOf(control);
  }
}

// As they stand on the window: row by row, from left to right.
class SurfaceInterface final : public HolderInterface {
 public:
  explicit SurfaceInterface(FormView& form) : HolderInterface(&form.Surface(), QAccessible::Pane), form_(form) {}

 protected:
  std::vector<QObject*> Children() const override {
    std::vector<const forms::Control*> controls;
    for (const forms::Control* control : form_.Window().Controls())
      if (form_.ViewOf(*control) && IsTold(*control)) controls.push_back(control);
    std::stable_sort(controls.begin(), controls.end(), [](const forms::Control* one, const forms::Control* other) {
      return std::pair(one->Place.Top, one->Place.Left) < std::pair(other->Place.Top, other->Place.Left);
    });
    std::vector<QObject*> all;
    all.reserve(controls.size() + 1);
    for (const forms::Control* control : controls) all.push_back(&form_.ViewOf(*control)->Widget());
    if (form_.List().Cell(0, 0)) all.push_back(&form_.List());
    return all;
  }

 private:
  FormView& form_;
};

// nullptr for a list, which the toolkit knows well.
QAccessibleInterface* ForControl(ControlView& view) {
  switch (view.Control().Kind) {
    case forms::Kind::TextBox:
      return std::make_unique<FieldInterface>(dynamic_cast<FieldView&>(view)).release();
    case forms::Kind::Label:
      return std::make_unique<ControlInterface>(view, QAccessible::StaticText).release();
    case forms::Kind::Button:
      return std::make_unique<ButtonInterface>(view, QAccessible::Button).release();
    case forms::Kind::OptionButton:
      return std::make_unique<ButtonInterface>(view, QAccessible::RadioButton).release();
    case forms::Kind::CheckBox:
      return std::make_unique<ButtonInterface>(view, QAccessible::CheckBox).release();
    case forms::Kind::Picture:
      return std::make_unique<ControlInterface>(view, QAccessible::Graphic).release();
    case forms::Kind::Strip:
    case forms::Kind::ListBox:
    case forms::Kind::MenuItem:
      break;
  }
  return nullptr;
}

QAccessibleInterface* Make(const QString&, QObject* object) {
  if (auto* view = dynamic_cast<ControlView*>(object)) return ForControl(*view);
  if (auto* form = dynamic_cast<FormView*>(object)) return std::make_unique<WindowInterface>(*form).release();
  if (auto* speech = dynamic_cast<Announcer*>(object)) return std::make_unique<AnnouncerInterface>(*speech).release();
  if (auto* table = dynamic_cast<ListTable*>(object)) return std::make_unique<TableInterface>(*table).release();
  if (auto* header = dynamic_cast<ListHeader*>(object)) return std::make_unique<HeaderInterface>(*header).release();
  if (auto* help = dynamic_cast<HelpViewer*>(object)) return std::make_unique<HelpInterface>(*help).release();
  auto* form = dynamic_cast<FormView*>(object->parent());
  if (form && object == &form->Surface()) return std::make_unique<SurfaceInterface>(*form).release();
  return nullptr;
}

}  // namespace

void InstallAccessibility() {
  static const bool installed = (QAccessible::installFactory(Make), true);
  static_cast<void>(installed);
}

}  // namespace desktop
