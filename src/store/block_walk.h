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

#include "store/record_bits.h"
#include "store/record_reader.h"
#include "store/skim.h"
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
    return next_but(rest, [](const char*) { return false; });
  }

  // The same without blocks that are surely not wanted: bool is_unwanted(behind_word) is asked with
  // what follows the first word and one blank. 32 bytes can be read there, be they the record's or
  // not. It may be asked at any record, and should not branch.
  template <class IsUnwanted>
  bool next_but(std::string_view& rest, IsUnwanted&& is_unwanted);

  // The same with a test of each record: bool is_candidate(record).
  template <class IsCandidate>
  bool next_candidate(std::string_view& rest, IsCandidate&& is_candidate) {
    while (!records_.at_end()) {
      position_ = records_.position();
      const std::string_view record = records_.next();
      const bool first = first_;
      first_ = false;
      if (is_candidate(record) && open(record, rest, first)) return true;
    }
    return false;
  }

  // Where the record before the opening one ended, in bytes from the beginning of the file.
  std::int64_t position() const noexcept { return position_; }

  // Reads on to the record that closes the type's block; not where `record`, the one read last,
  // does.
  void pass_rest(std::string_view record) { pass_block(record, type_.closing()); }

 private:
  // Whether the record opens a block of the type; passes over the block when not.
  bool open(std::string_view record, std::string_view& rest, bool first);
  void pass_block(std::string_view record, const ClosingWord& closing) {
    while (!closing.closes(record) && !records_.at_end()) record = records_.next();
  }
  template <class IsUnwanted>
  bool next_skimmed(std::string_view& rest, const IsUnwanted& is_unwanted);
  bool take_unusual(std::string_view line, BlockState block, std::string_view& rest);

  RecordReader& records_;
  const TypeWord& type_;
  SixLetters header_;
  ClosingWord foreign_;
  std::int64_t position_ = 0;
  bool first_ = true;
};

inline bool BlockWalk::open(std::string_view record, std::string_view& rest, bool first) {
  if (type_.opens(record, rest)) return true;
  const RecordWord opening = take_first_word(record);
  const bool may_be_header = first || header_ == SixLetters::every_record;
  if (may_be_header && opening.word.size() == 6) return false;
  foreign_.follow(opening.word);
  pass_block(opening.rest, foreign_);
  return false;
}

template <class IsUnwanted>
bool BlockWalk::next_but(std::string_view& rest, IsUnwanted&& is_unwanted) {
  while (!records_.at_end()) {
    if (!first_ && type_.has_bits()) return next_skimmed(rest, is_unwanted);
    const bool first = first_;
    first_ = false;
    position_ = records_.position();
    if (open(records_.next(), rest, first)) return true;
  }
  return false;
}

inline constexpr WordMasks kAnyWord = word_masks(0);
inline constexpr WordMasks kNoHeader = word_masks(6);

template <class IsUnwanted>
bool BlockWalk::next_skimmed(std::string_view& rest, const IsUnwanted& is_unwanted) {
  const WordMasks& words = header_ == SixLetters::every_record ? kNoHeader : kAnyWord;
  BlockState block;
  while (!records_.at_end()) {
    const SkimStop stop = skim(records_.lines(), block, type_.bits(), words, is_unwanted);
    if (stop.why == SkimStop::Why::no_more_lines) continue;
    if (!block.inside()) position_ = records_.position_of(stop.begin);
    if (stop.why == SkimStop::Why::opening_record) {
      if (open(stop.record, rest, false)) return true;
    } else {
      if (take_unusual(stop.line, block, rest)) return true;
      block = BlockState();
    }
  }
  return false;
}

// Whether the record that begins with that line opens a block of the type. The block that it
// belongs to, when not, is passed over.
[[gnu::noinline]] inline bool BlockWalk::take_unusual(std::string_view line, BlockState block,
                                                      std::string_view& rest) {
  if (!block.inside()) return open(records_.record_from(line), rest, false);
  foreign_.follow_bits(block.closing(), block.closing_size());
  pass_block(records_.record_from(line), foreign_);
  return false;
}

}  // namespace kw::store
