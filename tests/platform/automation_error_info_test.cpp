#include <string>
#include <thread>

#include "kwutils/automation.h"
#include "platform/automation_leaks.h"

namespace kw {
namespace {

class AutomationErrorInfo : public test::LeakCheckedTest {};

// An error object with this description; the caller holds one reference.
IErrorInfo* error_with(std::u16string description) {
  ICreateErrorInfo* made = nullptr;
  EXPECT_EQ(CreateErrorInfo(&made), status::kOk);
  EXPECT_EQ(made->SetDescription(description.data()), status::kOk);
  void* info = nullptr;
  EXPECT_EQ(made->QueryInterface(kIidErrorInfo, &info), status::kOk);
  made->Release();
  return static_cast<IErrorInfo*>(info);
}

void set_error(const std::u16string& description) {
  IErrorInfo* const info = error_with(description);
  EXPECT_EQ(SetErrorInfo(0, info), status::kOk);
  info->Release();
}

// The description of the thread's error, which is taken away; "none" without one.
std::u16string take_error() {
  IErrorInfo* info = nullptr;
  if (GetErrorInfo(0, &info) != status::kOk) return u"none";
  BSTR text = nullptr;
  EXPECT_EQ(info->GetDescription(&text), status::kOk);
  std::u16string description(text, SysStringLen(text));
  SysFreeString(text);
  EXPECT_EQ(info->Release(), 0u);
  return description;
}

TEST_F(AutomationErrorInfo, IsTakenAwayByReading) {
  set_error(u"failed");
  EXPECT_EQ(take_error(), u"failed");
  EXPECT_EQ(take_error(), u"none");
}

TEST_F(AutomationErrorInfo, OfANewerErrorReplacesTheOlder) {
  set_error(u"older");
  set_error(u"newer");
  EXPECT_EQ(take_error(), u"newer");
}

TEST_F(AutomationErrorInfo, IsClearedByNull) {
  set_error(u"failed");
  EXPECT_EQ(SetErrorInfo(0, nullptr), status::kOk);
  EXPECT_EQ(take_error(), u"none");
}

TEST_F(AutomationErrorInfo, BelongsToItsThread) {
  set_error(u"mine");
  std::u16string seen;
  std::thread([&seen] {
    seen = take_error();
    set_error(u"left behind");  // goes with the thread
  }).join();
  EXPECT_EQ(seen, u"none");
  EXPECT_EQ(take_error(), u"mine");
}

TEST_F(AutomationErrorInfo, AnswersNullWhenThereIsNone) {
  IErrorInfo* info = reinterpret_cast<IErrorInfo*>(&info);
  EXPECT_EQ(GetErrorInfo(0, &info), status::kFalse);
  EXPECT_EQ(info, nullptr);
}

TEST_F(AutomationErrorInfo, RefusesReservedValuesAndNull) {
  IErrorInfo* info = nullptr;
  EXPECT_EQ(GetErrorInfo(1, &info), status::kInvalidArgument);
  EXPECT_EQ(GetErrorInfo(0, nullptr), status::kInvalidArgument);
  EXPECT_EQ(SetErrorInfo(1, nullptr), status::kInvalidArgument);
  EXPECT_EQ(CreateErrorInfo(nullptr), status::kInvalidArgument);
}

class AutomationErrorObject : public test::LeakCheckedTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(CreateErrorInfo(&set), status::kOk);
    void* other = nullptr;
    ASSERT_EQ(set->QueryInterface(kIidErrorInfo, &other), status::kOk);
    get = static_cast<IErrorInfo*>(other);
  }

  void TearDown() override {
    set->Release();
    get->Release();
    LeakCheckedTest::TearDown();
  }

  using Getter = HRESULT (KW_STDCALL IErrorInfo::*)(BSTR*);

  std::u16string read(Getter getter) {
    BSTR text = nullptr;
    EXPECT_EQ((get->*getter)(&text), status::kOk);
    if (text == nullptr) return u"null";
    std::u16string found(text, SysStringLen(text));
    SysFreeString(text);
    return found;
  }

  ICreateErrorInfo* set = nullptr;
  IErrorInfo* get = nullptr;
};

TEST_F(AutomationErrorObject, StartsWithoutTexts) {
  EXPECT_EQ(read(&IErrorInfo::GetSource), u"null");
  EXPECT_EQ(read(&IErrorInfo::GetDescription), u"null");
  EXPECT_EQ(read(&IErrorInfo::GetHelpFile), u"null");
}

TEST_F(AutomationErrorObject, GivesBackWhatWasSet) {
  std::u16string source = u"source";
  std::u16string description = u"description";
  std::u16string file = u"help";
  EXPECT_EQ(set->SetGUID(kIidDispatch), status::kOk);
  EXPECT_EQ(set->SetSource(source.data()), status::kOk);
  EXPECT_EQ(set->SetDescription(description.data()), status::kOk);
  EXPECT_EQ(set->SetHelpFile(file.data()), status::kOk);
  EXPECT_EQ(set->SetHelpContext(42), status::kOk);
  GUID iid{};
  std::uint32_t context = 0;
  EXPECT_EQ(get->GetGUID(&iid), status::kOk);
  EXPECT_EQ(get->GetHelpContext(&context), status::kOk);
  EXPECT_EQ(iid, kIidDispatch);
  EXPECT_EQ(context, 42u);
  EXPECT_EQ(read(&IErrorInfo::GetSource), u"source");
  EXPECT_EQ(read(&IErrorInfo::GetDescription), u"description");
  EXPECT_EQ(read(&IErrorInfo::GetHelpFile), u"help");
}

TEST_F(AutomationErrorObject, ForgetsATextThatIsSetToNull) {
  std::u16string source = u"source";
  set->SetSource(source.data());
  EXPECT_EQ(set->SetSource(nullptr), status::kOk);
  EXPECT_EQ(read(&IErrorInfo::GetSource), u"null");
}

TEST_F(AutomationErrorObject, IsOneObjectUnderAllInterfaces) {
  void* from_set = nullptr;
  void* from_get = nullptr;
  EXPECT_EQ(set->QueryInterface(kIidUnknown, &from_set), status::kOk);
  EXPECT_EQ(get->QueryInterface(kIidUnknown, &from_get), status::kOk);
  EXPECT_EQ(from_set, from_get);
  void* again = nullptr;
  EXPECT_EQ(get->QueryInterface(kIidCreateErrorInfo, &again), status::kOk);
  EXPECT_EQ(again, set);
  EXPECT_EQ(get->AddRef(), 6u);
  for (int i = 0; i < 4; ++i) get->Release();
}

TEST_F(AutomationErrorObject, RefusesOtherInterfacesAndNull) {
  void* object = this;
  EXPECT_EQ(get->QueryInterface(kIidDispatch, &object), status::kNoInterface);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(get->QueryInterface(kIidUnknown, nullptr), status::kPointer);
  EXPECT_EQ(get->GetGUID(nullptr), status::kInvalidArgument);
  EXPECT_EQ(get->GetSource(nullptr), status::kInvalidArgument);
  EXPECT_EQ(get->GetHelpContext(nullptr), status::kInvalidArgument);
}

}  // namespace
}  // namespace kw
