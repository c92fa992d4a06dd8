#include "store/bulk_read.h"

#include <new>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "kwutils/error.h"
#include "parse/line.h"
#include "store/item_search.h"
#include "store/text.h"

namespace kw::store {

namespace {

// A key of a collection, made of file bytes again and again.
class Key {
 public:
  std::u16string_view of(std::string_view bytes) {
    units_.resize(bytes.size());
    widen(bytes, units_.data());
    return units_;
  }

 private:
  std::u16string units_;
};

void add_if_new(const Collection& items, std::string_view text, std::u16string_view key) {
  if (!items.holds_text(key)) items.add(text_of(text), key);
}

std::string_view first_line(std::string_view text) { return parse::take_line(text); }

[[noreturn]] void throw_caught(std::string_view text, std::string_view source) {
  Error error(ErrorNumber::caught_while_reading);
  error.source = source;
  error.description = text;
  throw error;
}

}  // namespace

bool entities_into_array(std::u16string_view file, std::u16string_view token, Tables tables,
                         SixLetters header, Array<String>& buffer, std::int32_t buffer_size) {
  buffer.redim(0, buffer_size);
  EntityReader entities(file, token, tables, header);
  std::vector<String> texts(1);
  bool complete = false;
  try {
    while (entities.next()) texts.push_back(text_of(entities.text()));
    complete = true;
  } catch (const std::exception&) {  // the caller learns of it by the result
  }
  buffer.publish(0, std::move(texts));
  return complete;
}

bool entities_into(std::u16string_view file, std::u16string_view token, Keys keys,
                   const Collection& items) {
  EntityReader entities(file, token, Tables::keep);
  const Keyword id(u"id");
  Key key;
  try {
    while (entities.next()) {
      const std::string_view text = entities.text();
      if (text.empty()) continue;
      if (keys == Keys::none)
        items.add(text_of(text));
      else
        add_if_new(items, text, key.of(id.value_on(first_line(text))));
    }
  } catch (const std::exception&) {
    return false;
  }
  return true;
}

void entities_without_tables_into(std::u16string_view file, std::u16string_view token,
                                  const Collection& items) {
  EntityReader entities(file, token, Tables::leave_out);
  Key key;
  while (entities.next()) {
    const std::string_view text = entities.text();
    if (!text.empty()) add_if_new(items, text, key.of(identifier_of(text)));
  }
}

void identifiers_into(std::u16string_view file, std::u16string_view token, const Collection& ids) {
  EntityReader entities(file, token, Tables::leave_out);
  Key key;
  while (entities.next()) {
    const std::string_view id = entities.identifier();
    if (!id.empty()) add_if_new(ids, id, key.of(id));
  }
}

void wanted_entities_into(std::u16string_view file, std::u16string_view token, Tables tables,
                          const Collection& wanted, const Collection& items,
                          std::string_view source) {
  EntityReader entities(file, token, tables);
  try {
    Key key;
    while (entities.next()) {
      const std::u16string_view id = key.of(entities.identifier());
      if (!wanted.holds_text(id)) continue;
      const std::string_view text = entities.text();
      if (!text.empty()) add_if_new(items, text, id);
    }
  } catch (const Error& error) {
    throw_caught(error.text(), source);
  } catch (const std::bad_alloc&) {
    throw_caught(standard_text(ErrorNumber::out_of_memory), source);
  }
}

}  // namespace kw::store
