// An object of the store, files in memory, and its values in the reference's words.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "kwutils/clsFileReadWrite.h"
#include "platform/memory_files.h"
#include "reference/keyed_list.h"
#include "support/expect_error.h"

namespace kw::store {

// Files in memory that hand out their bytes in small pieces and do not tell their size, so that a
// reader's buffer is filled and moved again and again.
class FilesInPieces : public platform::MemoryFiles {
 public:
  std::unique_ptr<platform::InputFile> open_input(std::u16string_view name) override {
    auto file = platform::MemoryFiles::open_input(name);
    if (piece == 0) return file;
    return std::make_unique<Input>(std::move(file), piece);
  }

  std::size_t piece = 0;  // bytes at a time; 0: as many as are asked for

 private:
  class Input : public platform::InputFile {
   public:
    Input(std::unique_ptr<platform::InputFile> file, std::size_t piece)
        : file_(std::move(file)), piece_(piece) {}
    std::size_t read(char* buffer, std::size_t size) override {
      return file_->read(buffer, std::min(size, piece_));
    }
    void seek(std::int64_t position) override { file_->seek(position); }
    std::int64_t size_hint() override { return 1; }

   private:
    std::unique_ptr<platform::InputFile> file_;
    std::size_t piece_;
  };
};

class StoreTest : public ::testing::Test {
 protected:
  static String text(std::string_view bytes) { return String(widen(bytes)); }
  static std::string bytes(std::u16string_view units) { return narrow(units); }

  static std::vector<std::string> elements(const Array<String>& array) {
    std::vector<std::string> all;
    for (const String& element : array.elements()) all.push_back(bytes(element));
    return all;
  }

  // The texts of a collection in order; each must be found under its key as well.
  static reference::KeyedList items(const Collection& collection,
                                    const reference::KeyedList& expected) {
    reference::KeyedList all;
    const std::int32_t count = collection.count();
    for (std::int32_t i = 1; i <= count; ++i) all.add(bytes(collection.item(i).text()));
    for (std::size_t i = 0; i < expected.items.size() && i < all.items.size(); ++i) {
      const auto& key = expected.items[i].key;
      if (key && collection.holds_text(widen(*key)) &&
          bytes(collection.item(widen(*key)).text()) == expected.items[i].text)
        all.items[i].key = key;
    }
    return all;
  }

  // What `read` returns, or the number of the error that it throws.
  template <class Read>
  static auto outcome(Read read) -> std::pair<decltype(read()), std::int32_t> {
    std::pair<decltype(read()), std::int32_t> result;
    result.second = testing::number_of([&] { result.first = read(); });
    return result;
  }

  FilesInPieces files;
  platform::ScopedFileService in_use{files};
  clsFileReadWrite store;
};

}  // namespace kw::store
