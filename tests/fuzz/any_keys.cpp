// Each key by a byte that says what it is.
#include "tests/fuzz/any_keys.h"

#include "runtime/text.h"
#include "store/key_file.h"

namespace fuzz {
namespace {

constexpr std::size_t MostKeys = 60;

std::string AnyKey(Input& input) {
  const std::size_t kind = input.Below(8);
  if (kind == 1) return std::string(store::KeyLength, ' ');
  std::string key = runtime::Fixed(kind == 2 ? "" : "Title", store::KeyTitleWidth);
  if (kind == 3) key = runtime::Fixed(input.Bytes(6), store::KeyTitleWidth);
  if (kind < 6) return key + "000000" + std::to_string(input.Below(10)) + "\r\n";
  return key + runtime::Fixed(input.Bytes(9), 9);
}

}  // namespace

std::string AnyKeys(Input& input) {
  std::string keys;
  for (std::size_t count = input.Below(MostKeys); count > 0; --count) keys += AnyKey(input);
  const std::size_t cut = input.Below(4) == 1 ? input.Below(store::KeyLength) : 0;
  return keys.substr(0, keys.size() - std::min(keys.size(), cut));
}

bool AreWhole(std::string_view keys) {
  for (std::size_t at = 0; at < keys.size(); at += store::KeyLength) {
    if (runtime::Trim(keys.substr(at, store::KeyTitleWidth)).empty()) return false;
  }
  return !keys.empty() && keys.size() % store::KeyLength == 0;
}

}  // namespace fuzz
