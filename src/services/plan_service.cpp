#include "services/plan_service.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "link/server_state.h"
#include "services/map_error.h"
#include "services/name_extension.h"
#include "services/named_transfer.h"
#include "services/plan_cells.h"
#include "spreadsheet/sheet_format.h"

namespace velmora {
namespace {

constexpr int kOrganiserSends = 128;
constexpr char kEndOfSheet = static_cast<char>(254);
constexpr std::size_t kCellHeaderLength = 1 + 1 + 1;  // column, row, type

int byteAt(std::string_view message, std::size_t index) {
    return static_cast<unsigned char>(message[index]);
}

const std::string kAccepted(1, '\0');
const std::string kEndReply = {kEndOfSheet, '\0'};

[[noreturn]] void failMessage(const char* what) {
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, what);
}

}  // namespace

PlanService::PlanService(FrameSender& sender, ServerWindow& window, const FileNameMapper& mapper,
                         Spreadsheet& spreadsheet, EarlierCopies& copies, TransferLog& log,
                         Transfers& transfers)
    : sender_(sender),
      window_(window),
      mapper_(mapper),
      spreadsheet_(spreadsheet),
      copies_(copies),
      log_(log),
      transfers_(transfers) {}

void PlanService::handle(std::int32_t& code, std::string& payload) {
    switch (code) {
        case kServiceOpened:
            reset();
            phase_ = Phase::WaitHeader;
            reply({});
            break;
        case PLP_EV_DATA:
            handleData(code, payload);
            break;
        default:
            break;  // the Organiser asks for each cell, so an acknowledgement brings nothing
    }
    if (code == PLP_EV_RESET) {
        tellOfBrokenSave();
        transfers_.leave();
        reset();
    }
}

void PlanService::reset() {
    phase_ = Phase::Idle;
    sheet_ = SheetGrid();
    sheetDone_ = false;
    unsaved_ = false;
    arrived_ = 0;
}

void PlanService::tellOfBrokenSave() {
    if (unsaved_) {
        log_.saveBrokeOff({path_, arrived_, {}, false});
    }
}

void PlanService::handleData(std::int32_t& code, std::string_view message) {
    switch (phase_) {
        case Phase::Idle:
            break;
        case Phase::WaitHeader:
            handleHeader(code, message);
            break;
        case Phase::HeaderDone:
            pcSends_ ? sendNextCell() : handleSize(message);
            break;
        case Phase::Receiving:
            handleCell(code, message);
            break;
    }
}

void PlanService::refuse(std::int32_t& code, std::string_view reason) {
    code = PLP_EV_RESET;
    sender_.PLP_Send(FrameType::Discon, reason);
}

void PlanService::report(const std::string& line) {
    log_.note(mapper_.displayName(path_) + line);
}

CellRemark PlanService::remarks() {
    return [this](const std::string& line) { report(", " + line); };
}

void PlanService::reportFailure(const char* what, int error, int told) {
    const std::string reason = errorText(static_cast<ErrorNumber>(error));
    report(std::string(" ") + what + ": " + reason);
    transfers_.refuse(told, reason);
}

void PlanService::handleHeader(std::int32_t& code, std::string_view message) {
    if (message.empty()) {
        failMessage("the header of a spreadsheet is empty");
    }
    const int first = byteAt(message, 0);
    pcSends_ = first < kOrganiserSends;
    format_ = first % kOrganiserSends;
    std::string name(message.substr(1));
    if (!hasExtension(name)) {
        name += "." + FormatName(format_, false);
    }
    path_ = mapper_.map_FileName(name, pcSends_, false);
    transfers_.ask(namedTransfer(mapper_, name, path_,
                                 pcSends_ ? TransferDirection::Load : TransferDirection::Save,
                                 TransferKind::Sheet));
    pcSends_ ? beginSending(code) : beginReceiving(code);
}

void PlanService::beginSending(std::int32_t& code) {
    const int error = spreadsheet_.ImportSheet(sheet_, path_, format_, remarks());
    if (error != 0) {
        reportFailure("was not read", error, error);
        refuse(code, std::to_string(error));
        return;
    }
    current_ = {0, -1};
    phase_ = Phase::HeaderDone;
    window_.setState(Upload);
    window_.setCurrentFile(path_);
    transfers_.begin();
    reply(kAccepted);
}

void PlanService::beginReceiving(std::int32_t& code) {
    try {
        spreadsheet_.checkWritable(path_);
    } catch (const RunTimeError& error) {
        const ServiceCode told = map_Error(error);
        reportFailure("cannot be written", error.number(), told);
        refuse(code, codePayload(told));
        return;
    }
    phase_ = Phase::HeaderDone;
    unsaved_ = true;
    window_.setState(Downld);
    window_.setCurrentFile(path_);
    transfers_.begin();
    reply(kAccepted);
}

bool PlanService::nextPosition() {
    ++current_.column;
    if (current_.column >= std::min(sheet_.columns(), kSheetColumns)) {
        current_.column = 0;
        ++current_.row;
    }
    return current_.row < std::min(sheet_.rows(), kSheetRows);
}

bool PlanService::advance() {
    do {
        if (!nextPosition()) {
            return false;
        }
    } while (isEmpty(sheet_.at(current_)));
    return true;
}

void PlanService::sendNextCell() {
    if (sheetDone_ || !advance()) {
        if (!sheetDone_) {
            sheetDone_ = true;
            window_.SetStats(StatsFilesSent, 1);
            transfers_.complete();
        }
        reply(kEndReply);
        return;
    }
    const CellMessage cell = cellMessage(sheet_.at(current_));
    std::string message = {static_cast<char>(current_.column), static_cast<char>(current_.row),
                           static_cast<char>(cell.type)};
    message += cell.text;
    reply(message);
    addToStats(window_, StatsBytesSent, message.size());
    transfers_.moved(message.size());
}

void PlanService::handleSize(std::string_view message) {
    constexpr std::size_t kSizeLength = 2;
    if (message.size() != kSizeLength) {
        failMessage("a spreadsheet begins with its columns and rows");
    }
    const int columns = byteAt(message, 0);
    const int rows = byteAt(message, 1);
    sheet_ = SheetGrid(rows, columns);
    phase_ = Phase::Receiving;
    window_.SetStats(StatsBytesReceived, static_cast<std::int16_t>(kSizeLength));
    arrived_ += kSizeLength;
    transfers_.moved(kSizeLength);
    reply(kAccepted);
}

void PlanService::handleCell(std::int32_t& code, std::string_view message) {
    if (message.size() == 1 && message.front() == kEndOfSheet) {
        finishReceiving(code);
        return;
    }
    if (message.size() < kCellHeaderLength) {
        failMessage("a cell needs its column, row and type");
    }
    const CellPosition at{byteAt(message, 1), byteAt(message, 0)};
    storeCell(at, byteAt(message, 2), message.substr(kCellHeaderLength));
    addToStats(window_, StatsBytesReceived, message.size());
    unsaved_ = true;
    arrived_ += message.size();
    transfers_.moved(message.size());
    reply(kAccepted);
}

void PlanService::storeCell(const CellPosition& at, int type, std::string_view text) {
    Cell& cell = sheet_.at(at);
    if (!isEmpty(cell)) {
        return;
    }
    if (type == kCellLabel) {
        cell = Label{std::string(text)};
    } else if (text.empty() || text.front() != '=') {
        cell = numberCell(text);
    } else if (KeepsFormulas(format_)) {
        cell = Formula{std::string(text.substr(1))};
    }
}

void PlanService::finishReceiving(std::int32_t& code) {
    window_.SetStats(StatsFilesReceived, 1);
    const int error = writeSheet();
    unsaved_ = false;
    if (error != 0) {
        reportFailure("was not saved", error, error);
        refuse(code, codePayload(error));
    } else {
        reply(kEndReply);
        transfers_.complete();
    }
}

int PlanService::writeSheet() {
    try {
        transfers_.keepsCopy(copies_.keep(path_));
    } catch (const RunTimeError& error) {
        return error.number();
    }
    const CellRemark told = remarks();
    return spreadsheet_.ExportSheet(sheet_, path_, format_, [this, &told](const std::string& line) {
        told(line);
        transfers_.remark(line);
    });
}

}  // namespace velmora
