#include "files/show_command.h"

#include <array>

#include "arguments/usage_error.h"
#include "files/boot_command.h"
#include "files/data_command.h"
#include "files/sheet_command.h"
#include "files/show_texts.h"
#include "services/block_file.h"
#include "spreadsheet/dif_reader.h"
#include "spreadsheet/wks_reader.h"

namespace velmora {
namespace {

struct KindName {
    const char* name;
    FileKind kind;
};

constexpr auto kKinds = std::to_array<KindName>({{"wks", FileKind::Worksheet},
                                                 {"dif", FileKind::Dif},
                                                 {"data", FileKind::DataFile},
                                                 {"csv", FileKind::CsvFile},
                                                 {"block", FileKind::BlockFile},
                                                 {"opl", FileKind::Procedure},
                                                 {"boot", FileKind::BootFile}});

bool beginsWith(std::string_view bytes, std::string_view start) {
    return bytes.substr(0, start.size()) == start;
}

/// The separator that the lines of a file show first; a comma when they show none.
char shownSeparator(std::string_view bytes) {
    const std::size_t found = bytes.find_first_of(";,");
    return found == std::string_view::npos ? ',' : bytes[found];
}

bool showSheet(FileKind kind, const std::string& bytes, const ShowRequest& request,
               const FileAccess& access) {
    const Tell tell = access.tellOfInput(request.file);
    LeftOut leftOut;
    BytesFile file(kind == FileKind::Dif ? textFromBytes(bytes, request.encoding, tell) : bytes);
    printSheet(kind == FileKind::Dif ? readDif(file, &leftOut) : readWks(file, request.dialect, &leftOut),
               access.out());
    tellLeftOut(leftOut, tell);
    return true;
}

bool showText(FileKind kind, const std::string& bytes, const ShowRequest& request, const FileAccess& access) {
    const Tell tell = access.tellOfInput(request.file);
    const std::string text = textFromBytes(bytes, request.encoding, tell);
    if (kind == FileKind::Procedure) {
        printProcedure(text, access.out());
    } else {
        const char separator = kind == FileKind::CsvFile ? shownSeparator(text) : kTabs;
        printRecords(readRecords(text, separator, tell), access.out());
    }
    return true;
}

bool show(FileKind kind, const std::string& bytes, const ShowRequest& request, const FileAccess& access) {
    switch (kind) {
        case FileKind::Worksheet:
        case FileKind::Dif:
            return showSheet(kind, bytes, request, access);
        case FileKind::DataFile:
        case FileKind::CsvFile:
        case FileKind::Procedure:
            return showText(kind, bytes, request, access);
        case FileKind::BlockFile:
            return printBlockFile(bytes, access.out());
        case FileKind::BootFile:
            return describeBootFile(bytes, access.out());
        case FileKind::Unknown:
            break;
    }
    throw UsageError("the file is none that is known; name its kind with --as");
}

}  // namespace

FileKind kindNamed(const std::string& name) {
    for (const KindName& entry : kKinds) {
        if (name == entry.name) {
            return entry.kind;
        }
    }
    return FileKind::Unknown;
}

FileKind recogniseFile(std::string_view bytes, const std::string& extension) {
    using namespace std::string_view_literals;
    if (extension == "opl") {
        return FileKind::Procedure;
    }
    if (extension == "bin") {
        return FileKind::BootFile;
    }
    const bool isBlockName = extension.size() > 2 && beginsWith(extension, "ob") &&
                             extension.find_first_not_of("0123456789abcdef", 2) == std::string::npos;
    if (beginsWith(bytes, "ORG") && (isBlockName || extension.empty())) {
        return FileKind::BlockFile;
    }
    if (beginsWith(bytes, "\0\0\2\0"sv)) {
        return FileKind::Worksheet;
    }
    if (beginsWith(bytes, "TABLE\r") || beginsWith(bytes, "TABLE\n")) {
        return FileKind::Dif;
    }
    constexpr auto kExtensions = std::to_array<KindName>({{"wks", FileKind::Worksheet},
                                                          {"wk1", FileKind::Worksheet},
                                                          {"dif", FileKind::Dif},
                                                          {"odb", FileKind::DataFile},
                                                          {"txt", FileKind::DataFile},
                                                          {"csv", FileKind::CsvFile}});
    for (const KindName& entry : kExtensions) {
        if (extension == entry.name) {
            return entry.kind;
        }
    }
    return isBlockName ? FileKind::BlockFile : FileKind::Unknown;
}

bool runShowCommand(const ShowRequest& request, const FileAccess& access) {
    const std::string bytes = access.readInput(request.file);
    const FileKind kind =
        request.as.value_or(recogniseFile(withoutMark(bytes), lowerExtension(access.rules(), request.file)));
    return show(kind, bytes, request, access);
}

}  // namespace velmora
