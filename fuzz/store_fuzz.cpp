// Any bytes as an entity file, and any texts as type and identifier: the store must read and write
// exactly as its steps say.
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "base/code_page.h"
#include "input.h"
#include "kwutils/clsFileReadWrite.h"
#include "kwutils/error.h"
#include "platform/memory_files.h"
#include "reference/bulk_reads.h"
#include "reference/entity_lookup.h"
#include "reference/entity_writers.h"
#include "reference/identifiers.h"
#include "reference/table_entry.h"

namespace {

using namespace kw;

struct Question {
  std::string token;
  std::string id;
  std::string entity;
  std::string content;
};

void expect(bool holds) {
  if (!holds) std::abort();
}

String text(std::string_view bytes) { return String(widen(bytes)); }

// Type and identifier stay within the code page when they are turned to upper case, as the bytes of
// the reference must: U+0192 and U+00B5 do not.
std::string within_page(std::string_view bytes) {
  std::string text(bytes);
  std::replace(text.begin(), text.end(), '\x83', 'f');
  std::replace(text.begin(), text.end(), '\xB5', 'u');
  return text;
}

// What `read` gives, or nothing where it fails.
template <class Read>
auto outcome(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const Error&) {
    return std::nullopt;
  }
}

std::vector<std::string> texts_of(const Array<String>& array) {
  std::vector<std::string> texts;
  for (const String& element : array.elements()) texts.push_back(narrow(element));
  return texts;
}

constexpr auto kName = u"a.ent";

void look_up(const Question& ask) {
  clsFileReadWrite store;
  expect(narrow(store.GetEntity(kName, text(ask.token), text(ask.id))) ==
         reference::GetEntity({ask.content}, ask.token, ask.id));
  expect(outcome([&] {
           return narrow(store.GetEntityWithoutTable(kName, text(ask.token), text(ask.id)));
         }) == outcome([&] {
           return reference::GetEntityWithoutTable({ask.content}, ask.token, ask.id);
         }));
}

void read_table(const Question& ask) {
  clsFileReadWrite store;
  store.SetBufferSize(2);
  Array<String> table;
  const auto expected = reference::GetTableEntry({ask.content}, ask.token, ask.id, 2);
  expect(store.GetTableEntry(kName, String(), text(ask.token), text(ask.id), table) ==
         expected.result);
  expect(texts_of(table) == expected.table);
}

void read_all(const Question& ask) {
  clsFileReadWrite store;
  Array<String> entities;
  expect(store.GetEntities(kName, text(ask.token), entities));
  expect(texts_of(entities) == reference::GetEntities({ask.content}, ask.token));
}

void list_identifiers(const Question& ask) {
  clsFileReadWrite store;
  const auto got = outcome([&] {
    Collection list;
    store.GetEntityIDsIntoColl(kName, text(ask.token), list);
    std::vector<std::string> ids;
    for (std::int32_t i = 1; i <= list.count(); ++i) ids.push_back(narrow(list.item(i).text()));
    return ids;
  });
  expect(got == outcome([&] {
           std::vector<std::string> ids;
           for (const auto& item : reference::GetEntityIDsIntoColl({ask.content}, ask.token).items)
             ids.push_back(item.text);
           return ids;
         }));
}

void write(const Question& ask, const platform::MemoryFiles& files) {
  clsFileReadWrite store;
  String name = kName;
  store.WriteEntity(name, text(ask.token), text(ask.id), text(ask.entity));
  expect(files.content(kName) ==
         reference::WriteEntity(ask.content, ask.token, ask.id, ask.entity));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const int method = input.byte() % 5;
  Question ask;
  ask.token = within_page(input.text());
  ask.id = within_page(input.text());
  ask.entity = input.text();
  ask.content = input.rest();
  platform::MemoryFiles files;
  files.put(kName, ask.content);
  const platform::ScopedFileService in_use(files);
  switch (method) {
    case 0:
      look_up(ask);
      break;
    case 1:
      read_table(ask);
      break;
    case 2:
      read_all(ask);
      break;
    case 3:
      list_identifiers(ask);
      break;
    default:
      write(ask, files);
  }
  return 0;
}
