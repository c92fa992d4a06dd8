// A file read once from its beginning to its end, or to what is sought, for the blocks of one type.
#pragma once

#include <memory>
#include <string_view>

#include "platform/files.h"
#include "store/block_walk.h"
#include "store/record_reader.h"
#include "store/type_word.h"

namespace kw::store {

struct Scan {
  // Errors as FileService::open_input.
  Scan(std::u16string_view file, TypeWord sought, SixLetters header = SixLetters::first_record)
      : type(std::move(sought)),
        input(platform::files().open_input(file)),
        records(*input),
        walk(records, type, header) {}
  Scan(const Scan&) = delete;
  Scan& operator=(const Scan&) = delete;

  const ClosingWord& closing() const noexcept { return type.closing(); }

  TypeWord type;
  std::unique_ptr<platform::InputFile> input;
  RecordReader records;
  BlockWalk walk;
};

}  // namespace kw::store
