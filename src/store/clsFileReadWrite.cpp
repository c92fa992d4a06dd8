// Creation, settings, single records.
#include "kwutils/clsFileReadWrite.h"

#include <memory>

#include "kwutils/error.h"
#include "platform/file_numbers.h"
#include "store/comment_keys.h"
#include "store/record_reader.h"
#include "store/text.h"

namespace kw {

namespace {

std::int16_t file_number(std::int32_t number) {
  if (number != static_cast<std::int16_t>(number)) throw Error(ErrorNumber::overflow);
  return static_cast<std::int16_t>(number);
}

// A reader reads ahead, so it stays with the file from one record to the next.
store::RecordReader& reader_of(platform::NumberedFile& file) {
  platform::InputFile& input = file.input();
  if (!file.reading_state) file.reading_state = std::make_shared<store::RecordReader>(input);
  return *static_cast<store::RecordReader*>(file.reading_state.get());
}

}  // namespace

clsFileReadWrite::clsFileReadWrite() {
  for (std::size_t i = 0; i < aCommentSpecs.size(); ++i) {
    const store::CommentKey& from = store::kCommentKeys[i];
    tCommentSpec& spec = aCommentSpecs[i];
    spec.sCommentKey = store::text_of(from.key);
    spec.sCommentEnd = store::text_of(from.end);
    spec.lCommentLen = static_cast<std::int32_t>(from.key.size());
    spec.tCommentType = from.kind == store::CommentKind::block ? BlockComment : LineComment;
  }
}

void clsFileReadWrite::SetBufferSize(const std::int32_t& BufferSize) { lBufferSize = BufferSize; }

String clsFileReadWrite::GetRecord(const std::int32_t& iu) const {
  const auto file = platform::file_numbers().find(file_number(iu));
  return store::text_of(reader_of(*file).next());
}

Variant& clsFileReadWrite::left_out() {
  static thread_local Variant variable;
  variable = Variant::missing();
  return variable;
}

}  // namespace kw
