// Files of the services FTRAN and FILE.
#include <algorithm>
#include <memory>

#include "organiser/conversation.h"
#include "organiser/file_client.h"
#include "organiser/ftran_client.h"
#include "services/data_conversion.h"
#include "task.h"
#include "violation.h"

namespace velmora::simulation {
namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t kNames = 4;

std::string textOf(Random& random, std::size_t longest, const std::string& without) {
    std::string text = random.bytes(random.below(longest + 1));
    for (char& c : text) {
        c = without.find(c) != std::string::npos ? 'x' : c;
    }
    return text;
}

std::size_t messages(Random& random) {
    return random.chance(1, 20) ? random.between(9, 40) : random.below(7);
}

/// Fields that come back from every form: none begins a record with a quote or ends it empty.
std::string record(Random& random) {
    std::string text = textOf(random, 40, std::string("\r\n\t\",;\0", 7));
    for (std::uint64_t more = random.below(3); more > 0; --more) {
        text += '\t' + textOf(random, 40, std::string("\r\n\t\0", 4)) + "x";
    }
    return text;
}

std::size_t sumWithEnds(const Lines& lines) {
    std::size_t sum = 0;
    for (const std::string& line : lines) {
        sum += line.size() + 2;
    }
    return sum;
}

std::string extensionOf(int dataFileType) {
    constexpr std::array kExtensions = {".ODB", ".TXT", ".CSV", ".CSV"};
    return kExtensions[static_cast<std::size_t>(dataFileType)];
}

std::string blockExtension(int type) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return type == 16 ? ".OB10" : std::string(".OB") + kDigits[static_cast<std::size_t>(type)];
}

/// The name of a path as the Organiser writes it.
std::string nameOf(const std::string& path) {
    std::string name = path.substr(path.rfind('/') + 1);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return name;
}
std::string withoutExtension(const std::string& name) {
    return name.substr(0, name.rfind('.'));
}

std::string number(Random& random) {
    return std::to_string(random.below(kNames));
}

/// Chooses the mode; the server refuses one that does not fit what is there.
FileMode chooseMode(TaskContext& context, Task& task) {
    const bool exists = context.files.find(task.path) != nullptr;
    switch (context.random.below(6)) {
        case 0:
            if (!exists) {
                task.refusal = codePayload(kCodeFileNotFound);
            }
            return FileMode::Replace;
        case 1:
            if (exists) {
                task.refusal = codePayload(kCodeFileExists);
            }
            return FileMode::CreateNew;
        default:
            return FileMode::Create;
    }
}

Task saveRecords(TaskContext& context) {
    Random& random = context.random;
    const int dataFileType = context.settings.dataFileType;
    const bool ownExtension = random.chance(1, 3);
    const std::string base = "D" + number(random);
    const std::string name = ownExtension ? base + ".DAT" : base;
    Task task;
    task.path = pathOf(ownExtension ? name : base + extensionOf(dataFileType));
    const FileMode mode = chooseMode(context, task);
    Lines records;
    for (std::size_t i = messages(random); i > 0; --i) {
        records.push_back(record(random));
    }
    Saving saving{task.path, true, recordsContent(records, records.size(), dataFileType, ownExtension), {}};
    for (std::size_t count = 0; count < records.size(); ++count) {
        saving.partial.push_back(recordsContent(records, count, dataFileType, ownExtension));
    }
    task.saving = std::move(saving);
    task.statistics = {sumWithEnds(records), 0, 1, 0};
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        FtranClient(link, progress).saveRecords(name, mode, records);
    };
    return task;
}

Task appendRecords(TaskContext& context) {
    Lines paths = context.files.ofForm(Form::Records);
    std::erase_if(paths,
                  [&](const std::string& path) { return !context.files.find(path)->now.ownExtension; });
    if (paths.empty()) {
        return saveRecords(context);
    }
    Random& random = context.random;
    Task task;
    task.path = random.pick(paths);
    const FileContent old = context.files.find(task.path)->now;
    const std::string name = nameOf(task.path);
    Lines added;
    for (std::size_t i = messages(random); i > 0; --i) {
        added.push_back(record(random));
    }
    Lines all = old.records;
    all.insert(all.end(), added.begin(), added.end());
    Saving saving{task.path, false, recordsContent(all, all.size(), 0, true), {}};
    for (std::size_t count = old.records.size(); count < all.size(); ++count) {
        saving.partial.push_back(recordsContent(all, count, 0, true));
    }
    task.saving = std::move(saving);
    task.statistics = {sumWithEnds(added), 0, added.empty() ? 0U : 1U, 0};
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        FtranClient(link, progress).saveRecords(name, FileMode::Append, added);
    };
    return task;
}

Task saveProcedure(TaskContext& context) {
    Random& random = context.random;
    const std::string name = "P" + number(random);
    Task task;
    task.path = pathOf(name + ".OPL");
    const FileMode mode = chooseMode(context, task);
    Lines lines;
    std::string source;
    for (std::size_t i = messages(random); i > 0; --i) {
        lines.push_back(textOf(random, 60, std::string("\r\n\0", 3)));
        source += lines.back() + '\0';
    }
    const std::size_t chunks = messagesFor(source.size());
    Saving saving{task.path, true, procedureContent(lines, chunks), {}};
    for (std::size_t count = 0; count < chunks; ++count) {
        saving.partial.push_back(procedureContent(lines, count));
    }
    task.statistics = {source.size() + lines.size(), 0, 1, 0};
    task.saving = std::move(saving);
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        FtranClient(link, progress).saveProcedure(name, mode, lines);
    };
    return task;
}

Task saveBlock(TaskContext& context) {
    Random& random = context.random;
    const int type = static_cast<int>(random.between(kFirstBlockType, kLastBlockType));
    const std::string name = "B" + number(random);
    Task task;
    task.path = pathOf(name + blockExtension(type));
    const FileMode mode = chooseMode(context, task);
    const std::string bytes = random.bytes(random.below(random.chance(1, 20) ? 8'000 : 700));
    const std::size_t chunks = messagesFor(bytes.size());
    Saving saving{task.path, true, blockContent(bytes, type, chunks, true), {{}}};
    for (std::size_t count = 0; count <= chunks; ++count) {
        saving.partial.push_back(blockContent(bytes, type, count, false));
        saving.partial.push_back(blockContent(bytes, type, count, true));
    }
    task.saving = std::move(saving);
    task.statistics = {bytes.size(), 0, 1, 0};
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        FtranClient(link, progress).saveBlock(name, mode, type, bytes);
    };
    return task;
}

Task writeBytes(TaskContext& context) {
    Random& random = context.random;
    const std::string name = "X" + number(random);
    Task task;
    task.path = pathOf(name);
    const FileMode mode = chooseMode(context, task);
    const std::string bytes = random.bytes(random.below(900));
    const std::size_t chunks = messagesFor(bytes.size());
    Saving saving{task.path, true, {bytes, Form::Bytes, 0, false, {}}, {}};
    for (std::size_t count = 0; count < chunks; ++count) {
        saving.partial.push_back({std::string(carried(bytes, count)), Form::Bytes, 0, false, {}});
    }
    task.saving = std::move(saving);
    task.statistics.bytesReceived = bytes.size();
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        FileClient(link, progress).writeBytes(name, mode, std::nullopt, bytes);
    };
    return task;
}

Task overwriteBytes(TaskContext& context) {
    const Lines paths = context.files.ofForm(Form::Bytes);
    if (paths.empty()) {
        return writeBytes(context);
    }
    Random& random = context.random;
    Task task;
    task.path = random.pick(paths);
    const std::string old = context.files.find(task.path)->now.bytes;
    const std::string bytes = random.bytes(random.below(600));
    const bool fromEnd = random.chance(1, 2);
    const std::size_t place = random.below(old.size() + 1);
    const auto written = [=](std::size_t count) {
        std::string content = old;
        const std::string_view part = carried(bytes, count);
        content.resize(std::max(content.size(), place + part.size()));
        content.replace(place, part.size(), part);
        return FileContent{content, Form::Bytes, 0, false, {}};
    };
    const std::size_t chunks = messagesFor(bytes.size());
    Saving saving{task.path, false, written(chunks), {}};
    for (std::size_t count = 0; count < chunks; ++count) {
        saving.partial.push_back(written(count));
    }
    task.saving = std::move(saving);
    Seek seek{fromEnd ? Seek::From::End : Seek::From::Start, static_cast<std::int64_t>(place)};
    if (fromEnd) {
        seek.offset -= static_cast<std::int64_t>(old.size());
    }
    task.statistics = {bytes.size() + std::to_string(seek.offset).size(), 8, 0, 0};
    task.converse = [=, name = nameOf(task.path)](OrganiserLink& link) {
        Progress progress;
        FileClient client(link, progress);
        client.writeBytes(name, FileMode::Append, seek, bytes);
        require(client.position() == place, "A seek led to another place than it told.");
    };
    return task;
}

FileContent linesContent(const Lines& lines, std::size_t count) {
    FileContent content{
        {}, Form::Lines, 0, false, {lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count)}};
    for (const std::string& line : content.records) {
        content.bytes += line + "\r\n";
    }
    return content;
}

Task writeLines(TaskContext& context, bool appends) {
    Random& random = context.random;
    const Lines paths = context.files.ofForm(Form::Lines);
    appends = appends && !paths.empty();
    Task task;
    task.path = appends ? random.pick(paths) : pathOf("T" + number(random) + ".LST");
    const FileMode mode = appends ? FileMode::Append : chooseMode(context, task);
    Lines lines = appends ? context.files.find(task.path)->now.records : Lines();
    const std::size_t before = lines.size();
    // FILE keeps the field separator of FTRAN, so the lines hold nothing that it would change.
    for (std::size_t i = messages(random); i > 0; --i) {
        lines.push_back(textOf(random, 60, std::string("\r\n\t,;\"\0", 7)));
    }
    const Lines added(lines.begin() + static_cast<std::ptrdiff_t>(before), lines.end());
    Saving saving{task.path, !appends, linesContent(lines, lines.size()), {}};
    for (std::size_t count = before; count < lines.size(); ++count) {
        saving.partial.push_back(linesContent(lines, count));
    }
    task.saving = std::move(saving);
    task.statistics.bytesReceived = sumWithEnds(added);
    task.converse = [=, name = nameOf(task.path)](OrganiserLink& link) {
        Progress progress;
        FileClient(link, progress).writeLines(name, mode, added);
    };
    return task;
}

// ---------------------------------------------------------------------------------------------------------
// Loading

void requireSame(bool same, const std::string& path) {
    require(same, "A load gave other bytes than the file has: " + path + ".");
}

Task loadRecords(const std::string& path, const FileContent& content, TaskContext& context) {
    // A name with its extension loads the lines as they are.
    const bool whole = content.ownExtension || content.variety != context.settings.dataFileType;
    const bool separated = !whole && content.variety >= 2;
    const Lines expected = separated ? content.records : linesOf(content.bytes);
    Task task;
    task.path = path;
    task.statistics = {0, sumWithEnds(expected), 0, 1};
    const std::string name = whole ? nameOf(path) : withoutExtension(nameOf(path));
    if (std::any_of(expected.begin(), expected.end(),
                    [](const std::string& line) { return line.size() > kMostData; })) {
        task.refusal = codePayload(kCodeRecordTooLong);
    }
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        requireSame(FtranClient(link, progress).loadRecords(name) == expected, path);
    };
    return task;
}

Task loadProcedure(const std::string& path, const FileContent& content) {
    Lines expected = linesOf(content.bytes);
    Task task;
    task.path = path;
    for (std::string& line : expected) {
        std::replace(line.begin(), line.end(), '\7', ' ');
    }
    task.statistics = {0, sumWithEnds(expected), 0, 1};
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        requireSame(FtranClient(link, progress).loadProcedure(withoutExtension(nameOf(path))) == expected,
                    path);
    };
    return task;
}

Task loadBlock(const std::string& path, const FileContent& content) {
    constexpr std::size_t kHeader = 6;
    Task task;
    task.path = path;
    const std::string& bytes = content.bytes;
    const std::string expected = bytes.size() < kHeader ? std::string() : bytes.substr(kHeader);
    if (bytes != blockContent(expected, content.variety, messagesFor(expected.size()), true).bytes) {
        task.refusal = codePayload(kCodeInvalidRequest);
    }
    task.statistics = {0, expected.size(), 0, 1};
    task.converse = [=, type = content.variety](OrganiserLink& link) {
        Progress progress;
        requireSame(FtranClient(link, progress).loadBlock(withoutExtension(nameOf(path)), type) == expected,
                    path);
    };
    return task;
}

Task loadBytes(const std::string& path, const FileContent& content, Random& random) {
    Task task;
    task.path = path;
    const std::size_t from = random.chance(1, 2) ? 0 : random.below(content.bytes.size() + 1);
    const std::string expected = content.bytes.substr(from);
    std::optional<Seek> seek;
    task.statistics.bytesSent = expected.size();
    if (from > 0) {
        seek = Seek{Seek::From::Here, static_cast<std::int64_t>(from)};
        task.statistics.bytesReceived = std::to_string(from).size();
        task.statistics.bytesSent += 8;
    }
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        requireSame(FileClient(link, progress).readBytes(nameOf(path), seek) == expected, path);
    };
    return task;
}

Task loadLines(const std::string& path, const FileContent& content) {
    Task task;
    task.path = path;
    task.statistics.bytesSent = sumWithEnds(content.records);
    task.converse = [=, expected = content.records](OrganiserLink& link) {
        Progress progress;
        requireSame(FileClient(link, progress).readLines(nameOf(path)) == expected, path);
    };
    return task;
}

}  // namespace

Task makeFileSaving(Action action, TaskContext& context) {
    switch (action) {
        case Action::SaveProcedure:
            return saveProcedure(context);
        case Action::SaveBlock:
            return saveBlock(context);
        case Action::WriteBytes:
            return writeBytes(context);
        case Action::OverwriteBytes:
            return overwriteBytes(context);
        case Action::WriteLines:
        case Action::AppendLines:
            return writeLines(context, action == Action::AppendLines);
        case Action::AppendRecords:
            return appendRecords(context);
        default:
            return saveRecords(context);
    }
}

Task makeFileLoading(TaskContext& context) {
    Lines paths;
    for (const auto& [path, file] : context.files.all()) {
        if (file.now.form != Form::Other) {
            paths.push_back(path);
        }
    }
    if (paths.empty()) {
        return saveRecords(context);
    }
    const std::string path = context.random.pick(paths);
    const FileContent content = context.files.find(path)->now;
    switch (content.form) {
        case Form::Procedure:
            return loadProcedure(path, content);
        case Form::Block:
            return loadBlock(path, content);
        case Form::Bytes:
            return loadBytes(path, content, context.random);
        case Form::Lines:
            return loadLines(path, content);
        case Form::Sheet:
            return makeSheetLoading(path, context);
        default:
            return loadRecords(path, content, context);
    }
}

void putFile(TaskContext& context) {
    Random& random = context.random;
    const std::string bytes = random.bytes(random.below(600));
    switch (random.below(4)) {
        case 0:
            context.files.put(pathOf("X" + number(random)), {bytes, Form::Bytes, 0, false, {}});
            break;
        case 1: {
            const int type = static_cast<int>(random.between(kFirstBlockType, kLastBlockType));
            const bool whole = random.chance(3, 4);
            context.files.put(pathOf("B" + number(random) + blockExtension(type)),
                              blockContent(bytes, type, messagesFor(bytes.size()), whole));
            break;
        }
        case 2:
            context.files.put(pathOf("P" + number(random) + ".OPL"),
                              procedureContent({"A:", "\7PRINT 1", ""}, 1));
            break;
        default:
            context.files.put(pathOf("T" + number(random) + ".LST"), linesContent({"first", "second"}, 2));
    }
}

}  // namespace velmora::simulation
