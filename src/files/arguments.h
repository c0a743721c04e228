// The arguments of a command: words and options.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A command line that cannot be understood; the text says what is wrong with it.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The words and options behind a command's name. Every option has a value, given as "--name VALUE" or
/// "--name=VALUE" ("-o VALUE" for one with a single letter). "-" alone is a word; everything behind "--" is.
class Arguments {
  public:
    /// `known`: the options of the command with their dashes. UsageError for any other, for one without a
    /// value and for one given twice.
    Arguments(const std::vector<std::string>& arguments, const std::vector<std::string>& known);

    const std::vector<std::string>& words() const { return words_; }
    bool has(const std::string& option) const { return options_.count(option) != 0; }
    /// The value of an option; empty when it was not given.
    std::string value(const std::string& option) const;

    /// UsageError unless there are as many words as `names` lists; it names the first that is missing.
    void requireWords(const std::vector<std::string>& names) const;

  private:
    std::vector<std::string> words_;
    std::map<std::string, std::string> options_;
};

}  // namespace velmora
