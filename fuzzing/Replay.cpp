#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

/// Stands in for the fuzzer where a compiler has none: replays the inputs of a folder, then a
/// number of random changes of them, the same ones in every run.
///
///     PROGRAM FOLDER COUNT

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<Bytes> seedsIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        paths.push_back(entry.path());
    std::ranges::sort(paths);
    std::vector<Bytes> seeds;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return seeds;
}

Bytes changed(Bytes bytes, std::mt19937& random) {
    const auto below = [&random](std::size_t count) { return random() % count; };
    for (std::size_t changes = 1 + below(8); changes > 0; --changes) {
        const auto place = static_cast<std::ptrdiff_t>(below(bytes.size() + 1));
        const auto byte = static_cast<std::uint8_t>(random());
        if (below(3) == 0)
            bytes.insert(bytes.begin() + place, byte);
        else if (place == static_cast<std::ptrdiff_t>(bytes.size()))
            bytes.push_back(byte);
        else if (below(4) == 0)
            bytes.erase(bytes.begin() + place);
        else
            bytes[static_cast<std::size_t>(place)] = byte;
    }
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return EXIT_FAILURE;
    const std::vector<Bytes> seeds = seedsIn(argv[1]);
    if (seeds.empty())
        return EXIT_FAILURE;
    for (const Bytes& seed : seeds)
        LLVMFuzzerTestOneInput(seed.data(), seed.size());
    std::mt19937 random(1); // NOLINT: the same inputs in every run
    const int count = std::atoi(argv[2]);
    for (int number = 0; number < count; ++number) {
        const Bytes input = changed(seeds[random() % seeds.size()], random);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%zu seeds and %d changes of them\n", seeds.size(), count);
    return EXIT_SUCCESS;
}
