// Boxes and dialogs open over the front window, after what a handler has changed is drawn.
#include "desktop/qt_desk.h"

#include <QApplication>
#include <QColorDialog>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>
#include <utility>

#include "desktop/control_view.h"
#include "desktop/draft_box.h"
#include "desktop/drives.h"
#include "desktop/failure_box.h"
#include "desktop/input_dialog.h"
#include "desktop/message_box.h"
#include "desktop/notices.h"
#include "desktop/stack_view.h"
#include "desktop/text.h"

namespace desktop {
namespace {

constexpr std::string_view OwnTitle = "Reelora Prima";
constexpr std::chrono::milliseconds DisplayFrame(16);

QString TitleOf(std::string_view title) { return Shown(title.empty() ? OwnTitle : title); }

}  // namespace

QtDesk::QtDesk(std::string folder) : folder_(std::move(folder)) {}

QWidget* QtDesk::FrontWindow() {
  if (!view_) return nullptr;
  view_->EndProgress();
  view_->Sync();
  return view_->Front();
}

forms::Answer QtDesk::AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                                    forms::Buttons buttons) {
  forms::Answer answer =
      desktop::MessageBox(icon, TitleOf(title), Shown(text).remove('\r'), buttons, FrontWindow()).Ask();
  StopIfSessionEnded();
  return answer;
}

std::string QtDesk::InputBox(std::string_view title, std::string_view prompt) {
  InputDialog dialog(TitleOf(title), Shown(prompt).remove('\r'), FrontWindow(), [this](const QString& characters) {
    Beep();
    if (view_) view_->Notices().Show(NotStoredText(characters), {}, CharacterNotice);
  });
  int closed = dialog.exec();
  StopIfSessionEnded();
  return closed == QDialog::Accepted ? Stored(dialog.Answer()) : std::string();
}

void QtDesk::Beep() { QApplication::beep(); }

std::optional<std::uint32_t> QtDesk::ColourDialog(std::uint32_t start) {
  QColor colour = QColorDialog::getColor(ToColour(start), FrontWindow());
  StopIfSessionEnded();
  if (!colour.isValid()) return std::nullopt;
  return static_cast<std::uint32_t>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

void QtDesk::PrinterDialog() {
  printer_.SetUp(FrontWindow());
  StopIfSessionEnded();
}

void QtDesk::Print(const runtime::PrintJob& job) {
  PrintedTo printed = printer_.Print(job, Now(), [this](double done) { Progress("Printing the report", done); });
  if (view_) ShowPrinted(printed);
}

void QtDesk::ShowPrinted(const PrintedTo& printed) {
  NoticeLine& notices = view_->Notices();
  if (printed.File.isEmpty()) {
    notices.Show(printed.Queue.isEmpty() ? NothingPrintedText() : SentText(printed.Queue), {}, ReportNotice);
    return;
  }
  auto opens = [](const QString& path) { return [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }; };
  QString folder = QFileInfo(printed.File).absolutePath();
  notices.Show(SavedText(printed.File), {{"Open", opens(printed.File)}, {"Show folder", opens(folder)}}, ReportNotice);
}

void QtDesk::Help(int topic) {
  if (!help_) help_ = std::make_unique<HelpViewer>(folder_);
  help_->Open(topic);
}

std::chrono::local_seconds QtDesk::Now() {
  QDateTime now = QDateTime::currentDateTime();
  return std::chrono::local_seconds(std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
}

std::string QtDesk::DriveLetters() { return desktop::DriveLetters(); }

std::optional<std::string> QtDesk::DriveFolder(char letter) { return desktop::DriveFolder(letter, folder_); }

void QtDesk::Repaint() {
  if (std::chrono::steady_clock::now() - painted_ >= DisplayFrame) RepaintNow();
}

void QtDesk::RepaintNow() {
  if (view_) view_->Paint();
  painted_ = std::chrono::steady_clock::now();
}

void QtDesk::Progress(std::string_view work, double done) {
  if (view_) view_->Progress(work, done);
}

void QtDesk::Copied(std::string_view file, char drive, std::int64_t bytes) {
  if (!view_) return;
  std::optional<std::string> folder = DriveFolder(drive);
  QString disk = folder ? DiskName(*folder) : QString();
  view_->Notices().Show(CopiedText(Shown(file), disk, drive, bytes), {}, CopyNotice);
}

void QtDesk::Notice(std::string_view text) {
  if (view_) view_->Notices().Show(Shown(text), {}, DraftNotice);
}

forms::DraftAnswer QtDesk::AskDraft(std::string_view title) {
  forms::DraftAnswer answer = DraftBox(Shown(OwnTitle), Shown(title), FrontWindow()).Ask();
  StopIfSessionEnded();
  return answer;
}

// Every event loop ends, those of boxes too.
void QtDesk::EndSession() {
  session_ended_ = true;
  QApplication::exit(0);
}

void QtDesk::StopIfSessionEnded() const {
  if (session_ended_) throw forms::SessionEnded{};
}

// Not quit(): that would ask the windows first, and they leave the answer to the form.
void QtDesk::Closed() { QApplication::exit(0); }

// What a handler has changed before it failed is not drawn: the form may already say that the work is saved.
void QtDesk::FailureReport(const runtime::Failure& failure) {
  if (view_) view_->StopDrawing();
  FailureBox box(failure, QString::fromStdString(folder_), view_ ? view_->Front() : nullptr);
  start_again_ = box.Ask() == FailureBox::Choice::StartAgain;
  QApplication::exit(1);
}

}  // namespace desktop
