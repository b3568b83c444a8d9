#include "companion/reading.h"

#include <algorithm>

#include "store/master_file.h"

namespace companion {

Reading::Reading(std::unique_ptr<runtime::Disk> disk)
    : disk_(std::move(disk)), master_(*disk_, std::string(store::MasterFileName), runtime::Disk::Mode::Read) {}

std::int64_t Reading::Slots() const { return (Length() + store::RecordLength - 1) / store::RecordLength; }

store::FilmRecord Reading::At(std::int64_t slot) const {
  store::FilmRecord film;
  Settled().Read(film.Bytes.data(), film.Bytes.size(), (slot - 1) * store::RecordLength);
  return film;
}

bool Reading::EachSlot(const std::function<void(const NumberedFilm&)>& visit) const {
  constexpr std::int64_t AtOnce = 1024;
  const std::int64_t slots = Slots();
  if (slots > MaxSlots) return false;
  std::vector<char> block(static_cast<std::size_t>(std::clamp<std::int64_t>(slots, 1, AtOnce) * store::RecordLength));
  const runtime::SettledFile master = Settled();
  NumberedFilm next;
  std::size_t read = 0;
  do {
    read = master.Read(block.data(), block.size(), next.Number * store::RecordLength);
    for (std::size_t at = 0; at < read; at += store::RecordLength) {
      next.Number += 1;
      next.Film.Clear();
      std::copy_n(block.data() + at, std::min<std::size_t>(store::RecordLength, read - at), next.Film.Bytes.data());
      visit(next);
    }
  } while (read == block.size());
  return true;
}

int RefuseLength(const Reading& reading, Output& output) {
  output.Errors << "The master file is damaged: it has " << reading.Slots() << " records.\n";
  return Found;
}

}  // namespace companion
