#include "base/unicode.h"
#include "kwutils/clsFileUtil.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/shown_messages.h"

namespace kw::tool {
namespace {

struct PathOptions {
  std::string path;
  std::string base;
};

Variant base_of(const PathOptions& options) {
  return options.base.empty() ? Variant::missing() : Variant(String::from_utf8(options.base));
}

ExitCode answer(Session& session, const String& path) {
  if (!session.json) {
    session.out << path.view() << "\n";
    return ExitCode::done;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("path").text(path.view());
  json.end();
  return ExitCode::done;
}

void check_given(const PathOptions& options) {
  if (options.path.empty()) fail_usage("the path is empty");
}

// Carries out a conversion and hands on what the library would tell the user.
template <class Function>
ExitCode convert(Session& session, const PathOptions& options, const char* what,
                 Function&& function) {
  check_given(options);
  const std::string task = "cannot make " + in_quotes(options.path) + " " + what;
  const ShownMessages messages;
  const String path = function(String::from_utf8(options.path), base_of(options));
  messages.fail_if_any(task);
  if (path.empty()) fail(task + ": nothing is left of it");
  return answer(session, path);
}

ExitCode run_abs(Session& session, const PathOptions& options) {
  if (options.path.starts_with("\\\\"))
    fail("cannot make " + in_quotes(options.path) + " absolute: it is a network path");
  return convert(session, options, "absolute", [](const String& path, const Variant& base) {
    return clsFileUtil().MakeAbsolute(path, base);
  });
}

ExitCode run_rel(Session& session, const PathOptions& options) {
  // Without a folder in it the library would look for the place to cut for ever.
  if (!options.base.empty() && options.base.find('\\') == options.base.npos)
    fail_usage("the base " + in_quotes(options.base) + " holds no '\\'");
  return convert(session, options, "relative", [](const String& path, const Variant& base) {
    return clsFileUtil().UnMakeAbsolute(path, base);
  });
}

ExitCode run_split(Session& session, const PathOptions& options) {
  check_given(options);
  String path;
  String name;
  String extension;
  clsFileUtil().SplitFileName(from_utf8(options.path), path, name, extension);
  if (!session.json) {
    session.out << "path\t" << path.view() << "\nname\t" << name.view() << "\next\t"
                << extension.view() << "\n";
    return ExitCode::done;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("path").text(path.view());
  json.key("name").text(name.view());
  json.key("ext").text(extension.view());
  json.end();
  return ExitCode::done;
}

void add_path_option(Arguments line, PathOptions& options) {
  line.add_option("PATH", options.path, "The path").required();
}

void add_base(Arguments line, PathOptions& options) {
  line.add_option("--base", options.base,
                  "A file in the folder from which the path counts, or that folder with a '\\' at "
                  "its end; else the current directory")
      .type_name("NAME");
}

}  // namespace

void add_path(Arguments app, Session& session) {
  const Arguments path = add_group(app, "path", "Convert and split paths as Windows writes them",
                                   "kwutils path abs 'data\\in.txt' --base 'D:\\proj\\model.ini'");
  auto [abs, abs_options] =
      add_command<PathOptions>(path, session, "abs", "Make a path absolute",
                               "kwutils path abs 'data\\in.txt' --base 'D:\\proj\\model.ini'\n\n"
                               "$PATH$ in PATH stands for the library's own folder, $EXENAME$ for "
                               "its name. Drive C: is the\n"
                               "root of the file system.",
                               &run_abs);
  add_path_option(abs, abs_options);
  add_base(abs, abs_options);
  auto [rel, rel_options] = add_command<PathOptions>(
      path, session, "rel", "Make a path relative, in lower case",
      "kwutils path rel 'C:\\Work\\Data\\X.txt' --base 'C:\\work\\'", &run_rel);
  add_path_option(rel, rel_options);
  add_base(rel, rel_options);
  auto [split, split_options] = add_command<PathOptions>(
      path, session, "split", "Cut a file name into path, name and extension",
      "kwutils path split 'C:\\a\\b.tar.gz'", &run_split);
  add_path_option(split, split_options);
}

}  // namespace kw::tool
