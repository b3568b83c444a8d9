// What a screen reader says for a control.
#include <cctype>

#include "desktop/control_view.h"
#include "desktop/text.h"
#include "forms/window.h"

namespace desktop {
namespace {

// A pick list follows its field in the tab order.
const forms::TextBox* FieldBefore(const forms::Control& list) {
  const forms::TextBox* field = nullptr;
  for (const forms::Control* control : list.Owner().Controls()) {
    if (control->Kind != forms::Kind::TextBox || control->Ids.Tab >= list.Ids.Tab) continue;
    if (!field || control->Ids.Tab > field->Ids.Tab) field = static_cast<const forms::TextBox*>(control);
  }
  return field;
}

// A box without a label: "Row 5" for "Text1(4)", "Auto Save" for "txtAutoSave".
QString FromOwnName(const std::string& name) {
  if (std::size_t bracket = name.find('('); bracket != std::string::npos)
    return QStringLiteral("Row %1").arg(std::atoi(name.c_str() + bracket + 1) + 1);
  QString words;
  for (char letter : name.substr(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz"))) {
    if (std::isupper(static_cast<unsigned char>(letter)) && !words.isEmpty()) words += ' ';
    words += letter;
  }
  return words;
}

}  // namespace

QString AccessibleName(const forms::Control& control) {
  switch (control.Kind) {
    case forms::Kind::TextBox: {
      const forms::Label* tag = static_cast<const forms::TextBox&>(control).Tag;
      return tag ? Spoken(tag->Caption()) : FromOwnName(control.Name);
    }
    case forms::Kind::ListBox: {
      const forms::TextBox* field = FieldBefore(control);
      return field ? AccessibleName(*field) : FromOwnName(control.Name);
    }
    case forms::Kind::Strip:
    case forms::Kind::Picture:
      return {};
    default: {
      QString spoken = Spoken(static_cast<const forms::Captioned&>(control).Caption());
      bool pressed = control.Kind == forms::Kind::Button;
      return spoken.isEmpty() && pressed ? FromOwnName(control.Name) : spoken;
    }
  }
}

}  // namespace desktop
