#include "tool/plot.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/unicode.h"

namespace kw::tool {
namespace {

// A character shows two dots beside each other and four above each other.
constexpr std::size_t kDotsAcross = 2;
constexpr std::size_t kDotsDown = 4;
constexpr char16_t kDots[kDotsDown][kDotsAcross] = {
    {0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}};
constexpr char16_t kNoDots = 0x2800;

class Canvas {
 public:
  Canvas(std::size_t columns, std::size_t rows)
      : columns_(columns), rows_(rows), cells_(columns * rows, kNoDots) {}

  std::size_t dots_across() const { return columns_ * kDotsAcross; }
  std::size_t dots_down() const { return rows_ * kDotsDown; }

  void dot(std::size_t x, std::size_t y) {
    char16_t& cell = cells_[y / kDotsDown * columns_ + x / kDotsAcross];
    cell = static_cast<char16_t>(cell | kDots[y % kDotsDown][x % kDotsAcross]);
  }

  // One row, blanks where nothing was drawn.
  std::string row(std::size_t number) const {
    std::u16string text(cells_, number * columns_, columns_);
    std::replace(text.begin(), text.end(), kNoDots, u' ');
    return to_utf8(text);
  }

 private:
  std::size_t columns_;
  std::size_t rows_;
  std::u16string cells_;
};

struct Point {
  double x, y;  // in dots
};

void draw_line(Canvas& canvas, Point from, Point to) {
  const double steps = std::max({1.0, std::fabs(to.x - from.x), std::fabs(to.y - from.y)});
  for (double i = 0; i <= std::ceil(steps); ++i) {
    const double part = std::min(1.0, i / steps);
    canvas.dot(static_cast<std::size_t>(std::lround(from.x + (to.x - from.x) * part)),
               static_cast<std::size_t>(std::lround(from.y + (to.y - from.y) * part)));
  }
}

void draw(Canvas& canvas, const NumberTable& table, const Extent& across, const Extent& up) {
  const auto place = [&](double x, double y) -> Point {
    return {place_in(across, x) * static_cast<double>(canvas.dots_across() - 1),
            (1 - place_in(up, y)) * static_cast<double>(canvas.dots_down() - 1)};
  };
  for (const std::vector<double>& line : table.lines)
    for (std::size_t i = 0; i < line.size(); ++i) {
      const std::size_t before = i == 0 ? 0 : i - 1;
      draw_line(canvas, place(table.x[before], line[before]), place(table.x[i], line[i]));
    }
}

// The labels of the upright axis, one for each row of characters, most of them empty.
std::vector<std::string> row_labels(const Extent& up, std::size_t rows) {
  std::vector<std::string> labels(rows);
  for (const double mark : axis_marks(up, static_cast<int>(rows / 4 + 1))) {
    const double row = (1 - place_in(up, mark)) * static_cast<double>(rows - 1);
    labels[static_cast<std::size_t>(std::lround(row))] = number_label(mark);
  }
  return labels;
}

std::size_t widest(const std::vector<std::string>& labels) {
  std::size_t width = 0;
  for (const std::string& label : labels) width = std::max(width, label.size());
  return width;
}

// The label of the left end, that of the right end, and blanks between.
std::string lower_axis(const Extent& across, std::size_t margin, std::size_t columns) {
  const std::string low = number_label(across.low);
  const std::string high = number_label(across.high);
  const std::size_t used = low.size() + high.size();
  const std::string gap(columns > used ? columns - used : 1, ' ');
  return std::string(margin + 1, ' ') + low + gap + high + "\n";
}

}  // namespace

std::string plot(const NumberTable& table, std::size_t width, std::size_t height) {
  const Extent across = extent_of(table.x);
  const Extent up = extent_of(table.lines);
  const std::vector<std::string> labels = row_labels(up, height);
  const std::size_t margin = widest(labels) + 1;
  const std::size_t columns = width > margin + 11 ? width - margin - 1 : 10;
  Canvas canvas(columns, height);
  draw(canvas, table, across, up);
  std::string text;
  for (std::size_t row = 0; row < height; ++row)
    text += std::string(margin - 1 - labels[row].size(), ' ') + labels[row] +
            (labels[row].empty() ? " │" : " ┤") + canvas.row(row) + "\n";
  text += std::string(margin, ' ') + "└";
  for (std::size_t i = 0; i < columns; ++i) text += "─";
  return text + "\n" + lower_axis(across, margin, columns);
}

}  // namespace kw::tool
