// The links of the help text, for those who hear it: the toolkit tells screen readers the text, but not what leads on.
#pragma once

#include <QStringList>
#include <QTextBrowser>
#include <QTextCursor>
#include <functional>

namespace desktop {

// The words of the links that the caret comes to when it moves there from the position before: the one that it goes
// into or that Tab chooses, and all links of a line that it comes to.
QStringList LinksReached(const QTextCursor& now, int before);

// Tells when Tab has gone from link to link, for which the toolkit has no signal.
class HelpText final : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;
  std::function<void()> Tabbed;

 protected:
  bool focusNextPrevChild(bool next) override {
    bool within = QTextBrowser::focusNextPrevChild(next);
    if (within && Tabbed) Tabbed();
    return within;
  }
};

}  // namespace desktop
