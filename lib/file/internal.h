// Shared by the parts of the file layer.
#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <ctime>
#include <memory>

#include "file/file-op.h"
#include "free-by.h"
#include "lib/ascii.h"

static_assert(sizeof(off_t) == 8 && sizeof(std::time_t) == 8, "files over 2 GiB, years after 2038");

inline constexpr int kPathBuffer = 4096;
inline const ustring kLogComponent("file_op_debug");

using DirStream = std::unique_ptr<DIR, FreeBy<closedir>>;

// ASCII text is composed (Unicode Standard Annex #15), and most paths are ASCII.
inline ustring Composed(ustring const& path) {
    return IsAscii(path.c_str(), path.length()) ? path : path.normalize(ustring::NFC);
}

inline ustring Child(ustring const& directory, char const* name) {
    ustring child(directory);
    child += "/";
    child += name;
    return child;
}

// Reads the next entry; null at the end. Result: 0 or an error number. readdir(3) reports an error
// by errno only. Each stream belongs to one thread.
inline int ReadEntry(DIR* dir, dirent*& entry) {
    errno = 0;
    entry = readdir(dir);
    return entry == nullptr ? errno : 0;
}

// Calls `action` for each entry except "." and "..". A read error ends the loop as the end does.
// Result: false if an action returned other than 0, which ends the loop.
template <class Action>
bool ForEachEntry(DIR* dir, Action action) {
    dirent* entry = nullptr;
    while (ReadEntry(dir, entry) == 0 && entry != nullptr) {
        const bool is_link_to_directory =
            std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0;
        if (!is_link_to_directory && action(*entry) != 0) {
            return false;
        }
    }
    return true;
}

struct TypeCode {
    unsigned system;
    int code;
};

template <std::size_t N>
int FindCode(const TypeCode (&table)[N], unsigned system, int otherwise) {
    for (const TypeCode& row : table) {
        if (row.system == system) {
            return row.code;
        }
    }
    return otherwise;
}
