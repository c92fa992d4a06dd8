#include "tool/svg.h"

#include <cstdio>

namespace kw::tool {
namespace {

constexpr double kWidth = 800;
constexpr double kHeight = 500;
constexpr double kLeft = 80;
constexpr double kRight = 20;
constexpr double kTop = 40;
constexpr double kBottom = 50;
constexpr const char* kColours[] = {"#1f6fb4", "#d9541e", "#2a8f4a",
                                    "#8a4fb0", "#b08a1e", "#444444"};

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", value);
  return text;
}

std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

class Drawing {
 public:
  explicit Drawing(const NumberTable& table)
      : table_(table), across_(extent_of(table.x)), up_(extent_of(table.lines)) {}

  std::string document(const std::string& title) {
    text_ =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 800 500\" width=\"800\" "
        "height=\"500\" font-family=\"sans-serif\" font-size=\"13\">\n"
        "<rect width=\"800\" height=\"500\" fill=\"white\"/>\n"
        "<text x=\"400\" y=\"24\" text-anchor=\"middle\" font-size=\"16\">" +
        escaped(title) + "</text>\n";
    for (const double mark : axis_marks(up_, 6)) mark_up(mark);
    for (const double mark : axis_marks(across_, 8)) mark_across(mark);
    add_line(kLeft, kTop, kLeft, kHeight - kBottom, "black");
    add_line(kLeft, kHeight - kBottom, kWidth - kRight, kHeight - kBottom, "black");
    for (std::size_t i = 0; i < table_.lines.size(); ++i) add_curve(i);
    return text_ + "</svg>\n";
  }

 private:
  double x(double value) const {
    return kLeft + place_in(across_, value) * (kWidth - kLeft - kRight);
  }
  double y(double value) const {
    return kHeight - kBottom - place_in(up_, value) * (kHeight - kTop - kBottom);
  }

  void add_line(double x1, double y1, double x2, double y2, const char* colour) {
    text_ += "<line x1=\"" + number(x1) + "\" y1=\"" + number(y1) + "\" x2=\"" + number(x2) +
             "\" y2=\"" + number(y2) + "\" stroke=\"" + colour + "\"/>\n";
  }

  void add_label(double at_x, double at_y, const char* anchor, double value) {
    text_ += "<text x=\"" + number(at_x) + "\" y=\"" + number(at_y) + "\" text-anchor=\"" + anchor +
             "\">" + number_label(value) + "</text>\n";
  }

  void mark_up(double mark) {
    add_line(kLeft, y(mark), kWidth - kRight, y(mark), "#dddddd");
    add_label(kLeft - 8, y(mark) + 4, "end", mark);
  }

  void mark_across(double mark) {
    add_line(x(mark), kHeight - kBottom, x(mark), kHeight - kBottom + 5, "black");
    add_label(x(mark), kHeight - kBottom + 20, "middle", mark);
  }

  void add_curve(std::size_t line) {
    text_ += "<polyline fill=\"none\" stroke-width=\"2\" stroke=\"";
    text_ += kColours[line % std::size(kColours)];
    text_ += "\" points=\"";
    for (std::size_t i = 0; i < table_.x.size(); ++i)
      text_ +=
          (i == 0 ? "" : " ") + number(x(table_.x[i])) + "," + number(y(table_.lines[line][i]));
    text_ += "\"/>\n";
  }

  const NumberTable& table_;
  Extent across_;
  Extent up_;
  std::string text_;
};

}  // namespace

std::string svg(const NumberTable& table, const std::string& title) {
  return Drawing(table).document(title);
}

}  // namespace kw::tool
