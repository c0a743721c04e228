#include <io.h>
#include <windows.h>

#include "apps/non_blocking_output.h"

namespace velmora {

const char* const kStreamLineEnd = "\r\n";

LineOutput::Write nonBlockingOutput(std::FILE* stream) {
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    if (GetFileType(handle) == FILE_TYPE_PIPE) {
        DWORD mode = PIPE_READMODE_BYTE | PIPE_NOWAIT;
        SetNamedPipeHandleState(handle, &mode, nullptr, nullptr);
    }
    return [handle](std::string_view bytes) {
        DWORD count = 0;
        const BOOL written =
            WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
        const bool full = written == FALSE && GetLastError() == ERROR_DISK_FULL;
        return written != FALSE || full ? std::size_t{count} : bytes.size();
    };
}

}  // namespace velmora
