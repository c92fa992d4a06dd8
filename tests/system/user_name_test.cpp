#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "kwutils/clsAPIUtil.h"
#include "kwutils/host.h"
#include "support/texts.h"

namespace kw {
namespace {

struct NTDomainUserName : ::testing::Test {
  NTDomainUserName() {
    HostFunctions host;
    host.context = &name;
    host.user_name = [](void* context) KW_STDCALL -> BSTR {
      const auto& given = *static_cast<std::optional<std::u16string>*>(context);
      if (!given) return nullptr;
      return SysAllocStringLen(given->data(), static_cast<unsigned>(given->size()));
    };
    set_host(host);
  }
  ~NTDomainUserName() override { set_host(HostFunctions()); }

  std::u16string result_for(std::optional<std::u16string> given) {
    name = std::move(given);
    return testing::text_of(api.NTDomainUserName());
  }

  std::optional<std::u16string> name;
  clsAPIUtil api;
};

std::u16string padded(const std::u16string& name, std::size_t length = 254) {
  return name + std::u16string(length - name.size(), u'\0');
}

TEST_F(NTDomainUserName, IsInUpperCaseAndFilledUpWithNuls) {
  EXPECT_EQ(result_for(u"jdoe"), padded(u"JDOE"));
  EXPECT_EQ(result_for(u"J\u00F6rg \u00FF"), padded(u"J\u00D6RG \u0178"));
}

TEST_F(NTDomainUserName, IsAllNulsWhenTheNameIsUnknown) {
  EXPECT_EQ(result_for(std::nullopt), padded(u""));
}

TEST_F(NTDomainUserName, IsAllNulsWhenTheNameIsTooLong) {
  EXPECT_EQ(result_for(std::u16string(254, u'a')), std::u16string(254, u'A'));
  EXPECT_EQ(result_for(std::u16string(255, u'a')), padded(u""));
}

TEST_F(NTDomainUserName, IsShorterByTheBlanksThatBeginTheName) {
  EXPECT_EQ(result_for(u"  jdoe"), padded(u"JDOE", 252));
}

TEST_F(NTDomainUserName, KeepsBlanksBehindTheName) {
  EXPECT_EQ(result_for(u"jdoe  "), padded(u"JDOE  "));
}

TEST_F(NTDomainUserName, HoldsOnlyCharactersOfTheCodePage) {
  EXPECT_EQ(result_for(u"\u0141ukasz"), padded(u"?UKASZ"));
}

TEST(NTDomainUserNameOfTheSystem, IsTheProcessOwnersName) {
  const String name = clsAPIUtil().NTDomainUserName();
  EXPECT_EQ(name.size(), 254u);
  EXPECT_NE(name.view().front(), u'\0');
}

}  // namespace
}  // namespace kw
