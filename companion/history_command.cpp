// Lists the history, or restores one film to its slot; refuses to restore while the program has the folder open.
#include "companion/history_command.h"

#include <charconv>
#include <iomanip>
#include <optional>

#include "runtime/code_page.h"
#include "runtime/folder_lock.h"
#include "runtime/text.h"
#include "store/history.h"
#include "store/master_file.h"

namespace companion {
namespace {

constexpr std::string_view Usage =
    "usage: reelora-history [FOLDER]              lists the films that were overwritten\n"
    "       reelora-history [FOLDER] undo NUMBER  puts one of them back\n";

struct Request {
  std::string Folder = ".";
  std::optional<std::int64_t> Undo;  // number of the entry to restore
};

std::optional<Request> ParseArguments(std::vector<std::string> arguments) {
  Request request;
  if (arguments.size() >= 2 && arguments[arguments.size() - 2] == "undo") {
    const std::string& text = arguments.back();
    std::int64_t number = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    request.Undo = number;
    arguments.resize(arguments.size() - 2);
  }
  if (arguments.size() > 1 || (arguments.size() == 1 && arguments[0].starts_with("-"))) return std::nullopt;
  if (arguments.size() == 1) request.Folder = arguments[0];
  return request;
}

// Characters that could steer a terminal become question marks.
std::string Printable(std::string_view text) {
  std::string printable(text);
  for (char& character : printable) {
    const char32_t unicode = runtime::ToUnicode(character);
    if (unicode < U' ' || (unicode >= 0x7F && unicode < 0xA0)) character = '?';
  }
  return runtime::ToUtf8(printable);
}

std::string TitleOf(const store::FilmRecord& film) {
  std::string_view title = runtime::Trim(film.Get(store::FilmField::Title));
  return title.empty() ? "nothing" : Printable(title);
}

store::FilmRecord ReadSlot(const runtime::OpenFile& master, std::int64_t slot) {
  store::FilmRecord film;
  master.Read(film.Bytes.data(), film.Bytes.size(), (slot - 1) * store::RecordLength);
  return film;
}

int List(runtime::Disk& disk, const runtime::OpenFile& master, std::ostream& out, std::ostream& errors) {
  if (std::int64_t entries = store::CountHistory(disk); entries > LongestHistory) {
    errors << "The history is damaged: it has " << entries << " entries.\n";
    return 1;
  }
  bool any = false;
  store::EachKeptFilm(disk, 0, [&](const store::KeptFilm& kept) {
    if (!any) out << "   No.  overwritten          record  film, and what stands there now\n";
    any = true;
    store::FilmRecord current = ReadSlot(master, kept.Slot);
    out << std::setw(6) << kept.Number << "  " << Printable(kept.When) << std::setw(8) << kept.Slot << "  "
        << TitleOf(kept.Film) << (current.Bytes == kept.Film.Bytes ? " - this film" : " - " + TitleOf(current)) << "\n";
  });
  if (!any) out << "No film has been overwritten.\n";
  return 0;
}

int Undo(runtime::Disk& disk, std::int64_t number, std::ostream& out, std::ostream& errors) {
  std::optional<store::KeptFilm> kept = store::ReadKeptFilm(disk, number);
  if (!kept) {
    errors << "There is no entry " << number << ".\n";
    return 1;
  }
  runtime::Files files(disk);
  store::PutBack(files, *kept);
  out << "Record " << kept->Slot << " holds " << TitleOf(kept->Film)
      << " again. Sort in the program, so that views and lists show it.\n";
  return 0;
}

}  // namespace

std::unique_ptr<runtime::Disk> RealDiskIn(const std::string& folder) {
  return std::make_unique<runtime::RealDisk>(folder);
}

int RunHistoryCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& errors,
                      const DiskIn& disk_in) {
  std::optional<Request> request = ParseArguments(arguments);
  if (!request) {
    errors << Usage;
    return 2;
  }
  try {
    const std::unique_ptr<runtime::Disk> disk = disk_in(request->Folder);
    disk->NewFilesLike(std::string(store::MasterFileName));
    runtime::OpenFile master(*disk, std::string(store::MasterFileName), runtime::Disk::Mode::Read);
    if (!request->Undo) return List(*disk, master, out, errors);
    runtime::FolderLock lock(request->Folder);
    if (lock.Held()) return Undo(*disk, *request->Undo, out, errors);
    errors << "This collection is already open.\n";
  } catch (const runtime::Failure& failure) {
    errors << failure.Name << ": " << request->Folder << "/" << failure.File << "\n";
  }
  return 1;
}

}  // namespace companion
