// Texts, captions, options and lists.
#include "forms/controls.h"

#include <algorithm>
#include <utility>

#include "forms/window.h"

namespace forms {

TextBox::TextBox(Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look, Align align,
                 forms::Place place)
    : Control(owner, std::move(name), Kind::TextBox, ids, look, place), align_(align) {}

void TextBox::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  Touch();
  Run(Change);
}

void TextBox::SetAlignment(Align align) {
  if (align == align_) return;
  align_ = align;
  Touch();
}

Captioned::Captioned(Window& owner, std::string name, forms::Kind kind, std::string_view caption, forms::ControlIds ids,
                     const forms::Look& look, forms::Place place)
    : Control(owner, std::move(name), kind, ids, look, place), caption_(caption) {}

void Captioned::SetCaption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Touch();
}

Label::Label(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids, const forms::Look& look,
             forms::Place place)
    : Captioned(owner, std::move(name), Kind::Label, caption, ids, look, place) {}

Button::Button(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids,
               const forms::Look& look, forms::Place place, std::string_view icon)
    : Captioned(owner, std::move(name), Kind::Button, caption, ids, look, place), Icon(icon) {}

OptionButton::OptionButton(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids,
                           const forms::Look& look, forms::Place place)
    : Captioned(owner, std::move(name), Kind::OptionButton, caption, ids, look, place) {}

void OptionButton::TakeSelection() {
  for (Control* control : Owner().Controls()) {
    if (control->Kind != Kind::OptionButton) continue;
    auto* option = static_cast<OptionButton*>(control);
    bool value = option == this;
    if (option->value_ == value) continue;
    option->value_ = value;
    option->Touch();
  }
}

void OptionButton::Select() {
  if (!value_) SelectAndClick();
}

void OptionButton::SelectAndClick() {
  TakeSelection();
  Run(Click);
}

CheckBox::CheckBox(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids,
                   const forms::Look& look, forms::Place place)
    : Captioned(owner, std::move(name), Kind::CheckBox, caption, ids, look, place) {}

void CheckBox::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  Touch();
}

ListBox::ListBox(Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look, forms::Place place,
                 Order order)
    : Control(owner, std::move(name), Kind::ListBox, ids, look, place), order_(order) {}

void ListBox::Add(std::string_view item) {
  if (std::find(items_.begin(), items_.end(), item) != items_.end()) return;
  auto at = order_ == Order::Sorted ? std::upper_bound(items_.begin(), items_.end(), item) : items_.end();
  if (list_index_ >= at - items_.begin()) ++list_index_;
  items_.emplace(at, item);
  Touch();
}

void ListBox::Add(std::initializer_list<std::string_view> items) {
  for (std::string_view item : items) Add(item);
}

void ListBox::Empty() {
  items_.clear();
  list_index_ = -1;
  Touch();
}

void ListBox::Select(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) return;
  list_index_ = index;
  Touch();
  Run(Click);
}

std::string ListBox::Selected() const { return list_index_ < 0 ? std::string() : items_[list_index_]; }

MenuItem::MenuItem(Window& owner, int level, std::string name, std::string_view caption, int help_id)
    : Captioned(owner, std::move(name), Kind::MenuItem, caption, {NoTab, help_id, 0}, {}, {}), Level(level) {}

Strip::Strip(Window& owner, std::string name, const forms::Look& look, forms::Place place)
    : Control(owner, std::move(name), Kind::Strip, {}, look, place) {}

Picture::Picture(Window& owner, std::string name, forms::Place place, std::string_view icon)
    : Control(owner, std::move(name), Kind::Picture, {}, {}, place), Icon(icon) {}

char HotKey(std::string_view caption) {
  std::size_t mark = caption.find('&');
  if (mark == std::string_view::npos || mark + 1 >= caption.size()) return 0;
  char letter = caption[mark + 1];
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace forms
