// The quick test of a record, before it is parsed, whether it may open the entity sought.
#pragma once

#include <string>
#include <string_view>

namespace kw::store {

// An identifier that equals the token as passed asks for the first entity of the type: a record
// becomes a candidate when it holds the token anywhere, and so does every later one. An identifier
// with an apostrophe makes every record that holds it a candidate. Any other one makes those
// candidates in which the first "id", be it part of a longer word, is followed by just that word.
// All of it in the letter case given.
class CandidateTest {
 public:
  CandidateTest(std::u16string_view token, std::u16string_view id);

  bool operator()(std::string_view record) noexcept;

 private:
  enum class Mode { type_alone, literal, identifier };

  std::string id_;
  bool in_page_;  // what the code page lacks, no record holds
  bool met_ = false;
  Mode mode_;
};

}  // namespace kw::store
