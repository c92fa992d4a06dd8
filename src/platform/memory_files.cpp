#include "platform/memory_files.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/unicode.h"
#include "kwutils/error.h"

namespace kw::platform {
namespace {

std::u16string checked(std::u16string_view name) {
  if (name.empty() || name.find(u'\0') != name.npos) {
    throw Error(ErrorNumber::bad_file_name_or_number, to_utf8(name));
  }
  return std::u16string(name);
}

// `content` is shared with the file that owns it.
class MemoryInput : public InputFile {
 public:
  explicit MemoryInput(std::shared_ptr<const std::string> content) : content_(std::move(content)) {}

  std::size_t read(char* buffer, std::size_t size) override {
    const std::size_t start = std::min(position_, content_->size());
    const std::size_t count = std::min(size, content_->size() - start);
    std::memcpy(buffer, content_->data() + start, count);
    position_ = start + count;
    return count;
  }

  void seek(std::int64_t position) override {
    if (position < 0) throw Error(ErrorNumber::bad_record_number);
    position_ = static_cast<std::size_t>(position);
  }

  std::int64_t size_hint() override { return static_cast<std::int64_t>(content_->size()); }

 private:
  std::shared_ptr<const std::string> content_;
  std::size_t position_ = 0;
};

class MemoryOutput : public OutputFile {
 public:
  explicit MemoryOutput(std::shared_ptr<std::string> content) : content_(std::move(content)) {}
  void write(std::string_view bytes) override { content_->append(bytes); }
  void close() override {}

 private:
  std::shared_ptr<std::string> content_;
};

}  // namespace

class MemoryFiles::Replacement : public ReplacementFile {
 public:
  Replacement(MemoryFiles& owner, std::u16string temporary, std::u16string target)
      : owner_(owner),
        temporary_(std::move(temporary)),
        target_(std::move(target)),
        file_(std::make_shared<File>()) {
    file_->held = true;
    owner_.files_[temporary_] = file_;
  }

  ~Replacement() override {
    if (file_->held) release();
  }

  void write(std::string_view bytes) override { file_->content.append(bytes); }

  void replace() override {
    release();
    owner_.files_[target_] = file_;
  }

 private:
  void release() {
    file_->held = false;
    const auto entry = owner_.files_.find(temporary_);
    if (entry != owner_.files_.end() && entry->second == file_) owner_.files_.erase(entry);
  }

  MemoryFiles& owner_;
  std::u16string temporary_;
  std::u16string target_;
  std::shared_ptr<File> file_;
};

void MemoryFiles::put(std::u16string_view name, std::string content) {
  files_[checked(name)] = std::make_shared<File>(File{std::move(content), false});
}

const std::string& MemoryFiles::content(std::u16string_view name) const {
  return find(name)->content;
}

std::unique_ptr<InputFile> MemoryFiles::open_input(std::u16string_view name) {
  const std::shared_ptr<File>& file = find(name);
  return std::make_unique<MemoryInput>(std::shared_ptr<const std::string>(file, &file->content));
}

std::unique_ptr<OutputFile> MemoryFiles::create_output(std::u16string_view name) {
  put(name, {});
  const std::shared_ptr<File>& file = find(name);
  return std::make_unique<MemoryOutput>(std::shared_ptr<std::string>(file, &file->content));
}

std::unique_ptr<ReplacementFile> MemoryFiles::create_replacement(std::u16string_view temporary,
                                                                 std::u16string_view target) {
  std::u16string from = checked(temporary);
  std::u16string to = checked(target);
  if (from == to) throw Error(ErrorNumber::invalid_argument, to_utf8(temporary));
  const auto entry = files_.find(from);
  if (entry != files_.end() && entry->second->held) {
    throw Error(ErrorNumber::permission_denied, to_utf8(temporary));
  }
  return std::make_unique<Replacement>(*this, std::move(from), std::move(to));
}

void MemoryFiles::check_attributes(std::u16string_view name) { find(name); }

void MemoryFiles::remove(std::u16string_view name) {
  find(name);
  files_.erase(std::u16string(name));
}

const std::shared_ptr<MemoryFiles::File>& MemoryFiles::find(std::u16string_view name) const {
  const auto entry = files_.find(checked(name));
  if (entry == files_.end()) throw Error(ErrorNumber::file_not_found, to_utf8(name));
  return entry->second;
}

}  // namespace kw::platform
