// Any text as a sort statement: what is read fits its record, and written and read again it is the same.
#include <algorithm>

#include "tests/fuzz/fuzzing.h"
#include "tests/sort/plain_sort.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto statement = sort::ParseStatement(fuzz::Input(data, size).Rest());
  if (!statement) return 0;
  auto fits = [&](const sort::RecordSpan& span) {
    return span.Width > 0 && span.Offset + span.Width <= statement->RecordLength;
  };
  fuzz::Require(statement->RecordLength <= sort::MaxRecordLength, "the length of a record has a limit");
  fuzz::Require(!statement->Fields.empty() && !statement->Output.empty(), "there is a key and an output");
  fuzz::Require(std::all_of(statement->Fields.begin(), statement->Fields.end(),
                            [&](const sort::KeyField& field) { return fits(field.Span); }),
                "the key lies in the record");
  fuzz::Require(std::all_of(statement->Output.begin(), statement->Output.end(),
                            [&](const sort::OutputPiece& piece) {
                              return piece.As != sort::OutputPiece::Kind::Bytes || fits(piece.Span);
                            }),
                "the output lies in the record");
  fuzz::Require(!statement->Include || fits(statement->Include->Span), "the field compared lies in the record");
  const std::string written = sort::Written(*statement);
  const auto again = sort::ParseStatement(written);
  fuzz::Require(again && sort::Written(*again) == written, "a statement written and read again is the same");
  return 0;
}
