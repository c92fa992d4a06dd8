// A file in memory for the readers, which hands out its bytes in pieces of any size.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>

#include "kwutils/error.h"
#include "platform/files.h"

namespace kw::store {

class MemoryInput : public platform::InputFile {
 public:
  // At most `piece` bytes come at a time. `hint`: what size_hint() claims; -1: the truth.
  explicit MemoryInput(std::string content, std::size_t piece = SIZE_MAX, std::int64_t hint = -1)
      : content_(std::move(content)), piece_(piece), hint_(hint) {}

  std::size_t read(char* buffer, std::size_t size) override {
    ++reads;
    if (position_ >= content_.size()) return 0;
    const std::size_t count = std::min({size, piece_, content_.size() - position_});
    std::memcpy(buffer, content_.data() + position_, count);
    position_ += count;
    return count;
  }
  void seek(std::int64_t position) override {
    if (position < 0) throw Error(ErrorNumber::bad_record_number);
    position_ = static_cast<std::size_t>(position);
  }
  std::int64_t size_hint() override {
    return hint_ >= 0 ? hint_ : static_cast<std::int64_t>(content_.size());
  }

  int reads = 0;

 private:
  std::string content_;
  std::size_t position_ = 0;
  std::size_t piece_;
  std::int64_t hint_;
};

}  // namespace kw::store
