// The window of the help file.
#pragma once

#include <QPlainTextEdit>
#include <string>

namespace desktop {

class HelpViewer final : public QPlainTextEdit {
 public:
  // The folder that holds the help file.
  explicit HelpViewer(std::string folder);
  // Shows the file as it is now, from its beginning; says so where it is missing.
  void Open();

 private:
  std::string folder_;
};

}  // namespace desktop
