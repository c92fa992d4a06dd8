#include "tool/progress.h"

#include <algorithm>
#include <memory>

#include "base/unicode.h"
#include "platform/terminal.h"

namespace kw::tool {
namespace {

constexpr auto kPatience = std::chrono::milliseconds(500);
constexpr auto kPause = std::chrono::milliseconds(100);
constexpr std::size_t kCells = 24;
constexpr std::size_t kLongestName = 40;

// The end of a name, one column for each character.
std::u16string shown_name(std::string_view what) {
  std::u16string name = from_utf8(what);
  if (name.size() > kLongestName) name = u"…" + name.substr(name.size() - kLongestName + 1);
  std::replace_if(
      name.begin(), name.end(), [](char16_t c) { return c < u' ' || (c >= 0x7F && c < 0xA0); },
      u'?');
  return name;
}

std::string bar_text(std::uint64_t done, std::uint64_t total) {
  const double part = std::min(1.0, static_cast<double>(done) / static_cast<double>(total));
  const auto cells = static_cast<std::size_t>(part * kCells);
  const std::string percent = std::to_string(static_cast<int>(part * 100));
  return "[" + std::string(cells, '#') + std::string(kCells - cells, '.') + "] " +
         std::string(3 - percent.size(), ' ') + percent + "%";
}

std::string bytes_text(std::uint64_t bytes) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f MB", static_cast<double>(bytes) / 1e6);
  return text;
}

class WatchedInput : public platform::InputFile {
 public:
  WatchedInput(std::unique_ptr<platform::InputFile> file, std::u16string_view name,
               ProgressBar& bar)
      : file_(std::move(file)), name_(to_utf8(name)), bar_(bar), size_(file_->size_hint()) {}
  ~WatchedInput() override { bar_.clear(); }

  std::size_t read(char* buffer, std::size_t size) override {
    const std::size_t count = file_->read(buffer, size);
    position_ += static_cast<std::int64_t>(count);
    bar_.show(name_, static_cast<std::uint64_t>(position_), static_cast<std::uint64_t>(size_));
    return count;
  }
  void seek(std::int64_t position) override {
    file_->seek(position);
    position_ = position;
  }
  std::int64_t size_hint() override { return file_->size_hint(); }

 private:
  std::unique_ptr<platform::InputFile> file_;
  std::string name_;
  ProgressBar& bar_;
  std::int64_t size_;
  std::int64_t position_ = 0;
};

}  // namespace

ProgressBar::ProgressBar(std::FILE* to, Clock::time_point now) : to_(to), next_(now + kPatience) {}

void ProgressBar::show(std::string_view what, std::uint64_t done, std::uint64_t total,
                       Clock::time_point now) {
  if (to_ == nullptr || now < next_) return;
  next_ = now + kPause;
  draw(to_utf8(shown_name(what)) + "  " + (total == 0 ? bytes_text(done) : bar_text(done, total)));
}

void ProgressBar::draw(const std::string& line) {
  const auto width = static_cast<std::size_t>(std::max(platform::terminal_width(to_), 2)) - 1;
  std::u16string text = from_utf8(line).substr(0, width);
  const std::size_t size = text.size();
  if (size < drawn_) text.append(drawn_ - size, u' ');
  drawn_ = size;
  const std::string bytes = "\r" + to_utf8(text);
  std::fwrite(bytes.data(), 1, bytes.size(), to_);
  std::fflush(to_);
}

void ProgressBar::clear() {
  if (drawn_ == 0) return;
  draw("");
  std::fputc('\r', to_);
  std::fflush(to_);
}

std::unique_ptr<platform::InputFile> WatchedFiles::open_input(std::u16string_view name) {
  return std::make_unique<WatchedInput>(files_.open_input(name), name, bar_);
}

}  // namespace kw::tool
