// The help window: one page at a time, with contents, back and search. Everything in it can be reached by key.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QRect>
#include <QTextBrowser>
#include <QWidget>
#include <string>
#include <variant>
#include <vector>

#include "desktop/announcer.h"
#include "desktop/help_links.h"
#include "help/help_file.h"

namespace desktop {

// The place moved onto the screen, and made smaller only where the screen is.
QRect PlaceOn(const QRect& screen, QRect place);

class HelpViewer final : public QWidget {
 public:
  // The folder of the help file.
  explicit HelpViewer(std::string folder);
  // Reads the file again and shows that topic; the contents for 0 or an unknown number. If the file is missing or
  // cannot be read, the window says so. A window that no longer fits on its screen is moved onto it.
  void Open(int topic);
  // The same as clicking Contents, Back and Search, which leads on to the topics that it finds.
  void ShowContents();
  void GoBack();
  void Search(const QString& words);
  void GoToSearchLine();
  // Makes the text that many steps larger, or smaller below 0; within limits.
  void Scale(int steps);

  QTextBrowser& Page() { return page_; }
  QLineEdit& SearchLine() { return search_line_; }
  // What is said of the window to those who do not see it: each page that comes up, and the links.
  Announcer& Speech() { return speech_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // A topic number, 0 for the contents; or search words.
  using Place = std::variant<int, QString>;
  void GoTo(Place place);
  void Show(const Place& place);
  void SayPage();
  void SayLinks();
  QString PageOf(const Place& place) const;
  void ReadFile();
  void LayOut();
  void SetUpKeys();
  void FitOnScreen();
  void GoAboveModalWindow();

  std::string folder_;
  help::HelpFile file_;
  QString trouble_;             // what keeps the file from being read, as the page says it; empty if nothing does
  std::vector<Place> visited_;  // the current one last
  int scale_ = 0;               // steps from the usual size of the text
  QPushButton contents_, back_, search_;
  QLineEdit search_line_;
  HelpText page_;
  int caret_ = 0;  // where it was last
  Announcer speech_{*this};
};

}  // namespace desktop
