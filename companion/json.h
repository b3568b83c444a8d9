// Writes one JSON document as it goes, ASCII only, so that no byte of a title can steer a terminal.
#pragma once

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

namespace companion {

class Json {
 public:
  explicit Json(std::ostream& text) : text_(text) {}
  // Closes what is still open and ends the line.
  ~Json();
  Json(const Json&) = delete;
  Json& operator=(const Json&) = delete;

  // Opens a list or an object: a member of that name in an object; elsewhere it has no name.
  void BeginList(std::string_view name = {});
  void BeginObject(std::string_view name = {});
  void End();

  // Members of an object.
  void Add(std::string_view name, std::string_view utf8);
  void Add(std::string_view name, const char* utf8) { Add(name, std::string_view(utf8)); }
  void Add(std::string_view name, std::int64_t number);
  void AddTruth(std::string_view name, bool truth);

 private:
  void BeforeItem(std::string_view name);
  void WriteText(std::string_view utf8);

  std::ostream& text_;
  std::vector<char> open_;  // closing brackets
  bool first_ = true;       // in the innermost one
};

}  // namespace companion
