// Config reads the same values after they are written again.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "config.h"
#include "unique-fd.h"

static int Read(Config& config, const std::string& content) {
    const UniqueFd file(memfd_create("config", MFD_CLOEXEC));
    const ssize_t written = write(file.get(), content.data(), content.size());
    return written < 0 ? -1 : config.read("/proc/self/fd/" + std::to_string(file.get()));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Config config;
    const int result = Read(config, std::string(reinterpret_cast<const char*>(data), size));
    std::string again;
    for (const auto& [key, text] : config) {
        // With quotes if necessary. No value needs both kinds.
        const std::string value = text.c_str();
        const bool plain = value.find_first_of("\"'") != 0 && value.find_first_of(' ') == value.npos;
        const char* const quote = value.find('"') == value.npos ? "\"" : "'";
        again += key.c_str() + ("=" + (plain && !value.empty() ? value : quote + value + quote)) + "\n";
    }
    Config same;
    if ((result != 0 && !config.empty()) || Read(same, again) != 0 || same != config) { std::abort(); }
    return 0;
}
