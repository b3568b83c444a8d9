// What all controls share: being seen, being enabled, holding the focus, colours.
#include "forms/control.h"

#include <utility>

#include "forms/window.h"

namespace forms {

Control::Control(Window& owner, std::string name, forms::Kind kind, forms::ControlIds ids, const forms::Look& look,
                 forms::Place place)
    : Name(std::move(name)), Kind(kind), Ids(ids), Place(place), owner_(&owner), look_(look) {
  owner.Enlist(*this);
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Touch();
  if (visible) {
    owner_->PassFocusOnIfCovered();
  } else {
    owner_->PassFocusOn(*this);
  }
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Touch();
  if (!enabled) owner_->PassFocusOn(*this);
}

void Control::SetFocus() { owner_->MoveFocus(*this); }

bool Control::HoldsFocus() const { return owner_->Focus() == this; }

bool Control::CanHoldFocus() const {
  return Kind != forms::Kind::Label && Kind != forms::Kind::MenuItem && Kind != forms::Kind::Strip &&
         Kind != forms::Kind::Picture;
}

void Control::SetForeColor(Colour colour) {
  look_.Fore = colour;
  Touch();
}

void Control::SetBackColor(Colour colour) {
  look_.Back = colour;
  Touch();
}

void Control::SetFontSize(double points) {
  look_.FontSize = points;
  Touch();
}

}  // namespace forms
