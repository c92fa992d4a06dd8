// How a command says what it takes from the command line. The parser of command lines stays behind
// these handles, because its header takes seconds to compile wherever it is included.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace kw::tool {

// An option or a positional argument of a command. The parser owns what the handle stands for.
class Argument {
 public:
  explicit Argument(CLI::Option* option) : option_(option) {}

  Argument required() const;
  Argument type_name(const char* name) const;  // what the help shows for the value
  Argument excludes(Argument other) const;
  Argument single() const;  // takes one value each time it is given, however often that is
  Argument one_of(std::vector<std::string> words) const;  // in any case
  // `fault` gives what is wrong with a value; "" for a good one.
  Argument check(std::string (*fault)(const std::string& value)) const;

 private:
  CLI::Option* option_;
};

// The command line of the tool, of a group of commands, or of one command. The parser owns what the
// handle stands for. Variables are written while the command line is parsed; they have to live as
// long. A name with hyphens ("-n,--numbers") is an option, another one a positional argument.
class Arguments {
 public:
  explicit Arguments(CLI::App* app) : app_(app) {}

  // A command or group of commands; `footer` ends its help.
  Arguments add_subcommand(const char* name, const char* help, const std::string& footer) const;
  void require_subcommand() const;
  // Called when the command line names this command and could be parsed.
  void callback(std::function<void()> chosen) const;

  Argument add_flag(const char* name, bool& value, const char* help) const;
  Argument add_option(const char* name, std::string& value, const char* help) const;
  Argument add_option(const char* name, std::optional<std::string>& value, const char* help) const;
  Argument add_option(const char* name, std::vector<std::string>& value, const char* help) const;
  Argument add_option(const char* name, std::optional<std::int32_t>& value, const char* help) const;
  Argument add_option(const char* name, double& value, const char* help) const;

  // An option whose value is one of these words; `value` becomes what stands beside the word.
  template <class Enum>
  Argument add_choice(const char* name, Enum& value, const char* help,
                      std::initializer_list<std::pair<const char*, Enum>> choices) const {
    Choices numbers;
    for (const auto& [word, choice] : choices) numbers.emplace_back(word, static_cast<int>(choice));
    const auto choose = [&value](int number) { value = static_cast<Enum>(number); };
    return add_choice(name, choose, help, std::move(numbers));
  }

 private:
  using Choices = std::vector<std::pair<std::string, int>>;

  Argument add_choice(const char* name, std::function<void(int)> choose, const char* help,
                      Choices choices) const;

  CLI::App* app_;
};

}  // namespace kw::tool
