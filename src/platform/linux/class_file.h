// The text of a registry of classes: one section a class.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kw::platform {

struct ClassEntry {
  std::string name;
  std::string class_id;
  std::string library;
  std::string help;
};

//   [kwUtils.clsParse]
//   Class={141AA2DD-593E-11D2-805F-00A0244600DF}
//   Library=/usr/lib/libkwutils.so
//   Help=Parses the notation of entity files
class ClassFile {
 public:
  ClassFile() = default;
  // Lines that are none of these are dropped.
  explicit ClassFile(std::string_view text);

  std::string text() const;
  bool empty() const noexcept { return entries_.empty(); }
  // Finds by programmatic name in any case, or by identifier.
  const ClassEntry* find(std::string_view name_or_id) const noexcept;
  void put(ClassEntry entry);
  void remove(std::string_view name);

 private:
  std::vector<ClassEntry> entries_;
};

}  // namespace kw::platform
