// PLAN: spreadsheets between the Organiser and worksheet files, one cell a message.
//
//   header        format, + 128 when the Organiser sends; file name      -> 0
//   PC sends      any message                                            -> the next cell, at last 254 0
//   Organiser     columns, rows                                          -> 0
//   sends         cell                                                   -> 0
//                 254                                                    -> 254 0
//   cell          column, row (both from 0), type, text
//
// The Organiser may announce up to 255 columns and rows and has them saved; what goes back ends at Z99.
//
// Types: 34 a label, 135 a number or a formula with its "=".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "link/frame_sender.h"
#include "link/server_window.h"
#include "services/file_name_mapper.h"
#include "services/service_handler.h"
#include "spreadsheet/spreadsheet.h"
#include "transfers/earlier_copies.h"
#include "transfers/transfer_log.h"
#include "transfers/transfers.h"

namespace velmora {

/// The handler. Holds references only; all of them must outlive it.
///
/// What a format does not keep of a sheet, and why one could not be read or written, is said to the trace and
/// the log, cell by cell.
///
/// A file that cannot be read ends the service with a DISCON whose data is the run-time error number in
/// decimal digits, one that cannot be written with one byte: the code of map_Error when the path is checked
/// before the transfer, the error number itself when the sheet is written. A message that fits no phase, or a
/// cell outside the announced size, is a RunTimeError for the dispatcher.
class PlanService : public ServiceHandler {
  public:
    PlanService(FrameSender& sender, ServerWindow& window, const FileNameMapper& mapper,
                Spreadsheet& spreadsheet, EarlierCopies& copies, TransferLog& log, Transfers& transfers);

    void handle(std::int32_t& code, std::string& payload) override;

  private:
    enum class Phase { Idle, WaitHeader, HeaderDone, Receiving };

    void reset();
    /// Tells of a sheet that did not come to its end.
    void tellOfBrokenSave();
    void handleData(std::int32_t& code, std::string_view message);

    void handleHeader(std::int32_t& code, std::string_view message);
    void beginSending(std::int32_t& code);
    void beginReceiving(std::int32_t& code);

    void sendNextCell();
    /// Moves to the next cell that is not empty; false behind the last one.
    bool advance();
    bool nextPosition();

    void handleSize(std::string_view message);
    void handleCell(std::int32_t& code, std::string_view message);
    void storeCell(const CellPosition& at, int type, std::string_view text);
    void finishReceiving(std::int32_t& code);
    /// Keeps the file that is there and puts the sheet in its place; 0 or the number of the run-time error.
    int writeSheet();

    /// Tells trace and log a line about the file, behind its name.
    void report(const std::string& line);
    /// Passes the remarks of a conversion on.
    CellRemark remarks();
    /// Tells of the run-time error with which a transfer ends; `told` is the code that the Organiser gets.
    void reportFailure(const char* what, int error, int told);

    void reply(std::string_view data) { sender_.PLP_Send(FrameType::Data, data); }
    void refuse(std::int32_t& code, std::string_view reason);

    FrameSender& sender_;
    ServerWindow& window_;
    const FileNameMapper& mapper_;
    Spreadsheet& spreadsheet_;
    EarlierCopies& copies_;
    TransferLog& log_;
    Transfers& transfers_;

    Phase phase_ = Phase::Idle;
    bool pcSends_ = false;
    int format_ = 0;
    std::string path_;
    SheetGrid sheet_;
    CellPosition current_;
    bool sheetDone_ = false;     // the end of the sheet has been sent
    bool unsaved_ = false;       // the Organiser sends, and the file has not been written since
    std::uint64_t arrived_ = 0;  // bytes of the sheet that the Organiser sends
};

}  // namespace velmora
