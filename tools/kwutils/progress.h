// What the user sees of long work.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace kw::tool {

// One line of a terminal that tells how far the work is, and goes when it is done:
//
//   plant.ent  [##########..............]  42%
//
// Nothing is shown of work that takes less than half a second.
class ProgressBar {
 public:
  using Clock = std::chrono::steady_clock;

  // `to` is a terminal; null where nobody watches: nothing is shown then.
  explicit ProgressBar(std::FILE* to, Clock::time_point now = Clock::now());
  ~ProgressBar() { clear(); }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  // `total` is 0 where it cannot be told; `done` is then shown as a number of bytes. `now` is a
  // parameter for tests.
  void show(std::string_view what, std::uint64_t done, std::uint64_t total,
            Clock::time_point now = Clock::now());
  bool watched() const noexcept { return to_ != nullptr; }
  // Takes the line away.
  void clear();

 private:
  void draw(const std::string& line);

  std::FILE* to_;
  Clock::time_point next_;  // when the line is drawn again
  std::size_t drawn_ = 0;   // how many characters stand there
};

// Work of many small steps.
class Steps {
 public:
  // `bar` may be null.
  Steps(ProgressBar* bar, std::string_view what, std::size_t total)
      : bar_(bar), what_(what), total_(total) {}
  ~Steps() {
    if (bar_ != nullptr) bar_->clear();
  }
  Steps(const Steps&) = delete;
  Steps& operator=(const Steps&) = delete;

  // One more is done.
  void step() {
    if (++done_ % kSeldom == 0 && bar_ != nullptr) bar_->show(what_, done_, total_);
  }

 private:
  static constexpr std::size_t kSeldom = 1024;

  ProgressBar* bar_;
  std::string_view what_;
  std::size_t total_;
  std::size_t done_ = 0;
};

// Passes all work on to another file service, and shows how far each file is read.
class WatchedFiles : public platform::FileService {
 public:
  WatchedFiles(platform::FileService& files, ProgressBar& bar) : files_(files), bar_(bar) {}

  std::unique_ptr<platform::InputFile> open_input(std::u16string_view name) override;
  std::unique_ptr<platform::OutputFile> create_output(std::u16string_view name) override {
    return files_.create_output(name);
  }
  std::unique_ptr<platform::ReplacementFile> create_replacement(
      std::u16string_view temporary, std::u16string_view target) override {
    return files_.create_replacement(temporary, target);
  }
  bool same_file(std::u16string_view first, std::u16string_view second) override {
    return files_.same_file(first, second);
  }
  bool lies_idle(std::u16string_view name) override { return files_.lies_idle(name); }
  void check_attributes(std::u16string_view name) override { files_.check_attributes(name); }
  void remove(std::u16string_view name) override { files_.remove(name); }

 private:
  platform::FileService& files_;
  ProgressBar& bar_;
};

}  // namespace kw::tool
