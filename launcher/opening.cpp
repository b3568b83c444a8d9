// A user who was asked and chose what cannot be opened is asked again.
#include "launcher/opening.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "launcher/closed_folder.h"
#include "launcher/collection_folder.h"
#include "launcher/reasons.h"
#include "store/master_file.h"

namespace launcher {
namespace {

namespace fs = std::filesystem;

// Absolute, without a slash at its end. Links stay in the name, as the user gave it, unless a ".." after one of them
// counts from where the link leads.
std::string WholeName(const fs::path& folder) {
  std::error_code none;
  fs::path whole = folder;
  if (std::ranges::find(folder, fs::path("..")) != folder.end()) whole = fs::weakly_canonical(folder, none);
  if (none) whole = folder;
  std::string name = whole.lexically_normal().string();
  while (name.size() > 1 && name.ends_with('/')) name.pop_back();
  return name;
}

class Opening {
 public:
  Opening(const Places& places, std::chrono::local_seconds now, Person& person, const DiskIn& disk_in)
      : places_(places),
        person_(person),
        preparation_(
            places, now, [&person](const std::string& text) { person.Tell(text); }, disk_in) {}

  std::optional<Opened> Named(const std::string& folder, const std::string& current_folder) {
    if (!folder.starts_with('/') && current_folder.empty()) {
      person_.Tell("The folder " + folder + " cannot be found, since the current folder is gone. Give its whole name.");
      return std::nullopt;
    }
    return Open({Choice::What::New, (fs::path(current_folder) / folder).string()});
  }

  std::optional<Opened> LastOne() {
    std::vector<std::string> known = preparation_.Known().Folders;
    std::string suggested = SuggestedCollection(places_);
    if (known.empty() && IsCollection(suggested)) known = {suggested};  // the settings are lost, not the films
    if (known.empty()) return Ask({"", {}, FreeFolder()});
    if (IsCollection(known.front())) return Open({Choice::What::Existing, known.front()});
    return Ask({known.front(), Present(known), FreeFolder()});
  }

  std::optional<Opened> Chosen() { return Ask({"", Present(preparation_.Known().Folders), FreeFolder()}); }

  std::optional<Opened> Open(const Choice& choice) {
    if (choice.For == Choice::What::Sample) return OpenSample();
    const std::string folder = WholeName(choice.Folder);
    if (choice.For == Choice::What::Existing && !IsCollection(folder)) {
      if (IsClosed(folder)) return std::nullopt;
      person_.Tell("There is no collection in " + folder + ". A collection is a folder with the file " +
                   std::string(store::MasterFileName) + ".");
      return std::nullopt;
    }
    if (!Make(folder)) return std::nullopt;
    // In this order: what another start has just put there begins with what makes it a collection.
    if (!IsEmpty(folder) && !IsCollection(folder) && (IsClosed(folder) || !person_.MayFill(folder)))
      return std::nullopt;
    preparation_.Prepare(folder);
    preparation_.Remember(folder);
    return Opened{folder, preparation_.Notice()};
  }

 private:
  std::optional<Opened> Ask(const Question& question) {
    for (;;) {
      const Choice choice = person_.Ask(question);
      if (choice.For == Choice::What::Nothing) return std::nullopt;
      if (std::optional<Opened> opened = Open(choice)) return opened;
    }
  }

  std::optional<Opened> OpenSample() {
    if (places_.Sample.empty()) {
      person_.Tell(
          "There is no home folder that the sample could be copied to. Name a folder for a collection instead.");
      return std::nullopt;
    }
    if (!Make(places_.Sample) || !preparation_.PrepareSample(places_.Sample)) return std::nullopt;
    return Opened{places_.Sample, preparation_.Notice()};
  }

  // Whether this user may not open the folder, which is told.
  bool IsClosed(const std::string& folder) {
    const std::string why = WhyClosed(folder);
    if (!why.empty()) person_.Tell(why);
    return !why.empty();
  }

  bool Make(const std::string& folder) {
    std::error_code error, none;
    fs::create_directories(folder, error);
    if (fs::is_directory(folder, none)) return true;
    if (IsClosed(folder)) return false;
    person_.Tell("The folder " + folder + " cannot be made. " + ReasonOf(error.value()));
    return false;
  }

  // The usual folder for a new collection, with a number behind it if it is in use.
  std::string FreeFolder() const {
    const std::string usual = SuggestedCollection(places_);
    std::string folder = usual;
    std::error_code none;
    for (int number = 2; number < 100 && fs::exists(folder, none) && !IsEmpty(folder); ++number)
      folder = usual + " " + std::to_string(number);
    return folder;
  }

  static std::vector<std::string> Present(const std::vector<std::string>& folders) {
    std::vector<std::string> present;
    std::ranges::copy_if(folders, std::back_inserter(present), IsCollection);
    return present;
  }

  const Places& places_;
  Person& person_;
  Preparation preparation_;
};

}  // namespace

std::optional<Opened> OpenCollection(const Arguments& arguments, const Places& places,
                                     const std::string& current_folder, std::chrono::local_seconds now, Person& person,
                                     const DiskIn& disk_in) {
  Opening opening(places, now, person, disk_in);
  switch (arguments.For) {
    case Wish::Sample:
      return opening.Open({Choice::What::Sample, ""});
    case Wish::Folder:
      return opening.Named(arguments.Folder, current_folder);
    case Wish::Choose:
      return opening.Chosen();
    default:
      return opening.LastOne();
  }
}

}  // namespace launcher
