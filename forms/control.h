// The controls of a window: what a person sees and touches, with no toolkit beneath. A control belongs to its window
// for life, in the order of declaration, and runs the handlers that are wired to it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace forms {

class Window;

using Handler = std::function<void()>;

// 24 bits, red in the low byte.
using Colour = std::uint32_t;
inline constexpr Colour Black = 0x000000;
inline constexpr Colour Blue = 0xFF0000;
inline constexpr Colour Yellow = 0x00FFFF;
inline constexpr Colour White = 0xFFFFFF;

enum class Kind { TextBox, Label, Button, OptionButton, CheckBox, ListBox, MenuItem, Strip, Picture };
enum class Align { Left, Centre };

// In twips of the window's grid.
struct Place {
  int Left = 0, Top = 0, Width = 0, Height = 0;

  // A place without a size contains nothing.
  constexpr bool Contains(const Place& other) const {
    return Width > 0 && Height > 0 && other.Left >= Left && other.Top >= Top &&
           other.Left + other.Width <= Left + Width && other.Top + other.Height <= Top + Height;
  }
};

// How a control is drawn; FontSize in points of the unscaled grid.
struct Look {
  Colour Fore = Black;
  Colour Back = White;
  bool Transparent = false;
  std::string_view FontName = "Arial";
  double FontSize = 8.25;
  bool Bold = false;
  bool Border = false;
  Align Lines = Align::Centre;  // of a label's caption
};

// Tab: position in the tab order, NoTab for none. HelpId: help context stored with the control, TopicId: a field's own
// topic; 0 for none.
inline constexpr int NoTab = -1;
struct ControlIds {
  int Tab = NoTab;
  int HelpId = 0;
  int TopicId = 0;
};

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string Name;
  const forms::Kind Kind;
  const forms::ControlIds Ids;
  const forms::Place Place;

  Handler Click, DblClick, GotFocus, LostFocus, MouseUp, MouseMove, KeyPress, MouseDown, Change;

  bool Visible() const { return visible_; }
  bool Enabled() const { return enabled_; }
  // A holder of the focus that is hidden or disabled gives it to the next tab position at once.
  void Show() { SetVisible(true); }
  void Hide() { SetVisible(false); }
  void Enable() { SetEnabled(true); }
  void Disable() { SetEnabled(false); }
  void SetVisible(bool visible);
  void SetEnabled(bool enabled);

  // Nothing on a hidden or disabled control or on the holder; else LostFocus and GotFocus run before it returns.
  void SetFocus();
  bool HoldsFocus() const;
  bool CanHoldFocus() const;

  const forms::Look& Look() const { return look_; }
  void SetForeColor(Colour colour);
  void SetBackColor(Colour colour);
  void SetFontSize(double points);

  // Grows with every change of what is seen of the control.
  unsigned Version() const { return version_; }
  Window& Owner() const { return *owner_; }

 protected:
  Control(Window& owner, std::string name, forms::Kind kind, forms::ControlIds ids, const forms::Look& look,
          forms::Place place);
  ~Control() = default;
  void Touch() { ++version_; }

 private:
  Window* owner_;
  forms::Look look_;
  bool visible_ = true;
  bool enabled_ = true;
  unsigned version_ = 1;
};

// Runs a handler if one is wired.
inline void Run(const Handler& handler) {
  if (handler) handler();
}

}  // namespace forms
