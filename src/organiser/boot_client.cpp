#include "organiser/boot_client.h"

#include "base/byte_text.h"
#include "organiser/conversation.h"
#include "services/service_codes.h"

namespace velmora {
namespace {

std::size_t word(std::string_view bytes) {
    return static_cast<unsigned char>(bytes[0]) * 256U + static_cast<unsigned char>(bytes[1]);
}

/// The server drops the link instead of a further chunk. When that last frame is lost the code is whole all
/// the same.
void expectEnd(OrganiserLink& link, std::string_view request) {
    try {
        if (amidTransfer([&] { return requestUntil(link, request, kCodeNone); })) {
            throw LinkFailure::unexpected("The server sent more code than it announced.");
        }
    } catch (const LinkFailure& failure) {
        if (!failure.worthAnotherTry()) {
            throw;
        }
    }
}

}  // namespace

BootCode fetchBootCode(OrganiserLink& link, Progress& progress, std::string_view name,
                       std::uint16_t address) {
    constexpr std::size_t kWord = 2;
    openService(link, "BOOT");
    const std::string announced = link.request(name);
    if (announced.size() != kWord) {
        throw LinkFailure::unexpected("The server did not tell the length of the code.");
    }
    const std::size_t length = word(announced);
    // Only the first request's content counts; the later ones just ask for more.
    const std::string request{static_cast<char>(address / 256), static_cast<char>(address % 256)};
    const ProgressScope scope(progress, "Loading " + toUtf8(name), length, "bytes");
    BootCode result;
    amidTransfer([&] {
        while (result.code.size() < length) {
            const std::string chunk = link.request(request);
            if (chunk.size() <= kWord || chunk.size() - kWord > length - result.code.size() ||
                word(chunk) != (address + result.code.size()) % 65'536) {
                throw LinkFailure::unexpected(
                    "The server sent a piece of code that does not follow the last.");
            }
            result.code.append(chunk, kWord);
            result.chunks.push_back(chunk.size() - kWord);
            progress.advance(result.code.size());
        }
    });
    expectEnd(link, request);
    return result;
}

}  // namespace velmora
