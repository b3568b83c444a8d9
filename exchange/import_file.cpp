// Plain files and pipes as streams. Zipped ones by minizip: it reads one entry as a stream and never keeps the list of
// entries, so that its memory does not depend on what the file claims.
#include <minizip/unzip.h>

#include <fstream>

#include "exchange/import.h"

namespace exchange {
namespace {

constexpr const char* TellicoEntry = "tellico.xml";
// An entry claims any length; a collection of 32,767 films has less.
constexpr std::int64_t LongestEntry = std::int64_t(1) << 30;

struct CloseZip {
  void operator()(void* zip) const { unzClose(zip); }
};

constexpr std::string_view ZipMark = "PK\x03\x04";

}  // namespace

struct ImportFile::Opened {
  std::ifstream Plain;
  std::unique_ptr<void, CloseZip> Zip;
  std::int64_t Unzipped = 0;
  std::string Start;  // read to tell a zip; a pipe cannot go back
  Fault Wrong;

  bool IsZip() {
    Start.resize(ZipMark.size());
    Start.resize(ReadPlain(Start.data(), Start.size()));
    return Start == ZipMark;
  }

  void OpenZip(const std::string& path) {
    Plain.close();
    Zip.reset(unzOpen64(path.c_str()));
    const bool opened =
        Zip && unzLocateFile(Zip.get(), TellicoEntry, 1) == UNZ_OK && unzOpenCurrentFile(Zip.get()) == UNZ_OK;
    if (!opened) Wrong = "a zip without a readable tellico.xml";
  }
  std::size_t ReadStart(char* target, std::size_t count) {
    const std::size_t length = Start.copy(target, count);
    Start.erase(0, length);
    return length > 0 ? length : ReadPlain(target, count);
  }
  std::size_t ReadPlain(char* target, std::size_t count) {
    Plain.read(target, static_cast<std::streamsize>(count));
    if (Plain.bad()) Wrong = "it cannot be read to its end";
    return static_cast<std::size_t>(Plain.gcount());
  }
  // At the end of an entry its checksum is compared.
  std::size_t ReadZip(char* target, std::size_t count) {
    const int read = unzReadCurrentFile(Zip.get(), target, static_cast<unsigned>(count));
    if (read == 0 && unzCloseCurrentFile(Zip.get()) == UNZ_CRCERROR) Wrong = "the zip is damaged";
    if (read < 0) Wrong = "the zip is damaged";
    if (read > 0) Unzipped += read;
    if (Unzipped > LongestEntry) Wrong = "more than a gigabyte is zipped in it";
    return Wrong ? 0 : static_cast<std::size_t>(read);
  }
};

ImportFile::ImportFile(const std::string& path) : opened_(std::make_unique<Opened>()) {
  opened_->Plain.open(path, std::ios::binary);
  if (!opened_->Plain) {
    opened_->Wrong = "it cannot be opened";
    return;
  }
  const bool is_zip = opened_->IsZip();
  if (is_zip) opened_->OpenZip(path);
  source_ = [file = opened_.get(), is_zip](char* target, std::size_t count) -> std::size_t {
    if (file->Wrong) return 0;
    return is_zip ? file->ReadZip(target, count) : file->ReadStart(target, count);
  };
}

ImportFile::~ImportFile() = default;

const Fault& ImportFile::Wrong() const { return opened_->Wrong; }

}  // namespace exchange
