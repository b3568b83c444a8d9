// The one file of the companion that includes the JSON library, which quotes the texts. The documents are long lists of
// films, so they are written as they go and never held as a tree.
#include "companion/json.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace companion {

Json::~Json() {
  while (!open_.empty()) End();
  text_ << "\n";
}

void Json::BeginList(std::string_view name) {
  BeforeItem(name);
  text_ << "[";
  open_.push_back(']');
  first_ = true;
}

void Json::BeginObject(std::string_view name) {
  BeforeItem(name);
  text_ << "{";
  open_.push_back('}');
  first_ = true;
}

void Json::End() {
  text_ << open_.back();
  open_.pop_back();
  first_ = false;
}

void Json::Add(std::string_view name, std::string_view utf8) {
  BeforeItem(name);
  WriteText(utf8);
}

void Json::Add(std::string_view name, std::int64_t number) {
  BeforeItem(name);
  text_ << number;
}

void Json::AddTruth(std::string_view name, bool truth) {
  BeforeItem(name);
  text_ << (truth ? "true" : "false");
}

// Each film of a list gets a line of its own.
void Json::BeforeItem(std::string_view name) {
  if (!first_) text_ << (open_.size() == 1 ? ",\n" : ",");
  first_ = false;
  if (name.empty()) return;
  WriteText(name);
  text_ << ":";
}

// Most texts need no quoting by the library.
void Json::WriteText(std::string_view utf8) {
  const auto is_plain = [](char byte) { return byte >= ' ' && byte < '\x7F' && byte != '"' && byte != '\\'; };
  if (std::all_of(utf8.begin(), utf8.end(), is_plain)) {
    text_ << '"' << utf8 << '"';
    return;
  }
  constexpr bool AsciiOnly = true;
  text_ << nlohmann::json(utf8).dump(-1, ' ', AsciiOnly, nlohmann::json::error_handler_t::replace);
}

}  // namespace companion
