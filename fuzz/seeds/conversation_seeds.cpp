#include <algorithm>
#include <vector>

#include "dispatcher_steps.h"
#include "organiser_steps.h"
#include "seeds.h"

namespace velmora::fuzz {
namespace {

using namespace std::string_literals;

std::string byte(int value) {
    return {static_cast<char>(value)};
}
std::string step(Step kind) {
    return byte(kind);
}
std::string service(const std::string& name) {
    const auto found = std::find(usualServices().begin(), usualServices().end(), name);
    return step(kOpenService) + byte(static_cast<int>(found - usualServices().begin()));
}
std::string named(const std::string& name) {
    const auto found = std::find(usualNames().begin(), usualNames().end(), name);
    return found == usualNames().end() ? kOtherName + counted(name)
                                       : byte(static_cast<int>(found - usualNames().begin()));
}
std::string open(int mode, int kind, const std::string& name) {
    return step(kOpenFile) + byte(mode) + byte(kind) + named(name);
}
std::string write(const std::string& record) {
    return step(kWrite) + counted(record);
}
std::string read(int maximum = 250) {
    return step(kRead) + byte(maximum);
}
std::string cell(int column, int row, int type, const std::string& text) {
    return step(kCell) + byte(column) + byte(row) + byte(type) + counted(text);
}

/// Files of every type in every mode, with each form of data files, loaded to the end.
void giveTransfers(const TakeSeed& take) {
    const std::string record = "a\tx,y\tv;w\0z"s;
    for (int form = 0; form < 4; ++form) {
        for (const int type : {0, 1, 3, 16}) {
            for (int mode = 1; mode <= 4; ++mode) {
                take("dispatcher", byte(form) + service("FTRAN") + open(mode, type, mode == 3 ? "NEW" : "A") +
                                       write(record) + write("") + step(kCloseFile) + open(0, type, "A") +
                                       read() + read() + read());
            }
        }
        for (const char* name : {"A.ODB", "B.CSV", "C.OPL", "D.OB3", "NEW"}) {
            take("dispatcher",
                 byte(form) + service("FTRAN") + open(0, name == "D.OB3"s ? 3 : 0, name) + read(5) + read());
        }
        take("dispatcher", byte(form) + service("FTRAN") + open(0, 1, "C.OPL") + read() +
                               open(0, 3, "D.OB3") + read() + read());
    }
}

/// Bytes, lines and listings.
void giveFiles(const TakeSeed& take) {
    for (int kind = 0; kind < 4; ++kind) {
        for (const char* name : {"A.ODB", "*", "SUB\\NEW", "*.ODB"}) {
            take("dispatcher", byte(0) + service("FILE") + open(0, kind, name) + read() + step(kSeek) +
                                   byte(2) + counted("-3") + read() + step(kCloseFile) +
                                   open(1, kind, "NEW") + write("line") + step(kSeek) + byte(0) +
                                   counted("2") + write("x") + step(kCloseFile));
        }
    }
}

void giveSheets(const TakeSeed& take) {
    for (int format = 1; format <= 6; ++format) {
        for (int dialect = 0; dialect < 2; ++dialect) {
            const std::string begin = byte(8 * dialect) + service("PLAN") + step(kSheet);
            take("dispatcher", begin + byte(128 + format) + named("NEW.WKS") + step(kSheetSize) + byte(3) +
                                   byte(2) + cell(0, 0, 34, "Sum") + cell(1, 0, 135, "12") +
                                   cell(2, 1, 135, "=B1*SUM(A1:B2)") + cell(0, 1, 135, "2.5E0") +
                                   step(kEndOfSheet));
            for (const char* name : {"F.WKS", "F.DIF", "F.TXT", "B.CSV"}) {
                take("dispatcher", begin + byte(format) + named(name) + step(kMessage) + counted("") +
                                       step(kMessage) + counted("") + step(kMessage) + counted("") +
                                       step(kMessage) + counted(""));
            }
        }
    }
}

void giveOtherServices(const TakeSeed& take) {
    for (const std::string& name : usualServices()) {
        take("dispatcher", byte(0) + service(name) + step(kMessage) + counted("E") + step(kMessage) +
                               counted("\x20\0"s) + step(kMessage) + counted("") + step(kMessage) +
                               counted("") + step(kLinkDown));
    }
    // Broken off, stopped by the user, and with a disk that fails.
    const std::string save = service("FTRAN") + open(1, 0, "A");
    take("dispatcher", byte(0) + save + write("x") + step(kLinkDown));
    take("dispatcher", byte(0) + save + step(kStopInside) + write("x"));
    take("dispatcher", byte(0) + save + step(kDeleteFile) + named("A.ODB") + write("x") + step(kCloseFile));
    for (int call = 0; call <= 10; ++call) {
        const std::string failing = step(kFailOperation) + byte(call) + byte(0) + byte(0);
        take("dispatcher", byte(0) + failing + save + write("x") + step(kCloseFile));
        take("dispatcher", byte(0) + service("PLAN") + failing + step(kSheet) + byte(130) + named("F.WKS") +
                               step(kSheetSize) + byte(1) + byte(1) + cell(0, 0, 135, "1") +
                               step(kEndOfSheet));
    }
}

/// What a good server answers to each command; to the others it makes no sense.
void giveAnswers(const TakeSeed& take) {
    const std::string link = byte(kAcknowledge);
    const auto answer = [](const std::string& text) { return byte(kAnswer) + counted(text); };
    const auto refuse = [](int code) { return byte(kRefuse) + byte(code); };
    const std::string zero(1, '\0');
    const std::vector<std::string> scripts = {
        link + answer("") + answer("") + answer("abc") + answer("d") + refuse(238),
        link + answer("") + answer("") + answer("") + answer("") + answer(""),
        link + answer("") + answer("\0\0\3\0"s) + answer("abc") + answer(""),
        link + answer("2010-03-28 14:05:09"),
        link + answer("\3WKS\0\2\3DIF\0\3\0"s),
        link + answer("") + answer(zero) + answer("\0\0\x22Sum"s) + answer("\1\0\x87" + "2.5E0"s) +
            answer("\xFE\0"s),
        link + answer("") + answer(zero) + answer(zero) + answer(zero) + answer(zero) + answer(zero) +
            answer("\xFE\0"s),
        link + answer("") + answer("\0\4"s) + answer("\x20\0abcd"s) + refuse(0),
        link + refuse(189),
        link + answer("") + refuse(186),
        byte(kSilence) + link + byte(kTwice) + counted("") + byte(kLater) + byte(9) + counted(""),
    };
    constexpr int kMoreThanCommands = 32;
    for (int command = 0; command < kMoreThanCommands; ++command) {
        for (const std::string& script : scripts) {
            take("organiser", byte(command) + script);
        }
    }
}

}  // namespace

void giveConversationSeeds(const TakeSeed& take) {
    giveTransfers(take);
    giveFiles(take);
    giveSheets(take);
    giveOtherServices(take);
    giveAnswers(take);
}

}  // namespace velmora::fuzz
