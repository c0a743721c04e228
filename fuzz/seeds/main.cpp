// Writes first inputs for the fuzzers: fuzz_seeds FOLDER puts them into FOLDER/NAME_fuzz/.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>

#include "seeds.h"

namespace {

/// Numbers the inputs of each fuzzer: "seed-1", …
class Folder {
  public:
    explicit Folder(std::filesystem::path path) : path_(std::move(path)) {}
    void write(const std::string& fuzzer, const std::string& input) {
        const std::filesystem::path folder = path_ / (fuzzer + "_fuzz");
        std::filesystem::create_directories(folder);
        std::ofstream file(folder / ("seed-" + std::to_string(++counts_[fuzzer])), std::ios::binary);
        file.exceptions(std::ios::badbit | std::ios::failbit);
        file << input;
        file.close();
    }

  private:
    std::filesystem::path path_;
    std::map<std::string, int> counts_;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fuzz_seeds FOLDER\n";
        return 2;
    }
    try {
        Folder folder(argv[1]);
        const auto take = [&](const std::string& fuzzer, const std::string& input) {
            folder.write(fuzzer, input);
        };
        velmora::fuzz::giveSheetSeeds(take);
        velmora::fuzz::giveConversationSeeds(take);
        velmora::fuzz::giveTextSeeds(take);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
