#include <charconv>
#include <cmath>
#include <limits>

#include "base/code_page.h"
#include "base/numeric_text.h"
#include "kwutils/error.h"

namespace kw {
namespace {

constinit char16_t decimal_separator = u'.';

char16_t unit_of(char16_t unit) noexcept { return unit; }
char16_t unit_of(char byte) noexcept { return decode(static_cast<unsigned char>(byte)); }

// The parts of a number in a text, as views into it.
template <class Char>
struct Parts {
  bool negative = false;
  std::basic_string_view<Char> whole;
  std::basic_string_view<Char> fraction;
  std::int64_t exponent = 0;
  std::size_t length = 0;  // of the text up to the end of the number and the blanks after it
};

template <class Char>
class Scanner {
 public:
  explicit Scanner(std::basic_string_view<Char> text) noexcept : text_(text) {}

  // The parts of the number that the text begins with; length 0 when it begins with none.
  Parts<Char> scan() noexcept {
    Parts<Char> parts;
    skip_blanks();
    parts.negative = take_sign();
    parts.whole = take_digits();
    if (take(decimal_separator)) parts.fraction = take_digits();
    if (parts.whole.empty() && parts.fraction.empty()) return {};
    parts.exponent = take_exponent();
    skip_blanks();
    parts.length = at_;
    return parts;
  }

 private:
  char16_t next() const noexcept { return at_ < text_.size() ? unit_of(text_[at_]) : u'\0'; }

  bool take(char16_t unit) noexcept {
    if (at_ == text_.size() || next() != unit) return false;
    ++at_;
    return true;
  }

  void skip_blanks() noexcept {
    while (take(u' ')) {
    }
  }

  bool take_sign() noexcept { return !take(u'+') && take(u'-'); }

  std::basic_string_view<Char> take_digits() noexcept {
    const std::size_t first = at_;
    while (next() >= u'0' && next() <= u'9') ++at_;
    return text_.substr(first, at_ - first);
  }

  // 0, and nothing taken, unless a whole exponent stands here.
  std::int64_t take_exponent() noexcept {
    const std::size_t before = at_;
    if (!take(u'E') && !take(u'e')) return 0;
    const bool negative = take_sign();
    const auto digits = take_digits();
    if (digits.empty()) at_ = before;
    // Far beyond every text's length, so that no number of zeros makes up for what is cut.
    constexpr std::int64_t kEnough = std::numeric_limits<std::int64_t>::max() / 100;
    std::int64_t exponent = 0;
    for (const Char digit : digits) {
      if (exponent < kEnough) exponent = exponent * 10 + (digit - '0');
    }
    return negative ? -exponent : exponent;
  }

  std::basic_string_view<Char> text_;
  std::size_t at_ = 0;
};

// The significant digits of a number, gathered for the conversion of the standard library: the
// value is that of the digits read as a whole number, times ten to the exponent.
class Significant {
 public:
  template <class Char>
  explicit Significant(const Parts<Char>& parts) noexcept : exponent_(parts.exponent) {
    for (const Char digit : parts.whole) add(static_cast<char>(digit), 1);
    for (const Char digit : parts.fraction) add(static_cast<char>(digit), 0);
    // Stands for everything that was left out: more than nothing, less than one in the last place.
    if (rest_) keep('1');
  }

  double value() noexcept {
    const std::int64_t magnitude = exponent_ + size_;
    if (size_ == 0 || magnitude < -400) return 0;
    if (magnitude > 400) return std::numeric_limits<double>::infinity();
    char* end = text_ + size_;
    *end++ = 'e';
    end = std::to_chars(end, text_ + sizeof text_, exponent_).ptr;
    double result = 0;
    const auto read = std::from_chars(text_, end, result);
    if (read.ec == std::errc()) return result;
    return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0;
  }

 private:
  // No two neighbouring doubles have a middle of more digits than this.
  static constexpr int kMaxDigits = 770;

  // `dropped` is what a digit that is not kept adds to the exponent: 1 left of the separator.
  void add(char digit, int dropped) noexcept {
    if (size_ == kMaxDigits) {
      rest_ = rest_ || digit != '0';
      exponent_ += dropped;
      return;
    }
    if (size_ != 0 || digit != '0') text_[size_++] = digit;
    exponent_ -= 1 - dropped;
  }

  void keep(char digit) noexcept {
    text_[size_++] = digit;
    --exponent_;
  }

  char text_[kMaxDigits + 24];
  int size_ = 0;
  bool rest_ = false;
  std::int64_t exponent_;
};

template <class Char>
double value_of(const Parts<Char>& parts) noexcept {
  const double value = Significant(parts).value();
  return parts.negative ? -value : value;
}

template <class Char>
std::optional<double> parse(std::basic_string_view<Char> text) noexcept {
  const Parts<Char> parts = Scanner<Char>(text).scan();
  if (parts.length == 0 || parts.length != text.size()) return std::nullopt;
  return value_of(parts);
}

template <class Char>
LeadingNumber leading(std::basic_string_view<Char> text) noexcept {
  const Parts<Char> parts = Scanner<Char>(text).scan();
  return {value_of(parts), parts.length};
}

// Does not depend on the rounding mode that the host program has set.
double round_half_even(double value) noexcept {
  const double below = std::floor(value);
  const double above_it = value - below;
  const bool up = above_it > 0.5 || (above_it == 0.5 && std::fmod(below, 2) != 0);
  return up ? below + 1 : below;
}

template <class Integer>
Integer to_integer(double value) {
  const double rounded = round_half_even(value);
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max())) {
    throw Error(ErrorNumber::overflow);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

std::optional<double> parse_number(std::u16string_view text) noexcept { return parse(text); }
std::optional<double> parse_number(std::string_view text) noexcept { return parse(text); }

LeadingNumber leading_number(std::u16string_view text) noexcept { return leading(text); }
LeadingNumber leading_number(std::string_view text) noexcept { return leading(text); }

void set_decimal_separator(char16_t separator) noexcept { decimal_separator = separator; }

std::int16_t to_int16(double value) { return to_integer<std::int16_t>(value); }
std::int32_t to_int32(double value) { return to_integer<std::int32_t>(value); }

float to_single(double value) {
  // From here on the nearest single would be infinite.
  constexpr double kTooLarge = 0x1.FFFFFFp127;
  if (std::fabs(value) >= kTooLarge) throw Error(ErrorNumber::overflow);
  return static_cast<float>(value);
}

double to_double(double value) {
  if (std::isinf(value)) throw Error(ErrorNumber::overflow);
  return value;
}

}  // namespace kw
