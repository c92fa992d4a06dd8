#include "line_reader.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

namespace kw::bench {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 20;
constexpr std::size_t kFirstRoom = 4096;

std::unique_ptr<char[]> new_buffer(std::size_t room) {
  return std::make_unique_for_overwrite<char[]>(room + kPiece + 1);
}

}  // namespace

PieceReader::PieceReader(const std::filesystem::path& path)
    : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)),
      room_(kFirstRoom),
      buffer_(new_buffer(kFirstRoom)) {
  if (file_ < 0) throw std::system_error(errno, std::generic_category(), path.string());
}

PieceReader::~PieceReader() { ::close(file_); }

void PieceReader::move_to_front(const char* keep) {
  const auto kept = static_cast<std::size_t>(end() - keep);
  if (kept <= room_) {
    std::memmove(buffer_.get() + room_ - kept, keep, kept);
  } else {
    const std::size_t room = 2 * kept;
    auto bigger = new_buffer(room);
    std::memcpy(bigger.get() + room - kept, keep, kept);
    buffer_ = std::move(bigger);
    room_ = room;
  }
  kept_ = kept;
}

bool PieceReader::next(const char* keep) {
  move_to_front(keep);
  const ssize_t got = ::read(file_, buffer_.get() + room_, kPiece);
  if (got < 0) throw std::system_error(errno, std::generic_category(), "read");
  read_ = static_cast<std::size_t>(got);
  buffer_[room_ + read_] = '\0';
  return read_ > 0;
}

}  // namespace kw::bench
