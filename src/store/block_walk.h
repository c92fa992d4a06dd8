// The walk over the blocks of an entity file.
//
// Every record belongs to a block. One whose first word is another one than that of the type sought
// opens a foreign block, which goes on to the first record, itself included, that ends in the lower
// case of that word; the word itself, at its front, does not count. A first word of six characters
// on the first record of all may stand alone: a header.
//
// | Methods                                     | Candidates | Six letters | Gathered as          |
// |---------------------------------------------|------------|-------------|----------------------|
// | GetEntity, GetEntityWithTokenAndSeek,       | all        | first       | whole                |
// |   GetTokenEntity, GetEntitiesIntoColl,      |            |             |                      |
// |   GetEntitiesIntoCollWithKey,               |            |             |                      |
// |   GetEntitiesWithCollection                 |            |             |                      |
// | GetEntities                                 | all        | every       | whole                |
// | GetEntitiesWithoutTable, ...IntoColl,       | all        | first       | without tables       |
// |   ...WithCollection, GetEntityIDsIntoColl,  |            |             |                      |
// |   GetNewID, CheckOrCreateNewID,             |            |             |                      |
// |   SearchKeyAndIDInFile                      |            |             |                      |
// | GetEntityWithoutTable                       | identifier | first       | up to its table      |
// | GetTableEntry, GetTableEntryUsingTempFile   | identifier | first       | rows                 |
// | the three searches                          | all        | first       | opening record alone |
//
// Candidates: the records that are looked at; any other record is passed over alone, inside a block
// or not. Six letters: on which records such a first word is a header. The writers copy what they
// do not change and walk in rewrite.h.
#pragma once

#include <cstdint>
#include <string_view>

#include "store/record_reader.h"
#include "store/type_word.h"

namespace kw::store {

enum class SixLetters { first_record, every_record };

class BlockWalk {
 public:
  // Both must outlive the walk.
  BlockWalk(RecordReader& records, const TypeWord& type,
            SixLetters header = SixLetters::first_record) noexcept
      : records_(records), type_(type), header_(header) {}

  // Goes on to the next opening record of the type and gives what follows its first word; false at
  // the end of the file. The rest of that block is then the caller's to read.
  bool next(std::string_view& rest) {
    return next(rest, [](std::string_view) { return true; });
  }

  // The same with a test of each record: bool is_candidate(record).
  template <class IsCandidate>
  bool next(std::string_view& rest, IsCandidate&& is_candidate) {
    while (!records_.at_end()) {
      position_ = records_.position();
      const std::string_view record = records_.next();
      const bool first = first_;
      first_ = false;
      if (!is_candidate(record)) continue;
      if (type_.opens(record, rest)) return true;
      pass(record, first || header_ == SixLetters::every_record);
    }
    return false;
  }

  // Where the record before the opening one ended, in bytes from the beginning of the file.
  std::int64_t position() const noexcept { return position_; }

  // Reads on to the record that closes the type's block; not where `record`, the one read last,
  // does.
  void pass_rest(std::string_view record) { pass_block(record, type_.closing()); }

 private:
  void pass(std::string_view record, bool may_be_header);
  void pass_block(std::string_view record, const ClosingWord& closing) {
    while (!closing.closes(record) && !records_.at_end()) record = records_.next();
  }

  RecordReader& records_;
  const TypeWord& type_;
  SixLetters header_;
  ClosingWord foreign_;
  std::int64_t position_ = 0;
  bool first_ = true;
};

// Passes over a foreign block, or over a header alone.
inline void BlockWalk::pass(std::string_view record, bool may_be_header) {
  const RecordWord opening = take_first_word(record);
  if (may_be_header && opening.word.size() == 6) return;
  foreign_.follow(opening.word);
  pass_block(opening.rest, foreign_);
}

}  // namespace kw::store
