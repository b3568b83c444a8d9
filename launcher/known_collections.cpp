// A line each, `collection = PATH` or `copies = PATH`, so that people can write them too. A backslash in a path stands
// before a line feed, written as n, and before another backslash.
#include "launcher/known_collections.h"

#include <algorithm>
#include <ctime>

#include "runtime/whole_io.h"

namespace launcher {
namespace {

constexpr std::string_view CollectionKey = "collection = ";
constexpr std::string_view CopiesKey = "copies = ";
constexpr std::int64_t LongestFile = 1024 * 1024;

std::string Escaped(std::string_view path) {
  std::string text;
  for (char letter : path) {
    if (letter == '\\')
      text += "\\\\";
    else if (letter == '\n')
      text += "\\n";
    else
      text += letter;
  }
  return text;
}

std::string Unescaped(std::string_view text) {
  std::string path;
  for (std::size_t at = 0; at < text.size(); ++at) {
    bool escape = text[at] == '\\' && at + 1 < text.size();
    if (escape) ++at;
    path += escape && text[at] == 'n' ? '\n' : text[at];
  }
  return path;
}

void ReadLine(std::string_view line, KnownCollections& known) {
  if (line.starts_with(CopiesKey)) {
    known.CopiesFolder = Unescaped(line.substr(CopiesKey.size()));
  } else if (line.starts_with(CollectionKey)) {
    std::string folder = Unescaped(line.substr(CollectionKey.size()));
    bool news = std::ranges::find(known.Folders, folder) == known.Folders.end();
    if (folder.starts_with('/') && news && known.Folders.size() < MostFolders) known.Folders.push_back(folder);
  } else if (!line.empty()) {
    known.Others.emplace_back(line);
  }
}

// What a stop has left: the settings file's name, then ".new", or ".2.new" and so on.
bool IsTemporary(std::string_view name) {
  if (!name.starts_with(SettingsFile)) return false;
  name.remove_prefix(SettingsFile.size());
  if (!name.ends_with(runtime::AsideEnding)) return false;
  name.remove_suffix(runtime::AsideEnding.size());
  return name.empty() ||
         (name.size() > 1 && name[0] == '.' && name.find_first_not_of("0123456789", 1) == std::string_view::npos);
}

// Another start may be writing a file that was changed in the last minute.
bool MayBeInUse(runtime::Disk& settings, const std::string& name) {
  constexpr std::int64_t Minute = 60;
  try {
    const runtime::OpenFile file(settings, name, runtime::Disk::Mode::Read);
    return std::time(nullptr) - file.Modified().Seconds < Minute;
  } catch (const runtime::Failure&) {
    return true;
  }
}

}  // namespace

KnownCollections ReadKnown(runtime::Disk& settings) {
  KnownCollections known;
  std::string text;
  try {
    runtime::OpenFile file(settings, std::string(SettingsFile), runtime::Disk::Mode::Read);
    text.resize(static_cast<std::size_t>(std::min(file.Length(), LongestFile)));
    text.resize(file.Read(text.data(), text.size(), 0));
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
  }
  for (std::size_t from = 0; from < text.size();) {
    std::size_t end = std::min(text.find('\n', from), text.size());
    ReadLine(std::string_view(text).substr(from, end - from), known);
    from = end + 1;
  }
  return known;
}

void WriteKnown(runtime::Disk& settings, const KnownCollections& known) {
  std::string text;
  for (const std::string& folder : known.Folders) text.append(CollectionKey).append(Escaped(folder)).append("\n");
  if (!known.CopiesFolder.empty()) text.append(CopiesKey).append(Escaped(known.CopiesFolder)).append("\n");
  for (const std::string& line : known.Others) text.append(line).append("\n");
  for (const std::string& name : settings.List("")) {
    if (IsTemporary(name) && !MayBeInUse(settings, name)) runtime::Discard(settings, name);
  }
  runtime::WriteAside(settings, std::string(SettingsFile), [&](const runtime::OpenFile& file) { file.Write(text, 0); });
}

void Remember(KnownCollections& known, const std::string& folder) {
  std::erase(known.Folders, folder);
  known.Folders.insert(known.Folders.begin(), folder);
  if (known.Folders.size() > MostFolders) known.Folders.resize(MostFolders);
}

}  // namespace launcher
