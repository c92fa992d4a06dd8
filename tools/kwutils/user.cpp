#include "kwutils/clsAPIUtil.h"
#include "kwutils/clsStringUtil.h"
#include "tool/command.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

struct UserOptions {};

ExitCode run_user(Session& session, const UserOptions&) {
  const String name = clsStringUtil().StrNoNull(clsAPIUtil().NTDomainUserName());
  if (name.empty()) {
    session.say("the log-in name cannot be told");
    return ExitCode::not_found;
  }
  if (!session.json) {
    session.out << name.view() << "\n";
    return ExitCode::done;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("user").text(name.view());
  json.end();
  return ExitCode::done;
}

}  // namespace

void add_user(Arguments app, Session& session) {
  add_command<UserOptions>(app, session, "user", "Show who runs the tool",
                           "kwutils user\n\nThe log-in name, in upper case.", &run_user);
}

}  // namespace kw::tool
