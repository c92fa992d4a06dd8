// Walks the members of a group from the first to the last.
#pragma once

#include <windows.h>
// After the system's general header.
#include <oaidl.h>

#include <vector>

class OptionWalk : public IEnumVARIANT {
 public:
  // Holds a reference to each member.
  explicit OptionWalk(const std::vector<IDispatch*>& members, std::size_t next = 0);
  OptionWalk(const OptionWalk&) = delete;
  OptionWalk& operator=(const OptionWalk&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* members, ULONG* fetched) override;
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
  HRESULT STDMETHODCALLTYPE Reset() override;
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** walk) override;

 private:
  virtual ~OptionWalk();

  std::vector<IDispatch*> members_;
  std::size_t next_;
  ULONG references_ = 1;
};
