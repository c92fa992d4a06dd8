#include "windows/type_library_reader.h"

#include <windows.h>
// After the system's general header.
#include <oleauto.h>

#include <stdexcept>

namespace kw::testing {
namespace {

void check(HRESULT answer) {
  if (answer != S_OK) throw std::runtime_error("the type library cannot be read");
}

// Takes the text over.
std::string text_of(BSTR text) {
  std::string result;
  for (UINT i = 0; i < SysStringLen(text); ++i) result += static_cast<char>(text[i]);
  SysFreeString(text);
  return result;
}

std::string text_of(const GUID& id) {
  OLECHAR text[40] = {};
  StringFromGUID2(id, text, 40);
  return text_of(SysAllocString(text));
}

std::string name_of(ITypeInfo* info) {
  BSTR name = nullptr;
  check(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
  return text_of(name);
}

std::string type_text(ITypeInfo* info, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_PTR:
      return type_text(info, *type.lptdesc) + "*";
    case VT_SAFEARRAY:
      return "SAFEARRAY(" + type_text(info, *type.lptdesc) + ")";
    case VT_USERDEFINED: {
      ITypeInfo* other = nullptr;
      check(info->GetRefTypeInfo(type.hreftype, &other));
      const std::string name = name_of(other);
      other->Release();
      return name;
    }
    case VT_BSTR:
      return "BSTR";
    case VT_I2:
      return "short";
    case VT_I4:
      return "long";
    case VT_R4:
      return "float";
    case VT_R8:
      return "double";
    case VT_BOOL:
      return "VARIANT_BOOL";
    case VT_VARIANT:
      return "VARIANT";
    case VT_DISPATCH:
      return "IDispatch*";
    case VT_UNKNOWN:
      return "IUnknown*";
    default:
      return "kind " + std::to_string(type.vt);
  }
}

TypeParameter parameter_of(ITypeInfo* info, const ELEMDESC& element) {
  TypeParameter parameter;
  parameter.type = type_text(info, element.tdesc);
  const USHORT flags = element.paramdesc.wParamFlags;
  parameter.optional = (flags & PARAMFLAG_FOPT) != 0;
  parameter.has_default = (flags & PARAMFLAG_FHASDEFAULT) != 0;
  if (!parameter.has_default) return parameter;
  VARIANT value;
  VariantInit(&value);
  check(VariantChangeType(&value, &element.paramdesc.pparamdescex->varDefaultValue, 0, VT_I4));
  parameter.default_value = value.lVal;
  return parameter;
}

TypeMethod method_of(ITypeInfo* info, const FUNCDESC& function) {
  TypeMethod method;
  method.id = function.memid;
  method.slot = function.oVft / static_cast<int>(sizeof(void*));
  std::vector<BSTR> names(static_cast<std::size_t>(function.cParams) + 1, nullptr);
  UINT count = 0;
  check(info->GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &count));
  method.name = text_of(names[0]);
  for (SHORT i = 0; i < function.cParams; ++i) {
    method.parameters.push_back(parameter_of(info, function.lprgelemdescParam[i]));
    method.parameters.back().name = text_of(names[static_cast<std::size_t>(i) + 1]);
  }
  BSTR help = nullptr;
  check(info->GetDocumentation(function.memid, nullptr, &help, nullptr, nullptr));
  method.help = text_of(help);
  return method;
}

void add_methods(TypeEntry& entry, ITypeInfo* info, const TYPEATTR& attributes) {
  for (UINT i = 0; i < attributes.cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    check(info->GetFuncDesc(i, &function));
    entry.methods.push_back(method_of(info, *function));
    info->ReleaseFuncDesc(function);
  }
}

void add_members(TypeEntry& entry, ITypeInfo* info, const TYPEATTR& attributes) {
  for (UINT i = 0; i < attributes.cVars; ++i) {
    VARDESC* member = nullptr;
    check(info->GetVarDesc(i, &member));
    BSTR name = nullptr;
    check(info->GetDocumentation(member->memid, &name, nullptr, nullptr, nullptr));
    entry.members.push_back(text_of(name));
    if (member->varkind == VAR_CONST) entry.values.push_back(member->lpvarValue->lVal);
    info->ReleaseVarDesc(member);
  }
}

void add_interfaces(TypeEntry& entry, ITypeInfo* info, const TYPEATTR& attributes) {
  for (UINT i = 0; i < attributes.cImplTypes; ++i) {
    HREFTYPE reference = 0;
    ITypeInfo* other = nullptr;
    check(info->GetRefTypeOfImplType(i, &reference));
    check(info->GetRefTypeInfo(reference, &other));
    entry.members.push_back(name_of(other));
    other->Release();
  }
}

const char* kind_text(TYPEKIND kind) {
  switch (kind) {
    case TKIND_COCLASS:
      return "class";
    case TKIND_ENUM:
      return "enum";
    case TKIND_RECORD:
      return "record";
    case TKIND_ALIAS:
      return "alias";
    default:
      return "interface";
  }
}

// The slots of a dual interface are told by its other half.
ITypeInfo* with_slots(ITypeInfo* info, TYPEKIND kind) {
  HREFTYPE reference = 0;
  ITypeInfo* other = nullptr;
  if (kind == TKIND_DISPATCH &&
      info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference) == S_OK)
    check(info->GetRefTypeInfo(reference, &other));
  if (other == nullptr) (other = info)->AddRef();
  return other;
}

TypeEntry entry_of(ITypeInfo* info) {
  TypeEntry entry;
  TYPEATTR* attributes = nullptr;
  check(info->GetTypeAttr(&attributes));
  BSTR name = nullptr, help = nullptr;
  check(info->GetDocumentation(MEMBERID_NIL, &name, &help, nullptr, nullptr));
  entry.name = text_of(name);
  entry.help = text_of(help);
  entry.id = text_of(attributes->guid);
  entry.kind = kind_text(attributes->typekind);
  entry.major = attributes->wMajorVerNum;
  entry.minor = attributes->wMinorVerNum;
  entry.hidden = (attributes->wTypeFlags & TYPEFLAG_FHIDDEN) != 0;
  if (entry.kind == "interface") {
    ITypeInfo* slots = with_slots(info, attributes->typekind);
    TYPEATTR* of_slots = nullptr;
    check(slots->GetTypeAttr(&of_slots));
    add_methods(entry, slots, *of_slots);
    slots->ReleaseTypeAttr(of_slots);
    slots->Release();
  } else if (entry.kind == "class") {
    add_interfaces(entry, info, *attributes);
  } else if (entry.kind == "alias") {
    entry.members.push_back(type_text(info, attributes->tdescAlias));
  } else {
    add_members(entry, info, *attributes);
  }
  info->ReleaseTypeAttr(attributes);
  return entry;
}

}  // namespace

TypeLibrary read_type_library(const char* file) {
  OLECHAR path[MAX_PATH] = {};
  MultiByteToWideChar(CP_ACP, 0, file, -1, path, MAX_PATH);
  ITypeLib* library = nullptr;
  check(LoadTypeLibEx(path, REGKIND_NONE, &library));
  TLIBATTR* attributes = nullptr;
  check(library->GetLibAttr(&attributes));
  TypeLibrary result{text_of(attributes->guid),
                     attributes->wMajorVerNum,
                     attributes->wMinorVerNum,
                     attributes->lcid,
                     {}};
  library->ReleaseTLibAttr(attributes);
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    ITypeInfo* info = nullptr;
    check(library->GetTypeInfo(i, &info));
    result.entries.push_back(entry_of(info));
    info->Release();
  }
  library->Release();
  return result;
}

}  // namespace kw::testing
