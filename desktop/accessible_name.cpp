// What a screen reader says for a control.
#include <cctype>
#include <string_view>

#include "desktop/control_view.h"
#include "desktop/list_table.h"
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

struct Named {
  std::string_view Name, Words;
};
constexpr Named Lists[] = {{"File1", "Files"}, {"Drive1", "Drives"}, {"Dir1", "Folders"}};
// The other pictures repeat what the labels beside them say.
constexpr Named Pictures[] = {{"title", "Reelora Prima"}};

// The two figures of a sort run.
constexpr Named Figures[] = {{"lblNumrec", "Records sorted"}, {"lblRetcode", "Sort result"}};

template <std::size_t Count>
QString WordsOf(const Named (&table)[Count], std::string_view name) {
  for (const Named& row : table)
    if (row.Name == name) return Shown(row.Words);
  return {};
}

// A box without a label: "Title, row 5" for "Text1(4)", "Auto Save" for "txtAutoSave".
QString FromOwnName(const forms::Control& control) {
  if (std::optional<ListCell> cell = ListCellOf(control))
    return QStringLiteral("%1, %2").arg(ColumnHeader(cell->Column), RowHeader(cell->Row));
  const std::string& name = control.Name;
  QString words;
  for (char letter : name.substr(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz"))) {
    if (std::isupper(static_cast<unsigned char>(letter)) && !words.isEmpty()) words += ' ';
    words += letter;
  }
  return words;
}

}  // namespace

QString OpenedWords(const forms::ListBox& list) {
  const forms::TextBox* field = FieldBefore(list);
  if (!field) return {};
  QString taken = Shown(field->Text()).simplified();
  QString name = AccessibleName(*field);
  return taken.isEmpty() ? QStringLiteral("%1 list").arg(name)
                         : QStringLiteral("%1 list, %2 is taken").arg(name, taken);
}

QString AccessibleName(const forms::Control& control) {
  switch (control.Kind) {
    case forms::Kind::TextBox: {
      const forms::Label* tag = static_cast<const forms::TextBox&>(control).Tag;
      return tag ? Spoken(tag->Caption()) : FromOwnName(control);
    }
    case forms::Kind::ListBox: {
      if (QString words = WordsOf(Lists, control.Name); !words.isEmpty()) return words;
      const forms::TextBox* field = FieldBefore(control);
      return field ? AccessibleName(*field) : FromOwnName(control);
    }
    case forms::Kind::Strip:
      return {};
    case forms::Kind::Picture:
      return WordsOf(Pictures, static_cast<const forms::Picture&>(control).Icon);
    default: {
      QString spoken = Spoken(static_cast<const forms::Captioned&>(control).Caption());
      if (spoken.isEmpty()) return control.Kind == forms::Kind::Button ? FromOwnName(control) : spoken;
      QString figure = WordsOf(Figures, control.Name);
      return figure.isEmpty() ? spoken : QStringLiteral("%1: %2").arg(figure, spoken);
    }
  }
}

}  // namespace desktop
