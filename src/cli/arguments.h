// Bad arguments in French, one line each: the parser's own failures
// reworded, and the checks the options use (numbers shown as people write
// them, never as 310 digits).
#pragma once
#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace kestrel::cli {

// The parser's failure as one French line, without the "kestrel: " prefix;
// what the user typed appears quoted, escaped and cut.
std::string message_arguments(const CLI::ParseError& e);

// "kestrel power --help": the help of the sub-command that was being read.
std::string aide(CLI::App& app);

// A number from min to max, both included ("--every : 0 hors de [1, 32767]").
CLI::Validator entre(double min, double max);

// One of the listed words.
CLI::Validator parmi(std::vector<std::string> mots);

// Every real-valued option of app and of its sub-commands, at any depth,
// refuses NaN and infinities when it is read, whoever declared it.
void refuse_non_finis(CLI::App& app);

}  // namespace kestrel::cli
