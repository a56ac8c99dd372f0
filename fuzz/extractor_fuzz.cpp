// Extracts any bytes as a package, and removes the files as a rollback does.
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "file/file-op.h"
#include "log.h"
#include "ui-client/launcher/archive-handles.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/str-table.h"
#include "unique-fd.h"

// Refuses links, because a package may write anywhere through them.
static bool HasLinks(const std::string& package) {
    int opened = ARCHIVE_FATAL;
    const ArchiveReader reader = OpenArchive(package.c_str(), 10240, opened);
    bool links = false;
    archive_entry* entry = nullptr;
    while (!links && archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        links = archive_entry_symlink(entry) != nullptr || archive_entry_hardlink(entry) != nullptr;
    }
    return links;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The largest files are holes. Replaces the fuzzer's handler of the signal.
    const rlimit of_a_file{1 << 24, 1 << 24};
    setrlimit(RLIMIT_FSIZE, &of_a_file);
    std::signal(SIGXFSZ, SIG_IGN);
    Logger::Destroy();
    StrTable::InitStrTable();
    const UniqueFd file(memfd_create("package", MFD_CLOEXEC));
    const ssize_t written = write(file.get(), data, size);
    const std::string package = "/proc/self/fd/" + std::to_string(file.get());
    std::string destination = "/dev/shm/quillmere-fuzz-XXXXXX";
    if (HasLinks(package) || written < 0 || mkdtemp(destination.data()) == nullptr) { return -1; }
    Extractor extractor;
    extractor.m_source = package;
    extractor.m_dest = destination;
    extractor.Extract();
    if (FSRemove(destination, false) != 0 || access(destination.c_str(), F_OK) == 0) { std::abort(); }
    return 0;
}
