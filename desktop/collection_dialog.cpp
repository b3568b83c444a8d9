// One row for each choice. Buttons, rows and layouts belong to the window, as the toolkit has it.
#include "desktop/collection_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "desktop/text.h"
#include "store/master_file.h"

namespace desktop {
namespace {

using launcher::Choice;

constexpr int Width = 560;
constexpr int Indent = 24;
constexpr int PathWidth = 440;  // what is longer loses its middle; the tool tip has all

QString ShownPath(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

QString HeadingOf(const launcher::Question& question) {
  if (!question.Missing.empty())
    return QStringLiteral(
               "The collection that was open last cannot be found:\n\n%1\n\nIf it is on a disk that is not connected, "
               "connect the disk and try again.")
        .arg(Breakable(ShownPath(question.Missing)));
  if (question.Known.empty())
    return QStringLiteral("Welcome to Reelora Prima.\n\nWhere shall your film collection be kept?");
  return QStringLiteral("Which collection shall be opened?");
}

template <typename Widget, typename... Arguments>
Widget* Make(Arguments&&... arguments) {
  return std::make_unique<Widget>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace

std::string TypedFolder(const QString& text, const std::string& home) {
  std::string typed = QFile::encodeName(text.trimmed()).toStdString();
  if (typed == "~") return home;
  if (typed.starts_with("~/")) typed.erase(0, 2);
  if (typed.empty() || typed.starts_with('/')) return typed;
  return home.empty() ? "" : home + "/" + typed;
}

QString FolderForNew(const QString& picked) {
  QDir folder(picked);
  if (folder.isEmpty() || folder.exists(QString::fromLatin1(store::MasterFileName))) return picked;
  return folder.filePath(QStringLiteral("Film Collection"));
}

CollectionDialog::CollectionDialog(const launcher::Question& question)
    : home_(std::filesystem::path(question.Suggested).parent_path().string()) {
  setWindowTitle(QStringLiteral("Reelora Prima - Open a Collection"));
  auto* column = Make<QVBoxLayout>(this);
  auto* heading = Make<QLabel>(HeadingOf(question));
  heading->setTextFormat(Qt::PlainText);
  heading->setWordWrap(true);
  column->addWidget(heading);
  column->addSpacing(8);
  if (!question.Missing.empty()) AddRow(QStringLiteral("&Try again"), {Choice::What::Existing, question.Missing});
  for (const std::string& folder : question.Known) {
    QString path = fontMetrics().elidedText(ShownPath(folder), Qt::ElideMiddle, PathWidth);
    AddRow(path.replace('&', QStringLiteral("&&")), {Choice::What::Existing, folder});
    rows_.back().Button->setToolTip(ShownPath(folder));
  }
  AddTypedRow(QStringLiteral("A &new collection in the folder"), {Choice::What::New, question.Suggested},
              QStringLiteral("Folder for a New Collection"));
  AddTypedRow(QStringLiteral("An &existing collection in the folder"), {Choice::What::Existing, ""},
              QStringLiteral("Folder of a Collection"));
  AddRow(QStringLiteral("The &sample collection, to look around"), {Choice::What::Sample, ""});
  column->addSpacing(8);
  auto* buttons = Make<QDialogButtonBox>(QDialogButtonBox::Cancel);
  open_ = buttons->addButton(QStringLiteral("&Open"), QDialogButtonBox::AcceptRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  open_->setDefault(true);
  rows_.front().Button->setChecked(true);
  rows_.front().Button->setFocus();
  SetOpenEnabled();
  setMinimumWidth(Width);
}

void CollectionDialog::AddRow(const QString& text, const Choice& choice) {
  rows_.push_back({Make<QRadioButton>(text), choice});
  layout()->addWidget(rows_.back().Button);
  connect(rows_.back().Button, &QRadioButton::toggled, this, &CollectionDialog::SetOpenEnabled);
}

void CollectionDialog::AddTypedRow(const QString& text, const Choice& choice, const QString& heading) {
  AddRow(text, choice);
  Row& row = rows_.back();
  row.Typed = Make<QLineEdit>(ShownPath(choice.Folder));
  row.Typed->setAccessibleName(heading);
  auto* browse = Make<QPushButton>(QStringLiteral("Browse..."));
  browse->setAutoDefault(false);
  auto* line = Make<QHBoxLayout>();
  line->setContentsMargins(Indent, 0, 0, 0);
  line->addWidget(row.Typed, 1);
  line->addWidget(browse);
  static_cast<QVBoxLayout*>(layout())->addLayout(line);
  connect(row.Typed, &QLineEdit::textEdited, row.Button, [button = row.Button] { button->setChecked(true); });
  connect(row.Typed, &QLineEdit::textChanged, this, &CollectionDialog::SetOpenEnabled);
  connect(browse, &QPushButton::clicked, this,
          [this, at = rows_.size() - 1, heading] { Browse(rows_.at(at), heading); });
}

void CollectionDialog::Browse(const Row& row, const QString& heading) {
  QString start = row.Typed->text();
  if (!QDir(start).exists()) start = ShownPath(home_);
  QString picked = QFileDialog::getExistingDirectory(this, heading, start);
  if (picked.isEmpty()) return;
  row.Typed->setText(row.Choice.For == Choice::What::New ? FolderForNew(picked) : picked);
  row.Button->setChecked(true);
}

void CollectionDialog::SetOpenEnabled() {
  if (!open_) return;
  const Row& row = Chosen();
  open_->setEnabled(!row.Typed || !ChoiceOf(row).Folder.empty());
}

const CollectionDialog::Row& CollectionDialog::Chosen() const {
  auto chosen = std::ranges::find_if(rows_, [](const Row& row) { return row.Button->isChecked(); });
  return chosen == rows_.end() ? rows_.front() : *chosen;
}

// A folder that was not typed keeps its bytes, whatever they mean.
Choice CollectionDialog::ChoiceOf(const Row& row) const {
  if (!row.Typed || row.Typed->text() == ShownPath(row.Choice.Folder)) return row.Choice;
  return {row.Choice.For, TypedFolder(row.Typed->text(), home_)};
}

Choice CollectionDialog::Ask() {
  if (exec() != Accepted) return {};
  return ChoiceOf(Chosen());
}

}  // namespace desktop
