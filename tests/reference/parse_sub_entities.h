// Sub-entities, word lists and the replacement of a value, step by step.
#pragma once

#include <string>
#include <vector>

#include "base/case_map.h"
#include "reference/parse_list.h"
#include "reference/parse_record.h"

namespace kw::reference {

using Wide = std::u16string;

// Calls handle(word) for the words of `text`, which is consumed line by line, until it returns
// true. Gives what is left of the line then.
template <class Handle>
Wide walk_words(Wide& text, bool keep_quotes, Handle handle) {
  Wide line;
  bool done = false;
  while (!text.empty() && !done) {
    line = trim(parse_record(text));
    while (!line.empty() && !done) done = handle(parse_list(line, Wide(u" "), keep_quotes));
  }
  return line;
}

inline Wide parse_sub_entity(Wide entity, const Wide& token) {
  const Wide opener = upper(token);
  const Wide closer = lower(token);
  if (in_str(entity, closer) == 0) return {};
  Wide collected;
  bool inside = false;
  walk_words(entity, true, [&](const Wide& word) {
    if (inside && word == closer) return true;
    if (inside) {
      collected = collected.empty() ? word : collected + u" " + word;
    } else if (word == opener) {
      inside = true;
    }
    return false;
  });
  return collected;
}

inline std::vector<Wide> parse_sub_entities(Wide entity, const Wide& token) {
  const Wide opener = upper(token);
  const Wide closer = lower(token);
  std::vector<Wide> items;
  Wide collected;
  bool inside = false;
  walk_words(entity, true, [&](const Wide& word) {
    if (inside && word == closer) {
      items.push_back(collected);
      collected.clear();
      inside = false;
    } else if (inside) {
      collected = collected.empty() ? word : collected + u" " + word;
    } else if (word == opener) {
      inside = true;
    }
    return false;
  });
  return items;
}

inline std::vector<Wide> parse_token_list(Wide& entity, const Wide& start_token) {
  const Wide closer = lower(start_token);
  std::vector<Wide> items;
  if (in_str(entity, closer) == 0) return items;
  bool inside = false;
  const Wide line = walk_words(entity, false, [&](const Wide& word) {
    if (inside && word == closer) return true;
    if (inside) {
      items.push_back(word);
    } else if (word == start_token) {
      inside = true;
    }
    return false;
  });
  if (!line.empty()) entity = line + u"\r\n" + entity;
  return items;
}

inline Wide replace_entity(Wide& entity, const Wide& token, const Wide& replacement) {
  Wide result;
  while (!entity.empty()) {
    const Wide item = parse_list(entity, Wide(u" "), true);
    result += item + u" ";
    if (upper(trim(item)) == upper(trim(token))) {
      result += replacement + u" ";
      parse_list(entity, Wide(u" "), true);
    }
  }
  return result;
}

}  // namespace kw::reference
