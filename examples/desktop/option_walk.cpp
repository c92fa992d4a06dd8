#include "desktop/option_walk.h"

#include <algorithm>

OptionWalk::OptionWalk(const std::vector<IDispatch*>& members, std::size_t next)
    : members_(members), next_(next) {
  for (IDispatch* member : members_) member->AddRef();
}

OptionWalk::~OptionWalk() {
  for (IDispatch* member : members_) member->Release();
}

HRESULT OptionWalk::QueryInterface(REFIID wanted, void** object) {
  const bool known = wanted == IID_IUnknown || wanted == IID_IEnumVARIANT;
  *object = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG OptionWalk::AddRef() { return ++references_; }

ULONG OptionWalk::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT OptionWalk::Next(ULONG count, VARIANT* members, ULONG* fetched) {
  ULONG given = 0;
  for (; given < count && next_ < members_.size(); ++given, ++next_) {
    V_VT(&members[given]) = VT_DISPATCH;
    V_DISPATCH(&members[given]) = members_[next_];
    members_[next_]->AddRef();
  }
  if (fetched != nullptr) *fetched = given;
  return given == count ? S_OK : S_FALSE;
}

HRESULT OptionWalk::Skip(ULONG count) {
  const std::size_t left = members_.size() - next_;
  next_ += std::min<std::size_t>(count, left);
  return count <= left ? S_OK : S_FALSE;
}

HRESULT OptionWalk::Reset() {
  next_ = 0;
  return S_OK;
}

HRESULT OptionWalk::Clone(IEnumVARIANT** walk) {
  *walk = new OptionWalk(members_, next_);
  return S_OK;
}
