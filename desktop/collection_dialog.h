// The window that asks which collection to open: at the first start, when the last one cannot be found, and when the
// user wants another.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <memory>
#include <string>
#include <vector>

#include "launcher/opening.h"

namespace desktop {

class CollectionDialog final : public QDialog {
 public:
  explicit CollectionDialog(const launcher::Question& question);
  // Nothing if the user gives up.
  launcher::Choice Ask();

 private:
  // A choice with the folder that it names; the folder of some is typed.
  struct Row {
    QRadioButton* Button;
    launcher::Choice Choice;
    QLineEdit* Typed = nullptr;
  };
  void AddRow(const QString& text, const launcher::Choice& choice);
  void AddTypedRow(const QString& text, const launcher::Choice& choice, const QString& heading);
  void Browse(const Row& row, const QString& heading);
  void SetOpenEnabled();
  const Row& Chosen() const;
  launcher::Choice ChoiceOf(const Row& row) const;

  std::string home_;
  std::vector<Row> rows_;
  QPushButton* open_ = nullptr;
};

// The folder as typed: "~" is the home, and a relative name begins there. Empty if nothing was typed.
std::string TypedFolder(const QString& text, const std::string& home);
// Where a new collection lies if the user has picked that folder: in it if it is empty or a collection, else below it.
QString FolderForNew(const QString& picked);

}  // namespace desktop
