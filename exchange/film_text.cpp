// A table of the UTF-8 of every byte, and its inverse.
#include "exchange/film_text.h"

#include <array>

#include "runtime/code_page.h"

namespace exchange {
namespace {

constexpr char32_t ControlSigns = 0x2400;
constexpr char32_t BlankSign = 0x2420;
constexpr char32_t DeleteSign = 0x2421;
constexpr char32_t ByteSigns = 0xF700;
constexpr unsigned char Delete = 0x7F;

constexpr std::string_view UsualTail = "\r\n";

unsigned char Code(char byte) { return static_cast<unsigned char>(byte); }

char32_t SignCharacter(char byte) {
  if (byte == ' ') return BlankSign;
  if (Code(byte) < ' ') return ControlSigns + Code(byte);
  return Code(byte) == Delete ? DeleteSign : ByteSigns + Code(byte);
}

bool IsControl(char32_t character) { return character < ' ' || (character >= Delete && character < 0xA0); }

bool IsMarkOfDirection(char32_t character) {
  return (character >= 0x200E && character <= 0x200F) || (character >= 0x202A && character <= 0x202E) ||
         (character >= 0x2066 && character <= 0x2069);
}

struct Sequence {
  std::array<char, 3> Bytes{};
  unsigned char Length = 0;
};

std::array<Sequence, 256> MakeSequences() {
  std::array<Sequence, 256> sequences;
  for (std::size_t code = 0; code < sequences.size(); ++code) {
    const char byte = static_cast<char>(code);
    const char32_t character = runtime::ToUnicode(byte);
    std::string utf8;
    AppendCharacter(IsControl(character) ? SignCharacter(byte) : character, utf8);
    sequences[code].Length = static_cast<unsigned char>(utf8.copy(sequences[code].Bytes.data(), 3));
  }
  return sequences;
}

bool IsPlain(char byte) { return byte >= ' ' && byte < char(Delete); }

void AppendText(std::string_view bytes, std::string& utf8) {
  static const std::array<Sequence, 256> sequences = MakeSequences();
  while (!bytes.empty()) {
    std::size_t plain = 0;
    while (plain < bytes.size() && IsPlain(bytes[plain])) ++plain;
    utf8.append(bytes.substr(0, plain));
    bytes.remove_prefix(plain);
    if (bytes.empty()) return;
    const Sequence& sequence = sequences[Code(bytes[0])];
    utf8.append(sequence.Bytes.data(), sequence.Length);
    bytes.remove_prefix(1);
  }
}

// What a character above ASCII stands for; -1 if the code page has nothing.
int ByteOf(char32_t character) {
  if (character >= ControlSigns && character < ControlSigns + ' ') return static_cast<int>(character - ControlSigns);
  if (character == BlankSign) return ' ';
  if (character == DeleteSign) return Delete;
  if (character >= ByteSigns && character < ByteSigns + 256) return static_cast<int>(character - ByteSigns);
  const std::optional<char> byte = runtime::FromUnicode(character);
  return byte ? Code(*byte) : -1;
}

}  // namespace

void AppendCharacter(char32_t character, std::string& utf8) {
  auto rest = [&](int shift) { utf8 += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
  } else if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | (character >> 6));
    rest(0);
  } else if (character < 0x10000) {
    utf8 += static_cast<char>(0xE0 | (character >> 12));
    rest(6);
    rest(0);
  } else {
    utf8 += static_cast<char>(0xF0 | (character >> 18));
    rest(12);
    rest(6);
    rest(0);
  }
}

char32_t TakeCharacter(std::string_view& utf8) {
  static constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
  const unsigned lead = Code(utf8[0]);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  char32_t character = length == 1 ? lead : lead & (0xFF >> (length + 1));
  bool good = length > 0 && length <= utf8.size();
  for (std::size_t at = 1; good && at < length; ++at) {
    good = (Code(utf8[at]) & 0xC0) == 0x80;
    character = (character << 6) | (Code(utf8[at]) & 0x3F);
  }
  good = good && character >= smallest[length] && character < 0x110000 && (character < 0xD800 || character > 0xDFFF);
  if (!good) character = runtime::ToUnicode(utf8[0]);
  utf8.remove_prefix(good ? length : 1);
  return character;
}

std::string SignOf(char byte) {
  std::string utf8;
  AppendCharacter(SignCharacter(byte), utf8);
  return utf8;
}

void AppendField(const store::FilmRecord& film, store::FilmField field, std::string& utf8) {
  std::string_view bytes = film.Get(field);
  if (field == store::FilmField::Tail) {
    if (bytes == UsualTail) return;
    for (char byte : bytes) byte == ' ' ? AppendCharacter(BlankSign, utf8) : AppendText({&byte, 1}, utf8);
    return;
  }
  bytes = bytes.substr(0, bytes.find_last_not_of(' ') + 1);
  if (bytes.starts_with(' ')) {
    AppendCharacter(BlankSign, utf8);
    bytes.remove_prefix(1);
  }
  AppendText(bytes, utf8);
}

std::string FieldText(const store::FilmRecord& film, store::FilmField field) {
  std::string utf8;
  AppendField(film, field, utf8);
  return utf8;
}

std::string TextOf(std::string_view bytes) {
  std::string utf8;
  AppendText(bytes, utf8);
  return utf8;
}

std::string Visible(std::string_view utf8) {
  std::string visible;
  while (!utf8.empty()) {
    const char32_t character = TakeCharacter(utf8);
    if (IsControl(character)) {
      AppendCharacter(SignCharacter(static_cast<char>(character)), visible);
    } else if (IsMarkOfDirection(character)) {
      visible += '?';
    } else {
      AppendCharacter(character, visible);
    }
  }
  return visible;
}

std::size_t AppendBytes(std::string_view utf8, Unstorable as, std::string& bytes, std::string& unstorable) {
  std::size_t count = 0;
  while (!utf8.empty()) {
    if (IsPlain(utf8[0])) {
      bytes += utf8[0];
      utf8.remove_prefix(1);
      continue;
    }
    const char32_t character = TakeCharacter(utf8);
    if (IsControl(character)) {
      if (!bytes.ends_with(' ')) bytes += ' ';
      while (!utf8.empty() && Code(utf8[0]) <= ' ') utf8.remove_prefix(1);
    } else if (const int byte = ByteOf(character); byte >= 0) {
      bytes += static_cast<char>(byte);
    } else {
      ++count;
      std::string whole;
      AppendCharacter(character, whole);
      if (unstorable.find(whole) == std::string::npos) unstorable += whole;
      bytes += as == Unstorable::Marked ? "?" : Transliteration(character);
    }
  }
  return count;
}

}  // namespace exchange
