#include "frame/standard_slots.h"

#include <cstddef>

#include "frame/late_bound.h"
#include "frame/object.h"
#include "platform/type_information.h"

namespace kw::frame {
namespace {

// The second part of an object lies right behind its first pointer.
ObjectBase* whole(ObjectBase::ErrorInfoPart* part) noexcept {
  return reinterpret_cast<ObjectBase*>(reinterpret_cast<char*>(part) - sizeof(void*));
}

HRESULT KW_STDCALL query_interface(ObjectBase* self, const GUID* iid, void** object) {
  if (object == nullptr) return status::kPointer;
  *object = nullptr;
  if (iid == nullptr) return status::kInvalidArgument;
  if (*iid == kIidUnknown || *iid == kIidDispatch || *iid == self->table.description().interface_id)
    *object = self;
  else if (*iid == kIidSupportErrorInfo)
    *object = &self->error_info_part;
  else
    return status::kNoInterface;
  self->add_reference();
  return status::kOk;
}

std::uint32_t KW_STDCALL add_ref(ObjectBase* self) {
  self->add_reference();
  return self->references;
}

std::uint32_t KW_STDCALL release(ObjectBase* self) { return self->release(); }

HRESULT KW_STDCALL get_type_info_count(ObjectBase*, std::uint32_t* count) {
  if (count == nullptr) return status::kPointer;
  *count = platform::has_type_information() ? 1 : 0;
  return status::kOk;
}

HRESULT KW_STDCALL get_type_info(ObjectBase* self, std::uint32_t index, LCID, ITypeInfo** info) {
  if (info == nullptr) return status::kPointer;
  *info = nullptr;
  if (index != 0) return status::kBadIndex;
  return platform::type_information(self->table.description().interface_id, info);
}

HRESULT KW_STDCALL part_query_interface(ObjectBase::ErrorInfoPart* part, const GUID* iid,
                                        void** object) {
  return query_interface(whole(part), iid, object);
}

std::uint32_t KW_STDCALL part_add_ref(ObjectBase::ErrorInfoPart* part) {
  return add_ref(whole(part));
}

std::uint32_t KW_STDCALL part_release(ObjectBase::ErrorInfoPart* part) {
  return release(whole(part));
}

HRESULT KW_STDCALL supports_error_info(ObjectBase::ErrorInfoPart* part, const GUID* iid) {
  if (iid == nullptr) return status::kInvalidArgument;
  return *iid == whole(part)->table.description().interface_id ? status::kOk : status::kFalse;
}

}  // namespace

std::span<void* const> standard_slots() noexcept {
  static void* const slots[] = {
      reinterpret_cast<void*>(&query_interface), reinterpret_cast<void*>(&add_ref),
      reinterpret_cast<void*>(&release),         reinterpret_cast<void*>(&get_type_info_count),
      reinterpret_cast<void*>(&get_type_info),   reinterpret_cast<void*>(&get_ids_of_names),
      reinterpret_cast<void*>(&invoke),
  };
  return slots;
}

void* const* error_info_slots() noexcept {
  static void* const slots[] = {
      reinterpret_cast<void*>(&part_query_interface), reinterpret_cast<void*>(&part_add_ref),
      reinterpret_cast<void*>(&part_release), reinterpret_cast<void*>(&supports_error_info)};
  return slots;
}

}  // namespace kw::frame
