// The contents of one profile file: where its sections and entries are, and how an edit changes it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/profile/profile_encoding.h"

namespace velmora {

/// Immutable contents with an index of the lines that count, made in one pass. Section names and keys are
/// given as Windows-1252 texts; values and new contents are bytes in the file's own encoding. Views point
/// into the contents.
class ProfileText {
  public:
    /// Longest contents that are taken, in bytes; offsets are kept in 32 bits.
    static constexpr std::size_t kLargest = 64 * 1024 * 1024;

    ProfileText() = default;
    /// Requires: at most kLargest bytes.
    explicit ProfileText(std::string content);
    ProfileText(const ProfileText&) = delete;
    ProfileText& operator=(const ProfileText&) = delete;

    const std::string& content() const { return content_; }
    ProfileEncoding encoding() const { return encoding_; }

    /// The value of the first such line, without the blanks around it, quotes kept.
    std::optional<std::string_view> value(std::string_view section, std::string_view key) const;
    /// The lines of the section as "key=value", or as they are without "=".
    std::vector<std::string> entries(std::string_view section) const;

    // New contents after an edit; the same contents when nothing is to do. `name` is the section or key in
    // the file's encoding, for a line that has to be added.

    std::string withValue(std::string_view section, std::string_view key, std::string_view bytes) const;
    std::string withoutKey(std::string_view section, std::string_view key) const;
    std::string withoutSection(std::string_view section) const;

  private:
    struct Span {
        std::uint32_t begin = 0;
        std::uint32_t length = 0;
    };
    struct Entry {
        Span line;  ///< with its line end
        Span key;   ///< the whole text of a line without "="
        Span value;
        bool hasValue = false;
    };
    struct Header {
        Span line;  ///< with its line end
        Span name;
        std::uint32_t firstEntry = 0;
    };

    void index();
    void indexLine(Span line);
    std::string_view view(Span span) const {
        return std::string_view(content_).substr(span.begin, span.length);
    }
    bool sameName(std::string_view stored, std::string_view wanted) const;
    const Header* findSection(std::string_view section) const;
    const Entry* findEntry(const Header& header, std::string_view key) const;
    /// Index behind the last entry of a section.
    std::uint32_t endOfEntries(const Header& header) const;
    std::string_view lineEndAfter(Span line) const;
    std::string inserted(Span after, const std::string& text) const;
    std::string replaced(std::size_t begin, std::size_t length, std::string_view bytes) const;

    std::string content_;
    ProfileEncoding encoding_ = ProfileEncoding::Ascii;
    std::vector<Header> headers_;
    std::vector<Entry> entries_;
};

}  // namespace velmora
