// Keys that lead to no film or to another one, films without a key, and counts that disagree. All of it is mended by a
// sort, so each file tells the first few only.
#include <algorithm>

#include "companion/fields.h"
#include "companion/folder_checks.h"
#include "companion/printable.h"
#include "exchange/import_plan.h"
#include "runtime/text.h"
#include "sort/include.h"
#include "store/sort_pass.h"

namespace companion {
namespace {

constexpr std::size_t MostKeysTold = 5;
constexpr std::int64_t NearTheEnd = 32'000;

using Films = std::vector<store::FilmRecord>;

struct KeyCheck {
  const Reading& Collection;
  const Films& All;
  const store::SortPass& Pass;
  Findings& Found;

  std::string Name() const { return std::string(Pass.Keys.Name); }
  void Tell(std::string what, std::string to_do) const {
    Found.push_back({0, Name(), std::move(what), std::move(to_do), std::nullopt, true});
  }
};

// What a key says about its film; "" if it is right.
std::string Complaint(const Films& films, std::string_view key, std::vector<bool>& has_key) {
  const std::string_view title = key.substr(0, store::KeyTitleWidth);
  const std::optional<std::int64_t> number =
      NumberIn(runtime::Trim(key.substr(store::KeyNumberOffset, store::KeyNumberWidth)));
  const std::string quoted = "the key \"" + Printable(runtime::Trim(title)) + "\"";
  if (!number || *number < 1) return quoted + " has no record number";
  if (*number > static_cast<std::int64_t>(films.size())) {
    return quoted + " leads to record " + std::to_string(*number) + ", which does not exist";
  }
  const auto index = static_cast<std::size_t>(*number - 1);
  has_key[index] = true;
  const std::string_view now = films[index].Get(store::FilmField::Title);
  if (now == title) return "";
  const std::string held = runtime::Trim(now).empty() ? "free" : "\"" + Printable(runtime::Trim(now)) + "\"";
  return quoted + " leads to record " + std::to_string(*number) + ", which is " + held;
}

// Returns how many keys there are.
std::int64_t LookAtKeys(const KeyCheck& check, const runtime::OpenFile& keys, std::vector<bool>& has_key) {
  std::size_t wrong = 0;
  std::string key(store::KeyLength, ' ');
  const std::int64_t count = keys.Length() / store::KeyLength;
  for (std::int64_t at = 0; at < count; ++at) {
    keys.Read(key.data(), key.size(), at * store::KeyLength);
    const std::string complaint = Complaint(check.All, key, has_key);
    if (!complaint.empty() && ++wrong <= MostKeysTold) check.Tell(complaint, "Sort.");
  }
  if (wrong > MostKeysTold) {
    check.Tell(Counted(static_cast<std::int64_t>(wrong - MostKeysTold), "more key") + " of this kind", "Sort.");
  }
  return count;
}

void LookAtMissing(const KeyCheck& check, const std::vector<bool>& has_key, const sort::Weights& weights) {
  const sort::IncludeFilter includes(sort::ParseStatement(store::StatementOf(check.Pass))->Include, weights);
  std::int64_t missing = 0, first = 0;
  for (std::size_t at = 0; at < check.All.size(); ++at) {
    if (has_key[at] || !HasTitle(check.All[at]) || !includes.Keeps(check.All[at].Bytes.data())) continue;
    if (missing++ == 0) first = static_cast<std::int64_t>(at) + 1;
  }
  if (missing == 0) return;
  const std::string record = std::to_string(first);
  check.Tell(missing == 1 ? "the film of record " + record + " is missing"
                          : Counted(missing, "film") + " are missing, from record " + record + " on",
             "Sort.");
}

void LookAtCount(const KeyCheck& check, std::int64_t keys) {
  const std::string name(check.Pass.Keys.CountFile);
  const std::optional<std::string> text = ReadSmall(check.Collection.Disk(), name);
  const auto tell = [&](std::string what) {
    check.Found.push_back({0, name, std::move(what), "Sort.", std::nullopt, true});
  };
  if (!text) {
    tell("the file is missing; the program does not start without it");
    return;
  }
  const std::string_view line = std::string_view(*text).substr(0, text->find_first_of("\r\n"));
  const std::optional<std::int64_t> count = NumberIn(runtime::Trim(line));
  if (!count)
    tell("\"" + Printable(line) + "\" is no number");
  else if (*count != keys)
    tell("it says " + std::to_string(*count) + ", but " + check.Name() + " has " + Counted(keys, "key"));
}

bool IsOlder(runtime::FileTime left, runtime::FileTime right) {
  return left.Seconds != right.Seconds ? left.Seconds < right.Seconds : left.Nanoseconds < right.Nanoseconds;
}

void LookAtFile(const KeyCheck& check, const runtime::OpenFile& keys, const sort::Weights& weights) {
  if (std::int64_t rest = keys.Length() % store::KeyLength; rest != 0) {
    check.Tell(Counted(rest, "byte") + " after the last whole key; a view has no end then", "Sort.");
  }
  if (std::int64_t keys_claimed = keys.Length() / store::KeyLength; keys_claimed > Reading::MaxSlots) {
    check.Tell("it has " + Counted(keys_claimed, "key"), "Sort.");
    return;
  }
  std::vector<bool> has_key(check.All.size());
  const std::size_t before = check.Found.size();
  const std::int64_t count = LookAtKeys(check, keys, has_key);
  LookAtMissing(check, has_key, weights);
  LookAtCount(check, count);
  if (before == check.Found.size() && count > 0 && IsOlder(keys.Modified(), check.Collection.Modified())) {
    check.Tell("older than the films, though its keys are right", "Sort, if you want to be sure of the order.");
  }
  if (count <= NearTheEnd) return;
  check.Found.push_back(
      {0, check.Name(), Counted(count, "key") + (count > exchange::MostSlots ? ", too many" : ", near the end"),
       "A view has room for " + std::to_string(exchange::MostSlots) + ". Begin a second collection."});
}

}  // namespace

void CheckKeys(const Reading& reading, const Films& films, const sort::Weights& weights, Findings& findings) {
  for (const store::SortPass& pass : store::SortPasses) {
    const KeyCheck check{reading, films, pass, findings};
    try {
      LookAtFile(check, {reading.Disk(), check.Name(), runtime::Disk::Mode::Read}, weights);
    } catch (const runtime::Failure& failure) {
      if (failure.Name != runtime::FileNotFound) throw;
      std::vector<bool> none(films.size());
      LookAtMissing(check, none, weights);
      LookAtCount(check, 0);
    }
  }
}

}  // namespace companion
