// Finds the links around the caret.
#include "desktop/help_links.h"

#include <QTextBlock>
#include <QTextLayout>

namespace desktop {
namespace {

struct Span {
  int From, To;
  bool Holds(int position) const { return From <= position && position < To; }
};

// The line as it is broken on the window.
Span LineAround(const QTextBlock& block, int position) {
  QTextLine line = block.layout()->lineForTextPosition(position - block.position());
  if (!line.isValid()) return {block.position(), block.position() + block.length()};
  int from = block.position() + line.textStart();
  bool last = line.lineNumber() + 1 == block.layout()->lineCount();
  return {from, last ? block.position() + block.length() : from + line.textLength()};
}

}  // namespace

QStringList LinksReached(const QTextCursor& now, int before) {
  int at = now.selectionStart();
  QTextBlock block = now.document()->findBlock(at);
  Span line = LineAround(block, at);
  bool whole_line = !now.hasSelection() && !line.Holds(before);
  QStringList reached;
  for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
    QTextFragment words = piece.fragment();
    if (!words.charFormat().isAnchor()) continue;
    Span link{words.position(), words.position() + words.length()};
    bool on_line = link.From < line.To && line.From < link.To;
    bool entered = link.Holds(at) && !link.Holds(before);
    if (whole_line ? on_line : entered) reached.append(words.text());
  }
  return reached;
}

}  // namespace desktop
