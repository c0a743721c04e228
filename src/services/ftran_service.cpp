#include "services/ftran_service.h"

#include <array>
#include <cstddef>

#include "base/byte_text.h"
#include "services/block_file.h"
#include "services/name_extension.h"
#include "services/named_transfer.h"
#include "services/procedure_image.h"

namespace velmora {
namespace {

constexpr int kTypeData = 0;
constexpr int kTypeProcedure = 1;
constexpr int kTypeLast = 16;

struct DataFileForm {
    const char* extension;
    char separator;
};

/// By DataFileType; a value outside the table stands for the first.
constexpr std::array<DataFileForm, 4> kDataFileForms = {
    {{".odb", '\0'}, {".txt", '\0'}, {".csv", ','}, {".csv", ';'}}};

DataFileForm dataFileForm(std::int32_t dataFileType) {
    const auto index = static_cast<std::size_t>(dataFileType);
    return kDataFileForms[index < kDataFileForms.size() ? index : 0];
}

TransferKind kindOfType(int type) {
    if (type == kTypeData) {
        return TransferKind::Data;
    }
    return type == kTypeProcedure ? TransferKind::Procedure : TransferKind::Block;
}

std::string blockExtension(int type) {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string extension = ".ob";
    if (type >= 16) {
        extension += kDigits[type / 16];
    }
    return extension + kDigits[type % 16];
}

}  // namespace

void FtranService::open(std::string_view argument) {
    closeFile();
    dataWritten_ = false;
    file().setFieldSeparator('\0');
    if (argument.size() < 2 || byteAt(argument, 0) > kModeAppend || byteAt(argument, 1) > kTypeLast) {
        refuse(kCodeInvalidRequest);
        return;
    }
    openMode_ = byteAt(argument, 0);
    fileType_ = byteAt(argument, 1);
    const bool mustExist = openMode_ == kModeRead || openMode_ == kModeAppend;
    const std::string name = withExtension(argument.substr(2));
    const std::string path = names_.map_FileName(name, mustExist, false);
    announce(namedTransfer(names_, name, path,
                           openMode_ == kModeRead ? TransferDirection::Load : TransferDirection::Save,
                           kindOfType(fileType_)));
    const int kind = fileType_ == kTypeData ? static_cast<int>(kKindText) : -fileType_;
    const int status = file().open_File(path, openMode_, kind);
    if (status > 0) {
        refuse(status);
        return;
    }
    answerOpened(path);
}

std::string FtranService::withExtension(std::string_view name) {
    std::string whole = trimBlanks(name);
    // Without a last component there is nothing to extend; the mapping refuses such a name.
    if (whole.empty() || whole.back() == '/' || whole.back() == '\\' || hasExtension(whole)) {
        return whole;
    }
    if (fileType_ == kTypeData) {
        const DataFileForm form = dataFileForm(settings_.DataFileType);
        file().setFieldSeparator(form.separator);
        return whole + form.extension;
    }
    return whole + (fileType_ == kTypeProcedure ? ".opl" : blockExtension(fileType_));
}

void FtranService::answerOpened(const std::string& path) {
    if (file().status() == kOpenForWriting) {
        replyOpened({}, Downld, path);
        return;
    }
    std::string header;
    if (fileType_ == kTypeProcedure) {
        header = file().readImageHeader(kProcedureHeaderLength - kImageMark);
    } else if (fileType_ != kTypeData) {
        header = file().readImageHeader(kImageHeaderLength - kImageMark);
        if (!blockHeaderFits(header, fileType_, file().size())) {
            refuse(kCodeInvalidRequest);
            return;
        }
    }
    replyOpened(header, Upload, path);
}

void FtranService::close() {
    if (!saveAndReply()) {
        return;
    }
    const bool nothingAppended = openMode_ == kModeAppend && !dataWritten_;
    if (file().isOpen() && !nothingAppended) {
        window().SetStats(file().status() == kOpenForWriting ? StatsFilesReceived : StatsFilesSent, 1);
    }
    window().setCurrentFile({});
}

void FtranService::write(std::string_view argument) {
    const bool written =
        fileType_ == kTypeProcedure ? writeAndReply(procedureText(argument)) : writeAndReply(argument);
    dataWritten_ = dataWritten_ || written;
}

void FtranService::read(std::string_view argument) {
    const ServiceCode refusal = readAndReply(argument);
    if (refusal == kCodeNone) {
        dataWritten_ = true;
    } else if (refusal == kCodeEndOfFile) {
        window().SetStats(StatsFilesSent, 1);
    }
}

}  // namespace velmora
