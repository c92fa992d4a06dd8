// The record and the enumeration that say what a comment in an entity file is.
#pragma once

#include <cstdint>

#include "kwutils/string.h"

namespace kw {

enum eCommentType : std::int32_t {
  LineComment = 1,   // one line
  BlockComment = 2,  // up to the line with the end key, its own line included
};

// One kind of comment. A line is one when it begins, behind its blanks, with the key, to the
// letter. For blocks of C, for example: { "/*", "*/", 2, BlockComment }.
struct tCommentSpec {
  String sCommentKey;
  String sCommentEnd;            // of a block
  std::int32_t lCommentLen = 0;  // of the key, in characters
  eCommentType tCommentType = {};
};

}  // namespace kw
