// The formats that films are exported to and imported from. Every one but HTML brings back each byte of every film.
#pragma once

#include <span>
#include <string_view>

#include "exchange/films.h"
#include "exchange/rows.h"

namespace exchange {

void WriteCsv(const Collection& collection, const ByteSink& sink);
void WriteJson(const Collection& collection, const ByteSink& sink);
void WriteRec(const Collection& collection, const ByteSink& sink);
void WriteTellico(const Collection& collection, const ByteSink& sink);
void WriteHtml(const Collection& collection, const ByteSink& sink);

// Each row goes to `rows`, until the end, a fault, or `rows` asks to stop. Memory is bounded, whatever the file
// contains.
Fault ReadCsv(const ByteSource& source, Rows& rows);
Fault ReadJson(const ByteSource& source, Rows& rows);
Fault ReadRec(const ByteSource& source, Rows& rows);
// The XML of a Tellico file; ImportFile unzips one that is zipped.
Fault ReadTellico(const ByteSource& source, Rows& rows);

struct Format {
  std::string_view Name;
  std::string_view Ending;       // of a file name
  std::string_view OtherEnding;  // may be empty
  void (*Write)(const Collection& collection, const ByteSink& sink);
  Fault (*Read)(const ByteSource& source, Rows& rows);  // nullptr: no import
};

std::span<const Format> Formats();
// nullptr if there is none.
const Format* FormatOf(std::string_view name);
const Format* FormatOfFile(std::string_view file_name);

}  // namespace exchange
