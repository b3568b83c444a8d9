// Each library with callbacks that only count.
#include "bench/bare_parse.h"

#include <csv.h>
#include <expat.h>

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace bench {
namespace {

// The libraries call back for each piece.
struct Counted {
  std::size_t Pieces = 0;
};

std::size_t ParseCsv(std::string_view text) {
  Counted counted;
  csv_parser parser;
  csv_init(&parser, 0);
  auto count = [](void*, std::size_t, void* to) { ++static_cast<Counted*>(to)->Pieces; };
  csv_parse(&parser, text.data(), text.size(), count, nullptr, &counted);
  csv_fini(&parser, count, nullptr, &counted);
  csv_free(&parser);
  return counted.Pieces;
}

std::size_t ParseXml(std::string_view text) {
  Counted counted;
  XML_Parser parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &counted);
  XML_SetCharacterDataHandler(parser, [](void* to, const char*, int) { ++static_cast<Counted*>(to)->Pieces; });
  const XML_Status status = XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1);
  XML_ParserFree(parser);
  return status == XML_STATUS_OK ? counted.Pieces : 0;
}

std::size_t CountLines(std::string_view text) {
  Counted counted;
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1)) ++counted.Pieces;
  return counted.Pieces;
}

}  // namespace

std::string_view BareParser(std::string_view format) {
  return format == "csv"    ? "libcsv"
         : format == "json" ? "nlohmann-json"
         : format == "rec"  ? "finding the lines"
                            : "Expat";
}

void BareParse(std::string_view format, std::string_view text) {
  bool read = false;
  if (format == "csv") read = ParseCsv(text) > 0;
  if (format == "json") read = nlohmann::json::accept(text);
  if (format == "rec") read = CountLines(text) > 0;
  if (format == "tellico") read = ParseXml(text) > 0;
  if (!read) throw std::runtime_error("cannot be read");
}

}  // namespace bench
