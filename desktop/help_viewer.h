// The help window: one page at a time, with contents, back and search.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QWidget>
#include <string>
#include <variant>
#include <vector>

#include "help/help_file.h"

namespace desktop {

class HelpViewer final : public QWidget {
 public:
  // The folder of the help file.
  explicit HelpViewer(std::string folder);
  // Reads the file again and shows that topic; the contents for 0 or an unknown number. If the file is missing, the
  // window says so.
  void Open(int topic);
  // The same as clicking Contents, Back and Search.
  void ShowContents();
  void GoBack();
  void Search(const QString& words);

  QTextBrowser& Page() { return page_; }
  QLineEdit& SearchLine() { return search_line_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // A topic number, 0 for the contents; or search words.
  using Place = std::variant<int, QString>;
  void GoTo(Place place);
  void Show(const Place& place);
  QString PageOf(const Place& place) const;
  bool ReadFile();

  std::string folder_;
  help::HelpFile file_;
  bool file_found_ = false;
  std::vector<Place> visited_;  // the current one last
  QPushButton contents_, back_, search_;
  QLineEdit search_line_;
  QTextBrowser page_;
};

}  // namespace desktop
