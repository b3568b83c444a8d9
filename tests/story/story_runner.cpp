// One run of the program is a desk, a disk, a program and a player; a restart throws all four away.
#include "tests/story/story_runner.h"

#include <exception>
#include <iostream>
#include <map>
#include <utility>

#include "tests/kit/fresh_folder.h"
#include "tests/kit/source_tree.h"
#include "tests/story/bare_player.h"
#include "tests/story/set_up.h"

namespace story {
namespace {

namespace fs = std::filesystem;

// Members in the order in which they build on each other.
struct ProgramRun {
  ProgramRun(World& world, const PlayerFactory& make_player)
      : Desk(world), Disk(world.Folder.string()), Running(Desk, Disk) {
    if (make_player) {
      Player = make_player(Running);
    } else {
      Player = std::make_unique<BarePlayer>(Running);
    }
  }

  PlannedDesk Desk;
  runtime::RealDisk Disk;
  Program Running;
  std::unique_ptr<story::Player> Player;
};

class Performance {
 public:
  Performance(const std::vector<Line>& lines, const fs::path& folder, const fs::path& story_folder,
              const RunnerOptions& options)
      : lines_(lines), world_{folder}, story_folder_(story_folder), options_(options) {}

  // Throws Difference, the first.
  void Play() {
    LayOutFolder(world_, kit::DeliveredFolder());
    for (std::size_t at = 0; at < lines_.size();) at = PlayFrom(at);
  }

 private:
  // Plays a line and the effects below it; where the next one stands.
  std::size_t PlayFrom(std::size_t at) {
    const Line& line = lines_[at];
    try {
      return PlayLine(line, at);
    } catch (const Unplayable& unplayable) {
      throw Difference{line.Number, unplayable.What};
    } catch (const std::exception& error) {
      throw Difference{line.Number, Differs("a line that can be played", error.what())};
    }
  }

  std::size_t PlayLine(const Line& line, std::size_t at) {
    switch (line.As) {
      case Role::SetUp:
        SetUp(world_, line, story_folder_);
        return at + 1;
      case Role::Check:
        Check({run_ ? &run_->Running : nullptr, world_, story_folder_}, line);
        return at + 1;
      case Role::Effect:
        throw Difference{line.Number, Differs("an action above the effect", line.Notation())};
      case Role::Action:
        break;
    }
    std::size_t end = at + 1;
    while (end < lines_.size() && lines_[end].As == Role::Effect) ++end;
    using Step = std::vector<Line>::difference_type;
    PlayAction(line, {lines_.begin() + static_cast<Step>(at + 1), lines_.begin() + static_cast<Step>(end)});
    return end;
  }

  void PlayAction(const Line& line, std::vector<Line> effects) {
    bool starts = line.Verb == "start";
    if (starts == (run_ != nullptr)) {
      throw Difference{line.Number, starts ? Differs("a first start", "another one")
                                           : Differs("start above the first action", line.Notation())};
    }
    if (starts || line.Verb == "restart") {
      run_.reset();
      run_ = std::make_unique<ProgramRun>(world_, options_.MakePlayer);
    }
    run_->Desk.Plan(line.Number, std::move(effects));
    if (line.Verb == "restart" || starts) {
      Start(starts && !line.Arguments.empty());
    } else {
      Act(line);
    }
    run_->Desk.Finish();
    if (run_->Desk.First()) throw Difference(*run_->Desk.First());
  }

  void Start(bool with_opener) {
    if (with_opener) {
      run_->Running.StartOpener();
    } else {
      run_->Running.StartRecordScreen();
    }
    run_->Player->Settle();
  }

  void Act(const Line& line) {
    using Action = void (*)(Player&, const Line&);
    static const std::map<std::string_view, Action> actions = {
        {"click", [](Player& player, const Line& action) { player.Click(action.Text(0)); }},
        {"dblclick", [](Player& player, const Line& action) { player.DblClick(action.Text(0)); }},
        {"move", [](Player& player, const Line& action) { player.Move(action.Text(0)); }},
        {"pick", [](Player& player, const Line& action) { player.Pick(action.Text(0), action.Text(1)); }},
        {"key",
         [](Player& player, const Line& action) {
           int times = action.Arguments.size() > 1 ? action.Number32(1) : 1;
           for (int pressed = 0; pressed < times; ++pressed) player.Key(action.Text(0));
         }},
        {"type", [](Player& player, const Line& action) { player.Type(action.Text(0)); }},
        {"clear", [](Player& player, const Line&) { player.Clear(); }},
        {"close",
         [](Player& player, const Line& action) { player.Close(action.Arguments.empty() ? "" : action.Text(0)); }},
    };
    if (line.Verb == "picture") {
      if (!options_.Pictures.empty()) TakePicture(line);
      return;
    }
    actions.at(line.Verb)(*run_->Player, line);
  }

  // picture NAME: the window in front; picture page P NAME: a page of the last document; picture help N NAME: the help
  // viewer at that topic; picture failure "FAILURE" "FILE" ERROR NAME: the failure report; picture notice "TEXT"
  // "BUTTONS" NAME and picture work "WORK" PERCENT NAME: the window with a notice or with the progress of long work.
  void TakePicture(const Line& line) {
    std::string path = (options_.Pictures / (line.Arguments.back().Text + ".png")).string();
    if (line.Arguments.size() == 1) return run_->Player->Picture(path);
    if (line.Text(0) == "help") return run_->Player->HelpPicture(world_.Folder.string(), line.Number32(1), path);
    if (line.Text(0) == "failure")
      return run_->Player->FailurePicture({line.Text(1), line.Text(2), line.Number32(3)}, path);
    if (line.Text(0) == "notice") return run_->Player->NoticePicture(line.Text(1), line.Text(2), path);
    if (line.Text(0) == "work") return run_->Player->WorkPicture(line.Text(1), line.Number32(2), path);
    int page = line.Number32(1);
    if (!world_.Document || page < 1 || page > static_cast<int>(world_.Document->Pages.size()))
      throw Difference{line.Number, Differs("page " + line.Text(1), "a document without it")};
    run_->Player->PagePicture(*world_.Document, static_cast<std::size_t>(page - 1), path);
  }

  const std::vector<Line>& lines_;
  World world_;
  const fs::path& story_folder_;
  const RunnerOptions& options_;
  std::unique_ptr<ProgramRun> run_;
};

std::string NameOf(const fs::path& path, const std::string& row) {
  return row.empty() ? path.string() : path.string() + " [" + row + "]";
}

}  // namespace

std::optional<Difference> PlayLines(const std::vector<Line>& lines, const fs::path& folder,
                                    const fs::path& story_folder, const RunnerOptions& options) {
  try {
    Performance(lines, folder, story_folder, options).Play();
  } catch (const Difference& difference) {
    return difference;
  } catch (const fs::filesystem_error& error) {
    return Difference{0, Differs("a fresh working folder", error.what())};
  }
  return std::nullopt;
}

std::vector<std::optional<Difference>> PlayFile(const fs::path& path, const RunnerOptions& options) {
  std::vector<Story> stories;
  try {
    stories = ReadStories(path);
    if (stories[0].Lines.empty()) throw Difference{0, Differs("a story", "no line that plays or sees anything")};
  } catch (const Difference& difference) {
    return {difference};
  }
  std::vector<std::optional<Difference>> differences;
  for (const Story& one : stories) {
    kit::FreshFolder fresh(options.Keep);
    fs::path folder = fresh.Path() / "folder";
    fs::create_directory(folder);
    if (options.Keep) std::cout << NameOf(path, one.Row) << ": kept in " << folder.string() << "\n";
    differences.push_back(PlayLines(one.Lines, folder, path.parent_path(), options));
    if (differences.back()) differences.back()->Row = one.Row;
  }
  return differences;
}

}  // namespace story
