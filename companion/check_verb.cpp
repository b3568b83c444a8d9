// check tells everything that is out of order; check --fix mends what needs no judgement.
#include <algorithm>

#include "companion/film_checks.h"
#include "companion/folder_checks.h"
#include "companion/json.h"
#include "companion/printable.h"
#include "companion/questions.h"
#include "companion/sort_run.h"
#include "companion/verbs.h"
#include "companion/writing.h"
#include "runtime/code_page.h"
#include "store/master_file.h"

namespace companion {
namespace {

// Nothing if the master file has too many records.
std::optional<Findings> FindAll(const Reading& reading) {
  Findings findings;
  const sort::Weights weights = ReadWeights(reading.Disk(), findings);
  CheckLength(reading, findings);
  FilmChecks checks(weights, findings);
  std::vector<store::FilmRecord> films;
  const bool read = reading.EachSlot([&](const NumberedFilm& film) {
    checks.Look(film);
    films.push_back(film.Film);
  });
  if (!read) return std::nullopt;
  checks.End();
  CheckKeys(reading, films, weights, findings);
  CheckSettings(reading.Disk(), findings);
  CheckSafetyFolder(reading.Disk(), findings);
  return findings;
}

bool CanBeMended(const Finding& finding) { return finding.How || finding.SortMends || finding.NextFixMends; }

void Print(const Finding& finding, std::ostream& text) {
  if (finding.Record > 0) text << "record " << finding.Record << ", ";
  text << finding.Where << ": " << finding.What << ". " << finding.ToDo << "\n";
}

void PrintEnd(const Findings& findings, bool fixing, std::ostream& text) {
  if (findings.empty()) {
    text << "Everything is in order.\n";
    return;
  }
  const auto mends = std::count_if(findings.begin(), findings.end(), CanBeMended);
  text << "Found " << Counted(static_cast<std::int64_t>(findings.size()), "thing") << ".";
  if (mends > 0) text << " " << mends << " can be mended" << (fixing ? "." : ": check --fix.");
  text << "\n";
}

void PrintJson(const Findings& findings, std::ostream& text) {
  Json json(text);
  json.BeginList();
  for (const Finding& finding : findings) {
    json.BeginObject();
    if (finding.Record > 0) json.Add("record", finding.Record);
    json.Add("where", finding.Where);
    json.Add("what", finding.What);
    json.Add("toDo", finding.ToDo);
    json.AddTruth("canBeMended", CanBeMended(finding));
    if (finding.How) json.Add("mended", runtime::ToUtf8(finding.How->Bytes));
    json.End();
  }
}

// Mends under the lock of the collection, a question for each.
class Mending {
 public:
  Mending(runtime::Disk& disk, Output& output, Questions& questions)
      : files_(disk), output_(output), questions_(questions) {}

  // Returns how many were mended.
  std::int64_t Mend(const Findings& findings) {
    store::OpenMaster(files_, MasterNo);
    for (const Finding& finding : findings) {
      if (finding.Record != open_) SaveFilm();
      if (finding.How && Agreed(finding)) finding.Record > 0 ? MendFilm(finding) : MendSetting(finding);
    }
    SaveFilm();
    files_.Close(MasterNo);
    SortIfAsked(findings);
    return mended_;
  }

 private:
  static constexpr int MasterNo = 1, SettingNo = 3;

  bool Agreed(const Finding& finding) {
    Print(finding, output_.Text);
    return questions_.Agreed("Mend it?");
  }
  // All mends of a film are saved at once.
  void MendFilm(const Finding& finding) {
    if (open_ == 0) store::ReadRecord(files_, MasterNo, finding.Record, film_);
    open_ = finding.Record;
    film_.Set(finding.How->Field, finding.How->Bytes);
    mended_ += 1;
  }
  void SaveFilm() {
    if (open_ > 0) store::WriteRecord(files_, MasterNo, open_, film_);
    open_ = 0;
  }
  void MendSetting(const Finding& finding) {
    files_.OpenOutput(SettingNo, finding.Where);
    files_.WriteLine(SettingNo, finding.How->Bytes);
    files_.Close(SettingNo);
    mended_ += 1;
  }
  // A mended title is in the wrong place, too.
  void SortIfAsked(const Findings& findings) {
    const auto asking = std::count_if(findings.begin(), findings.end(), [](const Finding& finding) {
      return finding.SortMends || (finding.Record > 0 && finding.How);
    });
    for (const Finding& finding : findings) {
      if (finding.SortMends) Print(finding, output_.Text);
    }
    if (asking == 0 || !questions_.Agreed("Sort the collection?")) return;
    if (PrintSorted(SortCollection(files_, output_), output_) != Done) return;
    mended_ +=
        std::count_if(findings.begin(), findings.end(), [](const Finding& finding) { return finding.SortMends; });
  }

  runtime::Files files_;
  Output& output_;
  Questions& questions_;
  store::FilmRecord film_;
  std::int64_t open_ = 0;  // its record, while it has mends that are not saved
  std::int64_t mended_ = 0;
};

int Fix(const Reading& reading, const Invocation& invocation, Output& output) {
  return WriteLocked(invocation, output, [&](runtime::Disk& disk) {
    const std::optional<Findings> findings = FindAll(reading);
    if (!findings) return RefuseLength(reading, output);
    for (const Finding& finding : *findings) {
      if (!CanBeMended(finding) || finding.NextFixMends) Print(finding, output.Text);
    }
    Questions questions(output, invocation.Has("yes"));
    const std::int64_t mended = Mending(disk, output, questions).Mend(*findings);
    PrintEnd(*findings, true, output.Text);
    output.Text << Counted(mended, "thing") << " mended.\n";
    return mended == static_cast<std::int64_t>(findings->size()) ? Done : Found;
  });
}

}  // namespace

int Check(const Invocation& invocation, Output& output) {
  const bool fixing = invocation.Has("fix");
  if (invocation.Write && !fixing) return WrongUsage(invocation.Verb, output, "--write goes with --fix");
  if (invocation.Write && invocation.Json) {
    return WrongUsage(invocation.Verb, output, "--json has no questions; check again after the mending");
  }
  const Reading reading(invocation);
  if (invocation.Write) return Fix(reading, invocation, output);
  const std::optional<Findings> findings = FindAll(reading);
  if (!findings) return RefuseLength(reading, output);
  if (invocation.Json) {
    PrintJson(*findings, output.Text);
  } else {
    for (const Finding& finding : *findings) {
      if (!fixing || CanBeMended(finding)) Print(finding, output.Text);
    }
    PrintEnd(*findings, fixing, output.Text);
    if (fixing) output.Text << NothingWritten;
  }
  return findings->empty() ? Done : Found;
}

}  // namespace companion
