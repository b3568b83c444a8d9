// The options of an invocation, the real disk, and a complaint.
#include "companion/verb.h"

namespace companion {

std::unique_ptr<runtime::Disk> RealDiskIn(const std::string& folder) {
  return std::make_unique<runtime::RealDisk>(folder);
}

bool Invocation::Has(std::string_view option) const { return Value(option).has_value(); }

std::optional<std::string> Invocation::Value(std::string_view option) const {
  std::vector<std::string> values = Values(option);
  if (values.empty()) return std::nullopt;
  return values.back();
}

std::vector<std::string> Invocation::Values(std::string_view option) const {
  std::vector<std::string> values;
  for (const auto& [name, value] : Options) {
    if (name == option) values.push_back(value);
  }
  return values;
}

int RefuseFolder(const std::string& folder, Output& output) {
  output.Errors << "The folder " << folder << " cannot be listed.\n";
  return Found;
}

}  // namespace companion
