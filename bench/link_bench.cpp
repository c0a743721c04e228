// Speed of the link: the check alone, and cutting, unstuffing and checking what arrives.
#include <benchmark/benchmark.h>

#include <string>

#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frames.h"

namespace velmora {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

const Crc& crc() {
    static const Crc loaded = [] {
        Crc made;
        made.load_CRCtable();
        return made;
    }();
    return loaded;
}

/// A payload of the length; one byte in `dleEvery` is a DLE (0: none).
std::string payload(std::size_t length, std::size_t dleEvery) {
    std::string bytes(length, '\0');
    unsigned value = 12345;
    for (std::size_t i = 0; i < length; ++i) {
        value = value * 1103515245 + 12345;
        bytes[i] = static_cast<char>(value >> 16);
        if (bytes[i] == kDle) {
            bytes[i] = 'x';
        }
        if (dleEvery != 0 && i % dleEvery == 0) {
            bytes[i] = kDle;
        }
    }
    return bytes;
}

/// Feeds a stream in portions through a cutter and the check; the number of good frames.
std::size_t cutAll(FrameCutter& cutter, std::string_view stream, std::size_t portion) {
    std::size_t good = 0;
    for (std::size_t at = 0; at < stream.size(); at += portion) {
        cutter.append(stream.substr(at, portion));
        while (const auto cut = cutter.next()) {
            good += parseFrame(crc(), *cut).has_value() ? 1 : 0;
        }
    }
    return good;
}

void check(benchmark::State& state) {
    const std::string body = payload(static_cast<std::size_t>(state.range(0)), 0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(crc().check(body));
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(check)->Arg(16)->Arg(240)->Arg(65'536);

/// Arguments: length of a payload, one DLE in how many bytes, bytes a portion. Bytes are those of payload.
void frames(benchmark::State& state) {
    const std::string data =
        payload(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)));
    const std::string frame = buildFrame(crc(), FrameType::Data, 1, data);
    std::string stream;
    std::size_t count = 0;
    while (stream.size() < kMegabyte) {
        stream += frame;
        ++count;
    }
    FrameCutter cutter;
    for (auto _ : state) {
        if (cutAll(cutter, stream, static_cast<std::size_t>(state.range(2))) != count) {
            state.SkipWithError("a frame was lost");
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(count * data.size()));
}
BENCHMARK(frames)
    ->ArgNames({"payload", "dle_every", "portion"})
    ->ArgsProduct({{240, 16'384}, {0, 256, 4}, {1024}})
    ->Args({240, 256, 1})
    ->Args({16'384, 256, 1})
    ->Args({240, 256, 65'536});

/// A megabyte in which no frame ends. The first argument picks its bytes, the second is the portion.
void noFrames(benchmark::State& state) {
    std::string stream;
    switch (state.range(0)) {
        case 0:
            stream = payload(kMegabyte, 256);
            state.SetLabel("garbage");
            break;
        case 1:
            stream = std::string("\x16\x10\x02") + payload(kMegabyte, 0);
            state.SetLabel("header without an end");
            break;
        case 2:
            while (stream.size() < kMegabyte) {
                stream += "\x16\x10\x02";
            }
            state.SetLabel("headers only");
            break;
        case 3:
            stream.assign(kMegabyte, kDle);
            stream.insert(0, "\x16\x10\x02");
            state.SetLabel("header and DLEs");
            break;
        default:
            stream.assign(kMegabyte, kSyn);
            state.SetLabel("SYNs");
            break;
    }
    for (auto _ : state) {
        FrameCutter cutter;
        benchmark::DoNotOptimize(cutAll(cutter, stream, static_cast<std::size_t>(state.range(1))));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(stream.size()));
}
BENCHMARK(noFrames)->ArgNames({"kind", "portion"})->ArgsProduct({{0, 1, 2, 3, 4}, {1, 1024}});

}  // namespace
}  // namespace velmora
