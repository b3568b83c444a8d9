// The kinds of controls.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace forms {

class Label;

// A box with text that can be typed into. A different text runs Change before the setter returns, the same text runs
// nothing.
class TextBox : public Control {
 public:
  TextBox(Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look, Align align,
          forms::Place place);
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  Align Alignment() const { return align_; }
  void SetAlignment(Align align);
  // The label that names the box; nullptr for none.
  const Label* Tag = nullptr;
  // False: the text is the program's alone.
  bool TakesTyping = true;

 private:
  std::string text_;
  Align align_;
};

// A control with a caption; in the captions of buttons and menu items an ampersand marks the hot key.
class Captioned : public Control {
 public:
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

 protected:
  using Control::Control;
  Captioned(Window& owner, std::string name, forms::Kind kind, std::string_view caption, forms::ControlIds ids,
            const forms::Look& look, forms::Place place);

 private:
  std::string caption_;
};

class Label : public Captioned {
 public:
  Label(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids, const forms::Look& look,
        forms::Place place);
};

// Icon: the stem of the picture's file, "" for none.
class Button : public Captioned {
 public:
  Button(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids, const forms::Look& look,
         forms::Place place, std::string_view icon = "");
  const std::string Icon;
};

// One of a pair; the option buttons of a window are one group.
class OptionButton : public Captioned {
 public:
  OptionButton(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids,
               const forms::Look& look, forms::Place place);
  bool Value() const { return value_; }
  // Clears the sibling and runs Click, unless it was selected already.
  void Select();
  // What a user's click does: selects, and runs Click in any case.
  void SelectAndClick();

 private:
  void TakeSelection();
  bool value_ = false;
};

class CheckBox : public Captioned {
 public:
  CheckBox(Window& owner, std::string name, std::string_view caption, forms::ControlIds ids, const forms::Look& look,
           forms::Place place);
  bool Value() const { return value_; }
  void SetValue(bool value);

 private:
  bool value_ = false;
};

// A list of texts, one of which may be selected. It holds an item once.
class ListBox : public Control {
 public:
  enum class Order { AsAdded, Sorted };
  ListBox(Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look, forms::Place place,
          Order order = Order::AsAdded);
  const std::vector<std::string>& Items() const { return items_; }
  void Add(std::string_view item);
  void Add(std::initializer_list<std::string_view> items);
  // Runs nothing.
  void Empty();
  // Position from 0, -1 for none.
  int ListIndex() const { return list_index_; }
  // Runs Click, also when that item was selected already; an index outside the list does nothing.
  void Select(int index);
  // The selected item, "" if there is none.
  std::string Selected() const;

 private:
  std::vector<std::string> items_;
  int list_index_ = -1;
  Order order_;
};

// A line of the menu; Level 0 stands in the menu bar, an item belongs to the nearest line of a lower level above it.
class MenuItem : public Captioned {
 public:
  MenuItem(Window& owner, int level, std::string name, std::string_view caption, int help_id = 0);
  const int Level;
};

// A strip with nothing on it, and a picture (Icon: the stem of its file): things that only the pointer meets.
class Strip : public Control {
 public:
  Strip(Window& owner, std::string name, const forms::Look& look, forms::Place place);
};

class Picture : public Control {
 public:
  Picture(Window& owner, std::string name, forms::Place place, std::string_view icon);
  const std::string Icon;
};

// The letter that a caption marks as hot key, as a capital; 0 for none.
char HotKey(std::string_view caption);

}  // namespace forms
