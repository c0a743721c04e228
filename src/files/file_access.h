// Files and standard streams as the commands read and write them.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

#include "base/files.h"
#include "base/path_rules.h"
#include "files/remarks.h"
#include "files/text_encoding.h"

namespace velmora {

/// The name of standard input and output.
constexpr const char* kStandardStream = "-";

/// Bytes in memory as a file, for reading and writing.
class BytesFile : public File {
  public:
    explicit BytesFile(std::string bytes = {}) : bytes_(std::move(bytes)) {}

    std::size_t read(char* buffer, std::size_t count) override;
    void write(std::string_view bytes) override;
    std::uint64_t position() const override { return position_; }
    void seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t size() const override { return bytes_.size(); }
    void flush() override {}
    bool isInPlace() const override { return true; }
    void close() override {}

    const std::string& bytes() const { return bytes_; }

  private:
    std::string bytes_;
    std::uint64_t position_ = 0;
};

/// What a command may touch. "-" as a name is standard input or output; other names are relative to the
/// current folder. Holds references only.
class FileAccess {
  public:
    FileAccess(Files& files, const PathRules& rules, std::istream& in, std::ostream& out, Remarks& remarks)
        : files_(files), rules_(rules), in_(in), out_(out), remarks_(remarks) {}

    /// An input at its first byte. RunTimeError.
    std::unique_ptr<File> openInput(const std::string& name) const;
    /// All bytes of an input. RunTimeError.
    std::string readInput(const std::string& name) const;
    /// The text of an input, as textFromBytes gives it. RunTimeError.
    std::string readText(const std::string& name, TextEncoding encoding) const;
    /// Writes an output: a file as a whole or not at all. RunTimeError.
    void writeOutput(const std::string& name, std::string_view bytes) const;

    /// The same with a text, in an encoding.
    void writeText(const std::string& name, std::string_view windows1252, TextEncoding encoding) const;

    /// Where a command tells what it cannot keep of a file.
    Tell tellOfInput(const std::string& name) const;
    Tell tellOfOutput(const std::string& name) const;
    /// Where a command prints what it has to say.
    std::ostream& out() const { return out_; }
    const PathRules& rules() const { return rules_; }

  private:
    Files& files_;
    const PathRules& rules_;
    std::istream& in_;
    std::ostream& out_;
    Remarks& remarks_;
};

/// All bytes of a file from its position on.
std::string readAll(File& file);

/// The extension of a name in small letters; empty when it has none.
std::string lowerExtension(const PathRules& rules, const std::string& name);

}  // namespace velmora
