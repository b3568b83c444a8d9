// Reads the boxes of the record screen.
#include "desktop/film_words.h"

#include <QStringList>
#include <utility>

#include "desktop/text.h"
#include "forms/window_stack.h"

namespace desktop {
namespace {

QString Trimmed(const forms::TextBox& box) { return Shown(box.Text()).simplified(); }

QString ListWords(frmPage1& window) {
  QStringList titles;
  for (const forms::TextBox& row : window.Text1)
    if (QString title = Trimmed(row); !title.isEmpty()) titles.append(title);
  if (titles.size() < 2) return QStringLiteral("List: %1").arg(titles.isEmpty() ? "empty" : titles.first());
  return QStringLiteral("List: %1 films, %2 to %3").arg(QString::number(titles.size()), titles.first(), titles.last());
}

}  // namespace

QString FilmWords(frmPage1& window) {
  if (window.Text1[0].Visible()) return ListWords(window);
  QStringList words;
  for (const forms::TextBox* box : {&window.txtTitle, &window.txtDirector, &window.txtFormat})
    if (QString text = Trimmed(*box); !text.isEmpty()) words.append(text);
  if (Trimmed(window.txtTitle).isEmpty()) words.prepend(QStringLiteral("No title"));
  words.append(QStringLiteral("record %1 of %2")
                   .arg(static_cast<std::int64_t>(window.CurrentRecNo))
                   .arg(static_cast<std::int64_t>(window.RecordCount)));
  return words.join(QStringLiteral(", "));
}

// What comes up behind another window is said when that has gone.
QString FilmNews::Take() {
  if (window_.Owner().Front() != &window_) return {};
  return std::exchange(told_, window_.FilmsShown) == window_.FilmsShown ? QString() : FilmWords(window_);
}

}  // namespace desktop
