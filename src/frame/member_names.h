// Finds a member by its name in any case, without a search: a perfect hash over the few names of a
// class.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kw::frame {

class MemberNames {
 public:
  // The names must differ in more than case and stay alive.
  explicit MemberNames(const std::vector<std::string_view>& names);

  static constexpr std::size_t kUnknown = static_cast<std::size_t>(-1);
  // The index of `name` in the list, or kUnknown.
  std::size_t find(std::u16string_view name) const noexcept;

 private:
  bool place_all(std::uint32_t seed);

  std::vector<std::string_view> names_;
  std::vector<std::uint16_t> places_;  // index + 1 by hash; 0 is free
  std::uint32_t seed_ = 0;
};

// Whether two names are the same without regard to the case of their letters.
bool same_name(std::u16string_view given, std::string_view published) noexcept;

}  // namespace kw::frame
