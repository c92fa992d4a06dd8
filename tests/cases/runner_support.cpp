#include "runner_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "runner/run_files.h"

namespace kw::cases {
namespace {

namespace fs = std::filesystem;

const Library& library(Route route) {
  static const Library late_bound(KW_LIBRARY, Route::late_bound);
  static const Library slots(KW_LIBRARY, Route::slots);
  return route == Route::slots ? slots : late_bound;
}

// A file of cases that lives as long as the test needs it.
class CaseFile {
 public:
  explicit CaseFile(const std::string& content)
      : path_((fs::temp_directory_path() /
               ("kw_runner_test_" + std::to_string(std::random_device{}())))
                  .string()) {
    std::ofstream(path_, std::ios::binary) << content;
  }
  CaseFile(const CaseFile&) = delete;
  CaseFile& operator=(const CaseFile&) = delete;
  ~CaseFile() { fs::remove(path_); }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace

Report report_on(const std::string& path, const std::string& filter, Route route) {
  std::ostringstream out;
  Run run(library(route), filter, out);
  run.run_file(path);
  Report report;
  report.status = run.close();
  report.text = out.str();
  const std::size_t before = report.text.rfind('\n', report.text.size() - 2);
  report.last_line = before == report.text.npos ? report.text : report.text.substr(before + 1);
  return report;
}

Report report_on_text(const std::string& content, const std::string& filter, Route route) {
  const CaseFile file(content);
  return report_on(file.path(), filter, route);
}

std::string report_on_every_method(const std::string& content) {
  const CaseFile file(content);
  std::ostringstream out;
  Run run(library(Route::late_bound), "", out);
  run.run_file(file.path());
  run.require_every_method();
  run.close();
  return out.str();
}

Json text(const std::string& value, bool reference) {
  return {{"t", "str"}, {"v", value}, {"ref", reference}};
}

Json good_case() {
  return {{"id", "good"},
          {"class", "clsParse"},
          {"method", "ParseRecord"},
          {"args", list(text("a\r\nb\r\n", true))},
          {"expect", {{"result", "a"}, {"args_after", list(text("b\r\n"))}, {"error", nullptr}}}};
}

Json changed(const std::string& pointer, const Json& value) {
  Json one = good_case();
  one[Json::json_pointer(pointer)] = value;
  one["id"] = "under test";
  return one;
}

void expect_passed(const Json& one) {
  const Report report = report_on_text(one.dump() + "\n");
  EXPECT_EQ(report.text, "1 passed, 0 failed, 0 skipped\n");
  EXPECT_EQ(report.status, 0);
}

void expect_failed_line(const std::string& line, const std::string& reason) {
  const Report report = report_on_text(line + "\n" + good_case().dump() + "\n");
  EXPECT_EQ(report.last_line, "1 passed, 1 failed, 0 skipped\n") << report.text;
  EXPECT_NE(report.text.find(reason), std::string::npos) << report.text;
  EXPECT_EQ(report.status, 1);
}

void expect_failed(const Json& one, const std::string& reason) {
  expect_failed_line(one.dump(), "FAILED under test\n  " + reason);
}

void expect_malformed(const Json& one, const std::string& reason) {
  expect_failed(one, "the case cannot be run: " + reason);
}

}  // namespace kw::cases
