#include "tool/arguments.h"

#include <CLI/CLI.hpp>

namespace kw::tool {

Argument Argument::required() const { return Argument(option_->required()); }

Argument Argument::type_name(const char* name) const { return Argument(option_->type_name(name)); }

Argument Argument::excludes(Argument other) const {
  return Argument(option_->excludes(other.option_));
}

Argument Argument::single() const { return Argument(option_->allow_extra_args(false)); }

Argument Argument::one_of(std::vector<std::string> words) const {
  return Argument(option_->check(CLI::IsMember(std::move(words), CLI::ignore_case)));
}

Argument Argument::check(std::string (*fault)(const std::string& value)) const {
  return Argument(option_->check(fault, "", ""));
}

Arguments Arguments::add_subcommand(const char* name, const char* help,
                                    const std::string& footer) const {
  CLI::App* part = app_->add_subcommand(name, help);
  part->footer(footer);
  return Arguments(part);
}

void Arguments::require_subcommand() const { app_->require_subcommand(1); }

void Arguments::callback(std::function<void()> chosen) const { app_->callback(std::move(chosen)); }

Argument Arguments::add_flag(const char* name, bool& value, const char* help) const {
  return Argument(app_->add_flag(name, value, help));
}

Argument Arguments::add_option(const char* name, std::string& value, const char* help) const {
  return Argument(app_->add_option(name, value, help));
}

Argument Arguments::add_option(const char* name, std::optional<std::string>& value,
                               const char* help) const {
  return Argument(app_->add_option(name, value, help));
}

Argument Arguments::add_option(const char* name, std::vector<std::string>& value,
                               const char* help) const {
  return Argument(app_->add_option(name, value, help));
}

Argument Arguments::add_option(const char* name, std::optional<std::int32_t>& value,
                               const char* help) const {
  return Argument(app_->add_option(name, value, help));
}

Argument Arguments::add_option(const char* name, double& value, const char* help) const {
  return Argument(app_->add_option(name, value, help));
}

Argument Arguments::add_choice(const char* name, std::function<void(int)> choose, const char* help,
                               Choices choices) const {
  return Argument(app_->add_option_function<int>(name, choose, help)
                      ->transform(CLI::CheckedTransformer(std::move(choices))));
}

}  // namespace kw::tool
