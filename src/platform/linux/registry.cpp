#include "platform/registry.h"

#include <dlfcn.h>
#include <link.h>

#include <filesystem>
#include <system_error>
#include <vector>

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/files.h"
#include "platform/guid_text.h"
#include "platform/host_functions.h"
#include "platform/linux/class_file.h"
#include "platform/linux/password_entry.h"

namespace kw::platform {
namespace {

constexpr const char* kFileName = "classes.ini";
constexpr const char* kSystemFolder = "/etc/kwutils";
constexpr const char* kOwnFolder = "kwutils";  // a host's folder is not the library's own

std::filesystem::path user_folder() {
  if (const auto folder = host_text(&HostFunctions::registry_folder)) return to_utf8(*folder);
  const auto entry = password_entry();
  if (!entry) throw Error(ErrorNumber::path_not_found, "home folder of the user");
  return std::filesystem::path(entry->home) / ".local/share/kwutils";
}

std::filesystem::path registry_file(RegistryScope scope) {
  return (scope == RegistryScope::user ? user_folder() : std::filesystem::path(kSystemFolder)) /
         kFileName;
}

std::string read_file(const std::filesystem::path& path) {
  std::string content;
  const auto input = files().open_input(from_utf8(path.native()));
  char block[4096];
  while (const std::size_t got = input->read(block, sizeof block)) content.append(block, got);
  return content;
}

ClassFile read_registry(const std::filesystem::path& path) {
  if (!files().exists(from_utf8(path.native()))) return {};
  return ClassFile(read_file(path));
}

void write_registry(const std::filesystem::path& path, const std::string& content) {
  std::error_code ignored;  // what cannot be made shows when the file is opened
  std::filesystem::create_directories(path.parent_path(), ignored);
  const std::u16string target = from_utf8(path.native());
  const auto file = files().create_replacement(target + u".tmp", target);
  file->write(content);
  file->replace();
}

}  // namespace

void register_classes(std::span<const RegisteredClass> classes, std::string_view library,
                      RegistryScope scope) {
  const auto path = registry_file(scope);
  ClassFile content = read_registry(path);
  for (const RegisteredClass& entry : classes)
    content.put({std::string(entry.name), guid_text(entry.class_id), std::string(library),
                 std::string(entry.help)});
  write_registry(path, content.text());
}

void unregister_classes(std::span<const RegisteredClass> classes, RegistryScope scope) {
  const auto path = registry_file(scope);
  if (!files().exists(from_utf8(path.native()))) return;
  ClassFile content = read_registry(path);
  for (const RegisteredClass& entry : classes) content.remove(entry.name);
  if (!content.empty()) return write_registry(path, content.text());
  files().remove(from_utf8(path.native()));
  std::error_code in_use;  // something else lies there
  if (path.parent_path().filename() == kOwnFolder)
    std::filesystem::remove(path.parent_path(), in_use);
}

RegistryScope own_scope() noexcept { return RegistryScope::user; }

std::optional<ClassServer> find_class_server(std::u16string_view name) {
  const std::string sought = to_utf8(name);
  for (const RegistryScope scope : {RegistryScope::user, RegistryScope::system}) {
    const ClassFile content = read_registry(registry_file(scope));
    const ClassEntry* entry = content.find(sought);
    const auto id = entry != nullptr ? parse_guid(entry->class_id) : std::nullopt;
    if (id) return ClassServer{*id, entry->library};
  }
  return std::nullopt;
}

std::string own_module_path() {
  Dl_info info = {};
  void* found = nullptr;
  if (dladdr1(reinterpret_cast<const void*>(&own_module_path), &info, &found, RTLD_DL_LINKMAP) == 0)
    return {};
  std::error_code failure;
  // The program itself has no name there, and the word that it was started by may name no path.
  const char* name = static_cast<const link_map*>(found)->l_name;
  if (*name == '\0') return std::filesystem::read_symlink("/proc/self/exe", failure).native();
  const auto path = std::filesystem::absolute(info.dli_fname, failure);
  return failure ? info.dli_fname : path.lexically_normal().native();
}

}  // namespace kw::platform
