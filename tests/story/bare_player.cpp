// The events of the bare forms.
#include "tests/story/bare_player.h"

#include "tests/story/names.h"

namespace story {

void BarePlayer::OnFront(const std::function<void(forms::Window&)>& event) {
  if (forms::Window* window = program_.Windows.Front()) program_.Deliver([&] { event(*window); });
}

void BarePlayer::Click(const std::string& name) {
  forms::Control& control = ControlNamed(program_.Windows, name);
  program_.Deliver([&] { control.Owner().UserClick(control); });
}

void BarePlayer::DblClick(const std::string& name) {
  forms::Control& control = ControlNamed(program_.Windows, name);
  program_.Deliver([&] { control.Owner().UserDblClick(control); });
}

void BarePlayer::Move(const std::string& name) {
  if (forms::Window* window = FindWindow(program_.Windows, name)) {
    program_.Deliver([&] { window->UserMove(nullptr); });
    return;
  }
  forms::Control& control = ControlNamed(program_.Windows, name);
  program_.Deliver([&] { control.Owner().UserMove(&control); });
}

void BarePlayer::Pick(const std::string& list, const std::string& item) {
  forms::ListBox& box = ListNamed(program_.Windows, list);
  if (program_.Ended() || !box.Owner().Visible() || !box.Visible() || !box.Enabled()) return;
  int index = ItemNamed(box, item);
  program_.Deliver([&] { box.Owner().UserPick(box, index); });
}

void BarePlayer::Key(const std::string& key) {
  NamedKey named = KeyNamed(key);
  OnFront([&](forms::Window& window) {
    if (const auto* special = std::get_if<forms::Key>(&named)) {
      window.UserKey(*special);
    } else if (const auto* with_alt = std::get_if<AltKey>(&named)) {
      window.UserAlt(with_alt->Letter);
    } else {
      window.UserType(std::get<char>(named));
    }
  });
}

void BarePlayer::Type(const std::string& text) {
  for (char character : text) {
    OnFront([&](forms::Window& window) { window.UserType(character); });
  }
}

void BarePlayer::Clear() {
  OnFront([](forms::Window& window) {
    forms::Control* holder = window.Focus();
    if (holder && holder->Kind == forms::Kind::TextBox) window.UserEdit(static_cast<forms::TextBox&>(*holder), "");
  });
}

void BarePlayer::Close(const std::string& window) {
  if (program_.Ended()) return;
  forms::Window& target = WindowNamed(program_.Windows, window);
  program_.Deliver([&] { target.UserClose(); });
}

}  // namespace story
