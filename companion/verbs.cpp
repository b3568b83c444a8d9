// The table.
#include "companion/verbs.h"

namespace companion {
namespace {

// clang-format off
constexpr std::string_view TestDetails =
    "A TEST is a field, a sign and a value: director~hawks, year>=1940, format=V, star=\"grant, cary\". Signs: = != is\n"
    "and is not, ~ !~ contains and does not, < <= > >= by value. Case is ignored. A code also answers to its word:\n"
    "genre=western. A word alone is looked for in every field. A film is taken if all tests hold.\n"
    "Fields: number title director star star1 to star6 label format numreel genre time year cassno letter clv1 color1\n"
    "producer cinematographer written music choreography setdirection costume sound awards rating package purchase\n"
    "cost ratings. \"all\" as COLUMNS is each of them. Columns are cut to the width of a terminal; elsewhere they are\n"
    "separated by tabs, and a control character is written as \\t, \\n, \\r or \\xHH.\n";

constexpr std::string_view OtherDetails =
    "OTHER is the path of a collection, a zip of one or a file of films, or a name that backups lists. Films belong\n"
    "together if they have the same title in the same record, or the same title and year; for diff also if they have the\n"
    "same director and year in the same record. Status 1 of diff: something differs.\n";

constexpr Option ListOptions[] = {
  { "sort",    's', "FIELDS",  "in this order; with - in front of a field, the other way round" },
  { "columns", 'c', "COLUMNS", "fields with commas between; number,title,year,format,genre,time,director by default" },
};

constexpr Option CheckOptions[] = {
  { "fix", 0,   nullptr, "mend what needs no judgement, with a question for each" },
  { "yes", 'y', nullptr, "answer every question with yes" },
};

constexpr Option RestoreOptions[] = {
  { "free", 'f', nullptr, "into the first free record, not into its own" },
};

constexpr Option BackupOptions[] = {
  { "zip", 'z', nullptr,  "a zip, not a folder" },
  { "to",  't', "FOLDER", "into that folder, not into backups in the collection" },
};

constexpr Option BackupsOptions[] = {
  { "from", 'f', "FOLDER", "of that folder, not of backups in the collection" },
};

constexpr Option DraftOptions[] = {
  { "keep", 'k', nullptr, "save it, as the program does" },
  { "drop", 'd', nullptr, "remove it" },
};

constexpr Option ExportOptions[] = {
  { "format", 'f', "FORMAT", "csv, json, rec, tellico or html; as the name of FILE says, or csv, by default" },
  { "output", 'o', "FILE",   "write it there, not to the standard output" },
};

constexpr std::string_view ImportDetails =
    "Shows each film as it would be stored, and what is changed on the way: values that are cut, words that become codes,\n"
    "characters that cannot be stored, articles that move as a save moves them. Columns go into fields by their names; those\n"
    "of other catalogues are known. FIELD may also be \"Stars\" for a list that fills the six, or nothing. New films go into\n"
    "free records first. Films of an export into a collection without films keep their records. An empty folder becomes a\n"
    "new collection.\n";

constexpr Option ImportOptions[] = {
  { "format",        'f', "FORMAT",       "csv, json, rec or tellico; as the name of FILE says by default" },
  { "map",           'm', "COLUMN=FIELD", "put this column into that field; may be repeated" },
  { "doubles",       'd', "WHAT",         "films of a title and year that is there: skip (by default), update or add" },
  { "transliterate", 't', nullptr,        "put other letters for those that cannot be stored, not ?" },
  { "sort",          's', nullptr,        "sort afterwards" },
};

constexpr Verb Table[] = {
  { "list", "[TEST]...", "list films, chosen by tests of their fields", TestDetails,
    ListOptions, 0, AnyNumber, false, List },
  { "search", "TEST...", "the same, with status 1 if there are none", TestDetails,
    ListOptions, 1, AnyNumber, false, Search },
  { "stats", "", "tell what the collection is made of, and what it cost", "",
    {}, 0, 0, false, Stats },
  { "check", "", "tell everything that is out of order",
    "Status 1 if there is anything. A question of --fix --write is answered with y for yes, n for no, a for yes to all\n"
    "that follow, q for no to all.\n",
    CheckOptions, 0, 0, true, Check },
  { "sort", "", "make the key files and counts, as Sort in the program does", "",
    {}, 0, 0, true, Sort },
  { "export", "", "write the films as CSV, JSON, recutils, Tellico or a page for the browser",
    "Every format but html brings back each byte of every film. --json is --format json.\n",
    ExportOptions, 0, 0, false, Export },
  { "import", "FILE", "take films from a file of another catalogue or an export", ImportDetails,
    ImportOptions, 1, 1, true, Import },
  { "history", "[NUMBER]", "list the films that were overwritten or deleted",
    "With a number, shows that film field by field beside what its record holds now.\n",
    {}, 0, 1, false, History },
  { "restore", "NUMBER", "put a film of the history back",
    "The film goes into the record that it was in. What that holds goes to the history in its turn.\n",
    RestoreOptions, 1, 1, true, Restore },
  { "draft", "[NAME]", "show what was typed and not saved, keep or drop it",
    "A film that is kept goes into its record if that is free or still holds the film that was opened, otherwise into the\n"
    "first free one. A leading article is moved, as by a save.\n",
    DraftOptions, 0, 1, true, Draft },
  { "backup", "", "copy the collection and read the copy back",
    "The copy has the films, the key files, the settings and the history. A folder is a collection itself.\n",
    BackupOptions, 0, 0, true, Backup },
  { "backups", "", "list the copies there are", "The command reelora makes copies of the films before each start; they are here, too.\n",
    BackupsOptions, 0, 0, false, Backups },
  { "restore-backup", "COPY", "put a copy back, after a copy of what is there now",
    "COPY is a name that backups lists, or the path of a folder, a zip or a file of films. The history stays.\n",
    {}, 1, 1, true, RestoreBackup },
  { "diff", "OTHER", "tell what differs from another collection or a copy", OtherDetails,
    {}, 1, 1, false, Diff },
  { "merge", "OTHER", "take the films that are only in the other one", OtherDetails,
    {}, 1, 1, true, Merge },
};
// clang-format on

}  // namespace

std::span<const Verb> Verbs() { return Table; }

}  // namespace companion
