// Everything that is no file of the Organiser's: listings, boot code, the clock, menus, requests to stop.
#include <algorithm>

#include "organiser/boot_client.h"
#include "organiser/conversation.h"
#include "organiser/file_client.h"
#include "organiser/ftran_client.h"
#include "organiser/sheet_client.h"
#include "services/time_services.h"
#include "task.h"
#include "violation.h"

namespace velmora::simulation {
namespace {

std::string inCapitals(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return name;
}

Task listNames(TaskContext& context) {
    static const std::vector<std::string> kEndings = {"", ".CSV", ".OPL", ".LST", ".WKS"};
    const std::string ending = context.random.pick(kEndings);
    const bool longNames = context.random.chance(1, 2);
    std::vector<std::string> expected;
    for (const std::string& path : context.world.disk().paths(kDownloadFolder)) {
        const std::string name = path.substr(path.rfind('/') + 1);
        // Of a crowded folder only what this Organiser knows is asked for.
        if (inCapitals(name).ends_with(ending.empty() ? ".DAT" : ending)) {
            expected.push_back(longNames ? name : inCapitals(name));
        }
    }
    std::sort(expected.begin(), expected.end());
    Task task;
    for (const std::string& name : expected) {
        task.statistics.bytesSent += name.size() + 2;
    }
    const std::string pattern = "*" + (ending.empty() ? ".DAT" : ending);
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        std::vector<std::string> names = FileClient(link, progress).list(pattern, longNames);
        std::sort(names.begin(), names.end());
        require(names == expected, "A listing has other names than the folder.");
    };
    return task;
}

std::string twoBytes(std::size_t number) {
    return {static_cast<char>(number / 256 % 256), static_cast<char>(number % 256)};
}
std::size_t byteAt(const std::string& bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

Task fetchBoot(TaskContext& context) {
    Random& random = context.random;
    std::string code = random.bytes(random.between(2, 900));
    for (char& byte : code) {
        byte = static_cast<char>(byte & 0x3F);  // so that no relocated word overflows
    }
    std::size_t sum = 0;
    for (std::size_t i = 0; i < code.size(); ++i) {
        sum += byteAt(code, i);
    }
    const std::size_t place = random.below(code.size() - 1);
    const bool damaged = random.chance(1, 8);
    const std::string path = pathOf("BOOT.BIN");
    context.files.put(path, {twoBytes(code.size()) + code + twoBytes(sum + (damaged ? 1 : 0)) + twoBytes(1) +
                                 twoBytes(place) + twoBytes(place),
                             Form::Other,
                             0,
                             false,
                             {}});
    const auto address = static_cast<std::uint16_t>(random.below(0x8000));
    const std::size_t word = byteAt(code, place) * 256 + byteAt(code, place + 1) + address;
    code.replace(place, 2, twoBytes(word));
    Task task;
    task.path = path;
    task.statistics = {4, code.size(), 0, 0};
    if (damaged) {
        task.refusal = codePayload(kCodeNotPossible);
    }
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        require(fetchBootCode(link, progress, "BOOT", address).code == code, "Boot code came as other code.");
    };
    return task;
}

Task askTime(TaskContext& context) {
    static const std::vector<std::string> kServices = {"TIME", "GMT", "TIMEINFO"};
    const std::string service = context.random.pick(kServices);
    Task task;
    task.oneAnswer = true;
    task.statistics.bytesSent = service == "TIME" ? 19 : service == "GMT" ? 21 : 27;
    VirtualTime& time = context.world.time();
    const Time offset = service == "GMT" ? Time::zero() : Time(VirtualTime::kOffset);
    const std::string rest = service == "TIME" ? "" : service == "GMT" ? "  " : " +0100  ";
    task.converse = [=, &time, begin = time.now()](OrganiserLink& link) {
        const std::string told = openService(link, service);
        bool right = false;
        for (Time instant = begin; !right && instant < time.now() + std::chrono::seconds(1);
             instant += std::chrono::seconds(1)) {
            right = told == timeStamp(VirtualTime::dateAt(instant + offset)) + rest;
        }
        require(right, "The clock was told wrong: " + told + ".");
    };
    return task;
}

Task askFormats() {
    Task task;
    task.converse = [](OrganiserLink& link) {
        Progress progress;
        const std::vector<OfferedFormat> expected = {
            {"WKS", 2}, {"DIF", 3}, {"CSV", 4}, {"TXT", 5}, {"TXT(tab)", 6}};
        require(SheetClient(link, progress).formats() == expected, "The menu of formats is another.");
    };
    return task;
}

Task loadMissing(TaskContext& context) {
    Task task;
    const bool sheet = context.random.chance(1, 3);
    task.refusal = sheet ? "53" : codePayload(kCodeFileNotFound);
    task.converse = [=](OrganiserLink& link) {
        Progress progress;
        if (sheet) {
            SheetClient(link, progress).load("MISSING.WKS", 2);
        } else {
            FtranClient(link, progress).loadBlock("MISSING", 2);
        }
    };
    return task;
}

Task createExisting(TaskContext& context) {
    Task task;
    task.path = pathOf("HERE.DAT");
    context.files.put(task.path, {"here\r\n", Form::Records, 0, true, {"here"}});
    task.refusal = codePayload(kCodeFileExists);
    task.converse = [](OrganiserLink& link) {
        Progress progress;
        FtranClient(link, progress).saveRecords("HERE.DAT", FileMode::CreateNew, {});
    };
    return task;
}

Task askUnknown() {
    Task task;
    task.refusal = codePayload(kCodeInvalidRequest);
    task.converse = [](OrganiserLink& link) { openService(link, "NOSUCH"); };
    return task;
}

/// EXIT and SHUTDOWN take effect when the link ends.
Task askToStop(const std::string& service, bool obeyed, World& world) {
    Task task;
    task.converse = [=, &world](OrganiserLink& link) {
        require(openService(link, service).empty(), "A request to stop was answered with something.");
        link.end();
        world.run(std::chrono::seconds(2));
        require(world.faults().any() || world.serverRuns() != obeyed,
                "A request to stop was not treated as the settings say.");
    };
    return task;
}

}  // namespace

Task makeQuestion(Action action, TaskContext& context) {
    switch (action) {
        case Action::ListNames:
            return listNames(context);
        case Action::FetchBoot:
            return fetchBoot(context);
        case Action::AskFormats:
            return askFormats();
        case Action::LoadMissing:
            return loadMissing(context);
        case Action::CreateExisting:
            return createExisting(context);
        case Action::AskUnknown:
            return askUnknown();
        case Action::Exit:
            return askToStop("EXIT", context.settings.stopsOnExit, context.world);
        case Action::Shutdown:
            return askToStop("SHUTDOWN", context.settings.endsOnShutdown, context.world);
        default:
            return askTime(context);
    }
}

Task makeTask(Action action, TaskContext context) {
    if (action == Action::SaveSheet) {
        return makeSheetSaving(context);
    }
    if (action == Action::Load) {
        return makeFileLoading(context);
    }
    return action < Action::SaveSheet ? makeFileSaving(action, context) : makeQuestion(action, context);
}

void letOtherProgramWrite(TaskContext context) {
    context.random.chance(1, 3) ? putSheet(context) : putFile(context);
}

}  // namespace velmora::simulation
