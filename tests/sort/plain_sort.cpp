// A list of record indexes and std::stable_sort.
#include "tests/sort/plain_sort.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace sort {
namespace {

std::string Written(const RecordSpan& span) {
  return std::to_string(span.Offset + 1) + "," + std::to_string(span.Width);
}

std::string Written(const OutputPiece& piece) {
  if (piece.As == OutputPiece::Kind::RecordNumber) return "Arrn";
  return piece.As == OutputPiece::Kind::LineEnd ? "CRLF" : Written(piece.Span);
}

std::string Relation(const IncludeTest& test) {
  if (test.KeepsEqual) return test.KeepsLess ? "LE" : test.KeepsGreater ? "GE" : "EQ";
  return !test.KeepsGreater ? "LT" : test.KeepsLess ? "NE" : "GT";
}

std::string_view Part(std::string_view record, const RecordSpan& span) {
  return record.substr(span.Offset, span.Width);
}

// Negative, 0 or positive; the shorter text is padded with blanks.
int Compared(const Weights& weights, std::string_view left, std::string_view right) {
  for (std::size_t at = 0; at < std::max(left.size(), right.size()); ++at) {
    auto weigh = [&](std::string_view text) {
      return weights[static_cast<unsigned char>(at < text.size() ? text[at] : ' ')];
    };
    if (weigh(left) != weigh(right)) return weigh(left) < weigh(right) ? -1 : 1;
  }
  return 0;
}

bool Keeps(const IncludeTest& test, const Weights& weights, std::string_view record) {
  const int order = Compared(weights, Part(record, test.Span), test.Constant);
  return order < 0 ? test.KeepsLess : order > 0 ? test.KeepsGreater : test.KeepsEqual;
}

}  // namespace

std::string Written(const Statement& statement) {
  std::string fields, pieces;
  for (const KeyField& field : statement.Fields)
    fields += (fields.empty() ? "" : ",") + Written(field.Span) + (field.Descending ? ",C,D" : ",C,A");
  for (const OutputPiece& piece : statement.Output) pieces += (pieces.empty() ? "" : ",") + Written(piece);
  std::string text = "S(" + fields + ")";
  if (statement.WeightsFile) text += " ALTSEQ(" + *statement.WeightsFile + ")";
  text += " OUTREC(" + pieces + ")";
  if (const auto& test = statement.Include)
    text += " Include(" + Written(test->Span) + ",C," + Relation(*test) + ",\"" + test->Constant + "\")";
  return text + " Record(" + std::to_string(statement.RecordLength) + ")";
}

Weights PlainWeights() {
  Weights weights{};
  std::iota(weights.begin(), weights.end(), static_cast<unsigned char>(0));
  return weights;
}

Sorted PlainlySorted(const Statement& statement, const Weights& weights, std::string_view input) {
  auto record = [&](std::size_t index) { return input.substr(index * statement.RecordLength, statement.RecordLength); };
  std::vector<std::size_t> records;
  for (std::size_t index = 0; index < input.size() / statement.RecordLength; ++index) {
    if (!statement.Include || Keeps(*statement.Include, weights, record(index))) records.push_back(index);
  }
  std::stable_sort(records.begin(), records.end(), [&](std::size_t left, std::size_t right) {
    for (const KeyField& field : statement.Fields) {
      const int order = Compared(weights, Part(record(left), field.Span), Part(record(right), field.Span));
      if (order != 0) return field.Descending ? order > 0 : order < 0;
    }
    return false;
  });
  Sorted sorted{records.size(), ""};
  for (std::size_t index : records) {
    const std::string number = std::to_string(index + 1);
    for (const OutputPiece& piece : statement.Output) {
      if (piece.As == OutputPiece::Kind::LineEnd) sorted.Bytes += "\r\n";
      if (piece.As == OutputPiece::Kind::RecordNumber) sorted.Bytes += std::string(7 - number.size(), '0') + number;
      if (piece.As == OutputPiece::Kind::Bytes) sorted.Bytes += Part(record(index), piece.Span);
    }
  }
  return sorted;
}

}  // namespace sort
