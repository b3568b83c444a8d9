// Reads the master file and the colours.
#include "exchange/films.h"

#include <charconv>
#include <cstring>
#include <optional>

#include "runtime/record_journal.h"
#include "runtime/text.h"
#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace exchange {
namespace {

constexpr std::size_t SlotsAtOnce = 400;
constexpr std::size_t SlotLength = store::RecordLength;

void EachSlot(runtime::Disk& disk, const Visit& visit) {
  const runtime::OpenFile file(disk, std::string(store::MasterFileName), runtime::Disk::Mode::Read);
  const runtime::SettledFile master(disk, file, store::RecordLength);
  std::string block(SlotsAtOnce * SlotLength, ' ');
  store::FilmRecord film;
  for (std::int64_t first = 0;; first += static_cast<std::int64_t>(SlotsAtOnce)) {
    const std::size_t read = master.Read(block.data(), block.size(), first * store::RecordLength);
    for (std::size_t at = 0; at < read; at += SlotLength) {
      const std::size_t length = std::min(SlotLength, read - at);
      if (length < SlotLength) film.Clear();
      std::memcpy(film.Bytes.data(), block.data() + at, length);
      visit(first + static_cast<std::int64_t>(at / SlotLength) + 1, film);
    }
    if (read < block.size()) return;
  }
}

// The files hold blue in the high byte.
std::optional<std::uint32_t> ReadColour(runtime::Disk& disk, std::string_view name) {
  try {
    const runtime::OpenFile file(disk, std::string(name), runtime::Disk::Mode::Read);
    std::string line(16, ' ');
    line.resize(file.Read(line.data(), line.size(), 0));
    const std::string_view digits = runtime::TrimFront(line);
    std::uint32_t stored = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), stored).ec != std::errc()) return std::nullopt;
    return (stored & 0xFF) << 16 | (stored & 0xFF00) | (stored >> 16 & 0xFF);
  } catch (const runtime::Failure&) {
    return std::nullopt;
  }
}

}  // namespace

bool HasTitle(const store::FilmRecord& film) {
  return film.Get(store::FilmField::Title).find_first_not_of(' ') != std::string_view::npos;
}

Films FilmsOf(runtime::Disk& disk) {
  return [&disk](const Visit& visit) {
    EachSlot(disk, [&](std::int64_t number, const store::FilmRecord& film) {
      if (HasTitle(film)) visit(number, film);
    });
  };
}

std::vector<store::FilmRecord> ReadSlots(runtime::Disk& disk) {
  std::vector<store::FilmRecord> slots;
  try {
    EachSlot(disk, [&](std::int64_t, const store::FilmRecord& film) { slots.push_back(film); });
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
  }
  return slots;
}

Colours ReadColours(runtime::Disk& disk) {
  Colours colours;
  colours.Background = ReadColour(disk, "BGColor").value_or(colours.Background);
  colours.Box = ReadColour(disk, "txtBGColor").value_or(colours.Box);
  colours.Text = ReadColour(disk, "txtForColor").value_or(colours.Text);
  colours.Tag = ReadColour(disk, "tagForColor").value_or(colours.Tag);
  return colours;
}

}  // namespace exchange
