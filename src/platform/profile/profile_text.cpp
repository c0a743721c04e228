#include "platform/profile/profile_text.h"

#include <algorithm>
#include <utility>

#include "base/byte_text.h"

namespace velmora {
namespace {

// What counts as a blank at the ends of a line and around its "=": also carriage returns that are more than
// the line end needs, and the end-of-file mark (code 26) that DOS editors left.
constexpr std::string_view kBlanks = " \t\r\v\f\x1A";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return text.substr(0, 0);
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

char upperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c;
}

/// The line end that a line carries; empty for a last line without one.
std::string_view lineEnd(std::string_view line) {
    if (line.ends_with("\r\n")) {
        return line.substr(line.size() - 2);
    }
    return line.ends_with('\n') ? line.substr(line.size() - 1) : line.substr(line.size());
}

}  // namespace

ProfileText::ProfileText(std::string content)
    : content_(std::move(content)), encoding_(detectEncoding(content_)) {
    index();
}

void ProfileText::index() {
    std::size_t begin = content_.starts_with(kUtf8Mark) ? kUtf8Mark.size() : 0;
    while (begin < content_.size()) {
        const std::size_t end = content_.find('\n', begin);
        const std::size_t next = end == std::string::npos ? content_.size() : end + 1;
        indexLine({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(next - begin)});
        begin = next;
    }
}

void ProfileText::indexLine(Span line) {
    const auto span = [&](std::string_view part) {
        return Span{static_cast<std::uint32_t>(part.data() - content_.data()),
                    static_cast<std::uint32_t>(part.size())};
    };
    std::string_view text = view(line);
    text.remove_suffix(lineEnd(text).size());
    // Texts end at their first zero byte; the bytes behind it stay in the file and are read as nothing.
    text = trimmed(text.substr(0, text.find('\0')));
    if (text.empty() || text.front() == ';') {
        return;
    }
    const std::size_t close = text.find(']');
    if (text.front() == '[' && close != std::string_view::npos) {
        headers_.push_back(
            {line, span(trimmed(text.substr(1, close - 1))), static_cast<std::uint32_t>(entries_.size())});
        return;
    }
    if (headers_.empty()) {
        return;  // what stands before the first section belongs to none
    }
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
        entries_.push_back({line, span(text), {}, false});
        return;
    }
    entries_.push_back(
        {line, span(trimmed(text.substr(0, equals))), span(trimmed(text.substr(equals + 1))), true});
}

bool ProfileText::sameName(std::string_view stored, std::string_view wanted) const {
    const std::size_t common = std::min(stored.size(), wanted.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (static_cast<unsigned char>(stored[i]) >= 0x80) {
            return upperCase(decodeText(stored, encoding_)) == upperCase(wanted);
        }
        if (upperAscii(stored[i]) != upperAscii(wanted[i])) {
            return false;
        }
    }
    return stored.size() == wanted.size();
}

const ProfileText::Header* ProfileText::findSection(std::string_view section) const {
    const auto found = std::find_if(headers_.begin(), headers_.end(), [&](const Header& header) {
        return sameName(view(header.name), section);
    });
    return found == headers_.end() ? nullptr : &*found;
}

std::uint32_t ProfileText::endOfEntries(const Header& header) const {
    const bool last = &header == &headers_.back();
    return last ? static_cast<std::uint32_t>(entries_.size()) : (&header + 1)->firstEntry;
}

const ProfileText::Entry* ProfileText::findEntry(const Header& header, std::string_view key) const {
    const std::uint32_t end = endOfEntries(header);
    for (std::uint32_t i = header.firstEntry; i < end; ++i) {
        const Entry& entry = entries_[i];
        if (entry.hasValue && sameName(view(entry.key), key)) {
            return &entry;
        }
    }
    return nullptr;
}

std::optional<std::string_view> ProfileText::value(std::string_view section, std::string_view key) const {
    const Header* header = findSection(section);
    const Entry* entry = header == nullptr ? nullptr : findEntry(*header, key);
    if (entry == nullptr) {
        return std::nullopt;
    }
    return view(entry->value);
}

std::vector<std::string> ProfileText::entries(std::string_view section) const {
    std::vector<std::string> lines;
    const Header* header = findSection(section);
    if (header == nullptr) {
        return lines;
    }
    const std::uint32_t end = endOfEntries(*header);
    for (std::uint32_t i = header->firstEntry; i < end; ++i) {
        const Entry& entry = entries_[i];
        std::string& line = lines.emplace_back(view(entry.key));
        if (entry.hasValue) {
            line += '=';
            line += view(entry.value);
        }
    }
    return lines;
}

std::string_view ProfileText::lineEndAfter(Span line) const {
    const std::string_view own = lineEnd(view(line));
    if (!own.empty()) {
        return own;
    }
    const std::string_view first = std::string_view(content_).substr(0, content_.find('\n') + 1);
    return first.empty() ? std::string_view("\r\n") : lineEnd(first);
}

std::string ProfileText::replaced(std::size_t begin, std::size_t length, std::string_view bytes) const {
    std::string result;
    result.reserve(content_.size() + bytes.size());
    result.append(content_, 0, begin).append(bytes).append(content_, begin + length);
    return result;
}

/// `text` (lines without their last line end) put behind the line `after`.
std::string ProfileText::inserted(Span after, const std::string& text) const {
    const std::string end(lineEndAfter(after));
    const bool open = after.length > 0 && lineEnd(view(after)).empty();
    return replaced(after.begin + after.length, 0, (open ? end : std::string()) + text + end);
}

std::string ProfileText::withValue(std::string_view section, std::string_view key,
                                   std::string_view bytes) const {
    const std::string name = encodeText(key, encoding_);
    const std::string assignment = '=' + std::string(bytes);
    const Header* header = findSection(section);
    if (header == nullptr) {
        // The last line of the file, as far as its line end goes.
        const std::size_t begin = content_.size() < 2 ? 0 : content_.size() - 2;
        const bool onlyMark = content_ == kUtf8Mark;
        const Span last{static_cast<std::uint32_t>(onlyMark ? content_.size() : begin),
                        static_cast<std::uint32_t>(onlyMark ? 0 : content_.size() - begin)};
        const std::string end(lineEndAfter(last));
        return inserted(last, '[' + encodeText(section, encoding_) + ']' + end + name + assignment);
    }
    if (const Entry* entry = findEntry(*header, key)) {
        const std::string_view end = lineEnd(view(entry->line));
        return replaced(entry->line.begin, entry->line.length - end.size(),
                        std::string(view(entry->key)) + assignment);
    }
    const std::uint32_t end = endOfEntries(*header);
    return inserted(end == header->firstEntry ? header->line : entries_[end - 1].line, name + assignment);
}

std::string ProfileText::withoutKey(std::string_view section, std::string_view key) const {
    const Header* header = findSection(section);
    const Entry* entry = header == nullptr ? nullptr : findEntry(*header, key);
    return entry == nullptr ? content_ : replaced(entry->line.begin, entry->line.length, {});
}

std::string ProfileText::withoutSection(std::string_view section) const {
    const Header* header = findSection(section);
    if (header == nullptr) {
        return content_;
    }
    const std::size_t end = header == &headers_.back() ? content_.size() : (header + 1)->line.begin;
    return replaced(header->line.begin, end - header->line.begin, {});
}

}  // namespace velmora
