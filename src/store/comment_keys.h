// The marks that make a line a comment.
#pragma once

#include <string_view>

namespace kw::store {

enum class CommentKind { none, line, block };

// In the order in which they are tried; the first one that a line begins with decides.
struct CommentKey {
  std::string_view key;
  std::string_view end;  // of a block
  CommentKind kind;
};

inline constexpr CommentKey kCommentKeys[] = {{";", "", CommentKind::line},
                                              {"*", "", CommentKind::line},
                                              {"//", "", CommentKind::line},
                                              {"/*", "*/", CommentKind::block}};
inline constexpr std::string_view kBlockEnd = kCommentKeys[3].end;

// What the line, without blanks in front, begins.
inline CommentKind comment_kind(std::string_view line) noexcept {
  for (const CommentKey& key : kCommentKeys)
    if (line.starts_with(key.key)) return key.kind;
  return CommentKind::none;
}

}  // namespace kw::store
