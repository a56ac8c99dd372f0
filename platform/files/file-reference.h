// File references: the absolute path of an object as the file system spells it.
#pragma once

#ifdef __APPLE__
#include <CoreServices/CoreServices.h>
#else

#include <climits>
#include <cstdint>

// The file references of CoreServices, for other systems. A reference is a plain value: the path of
// the object at the time of the call.
//
// All functions return 0 or an errno value. Any thread.
using UInt8 = std::uint8_t;
using UInt32 = std::uint32_t;
using OptionBits = std::uint32_t;
using Boolean = unsigned char;
using OSStatus = std::int32_t;

struct FSRef {
    char path[PATH_MAX];
};

enum : OptionBits { kFSPathMakeRefDefaultOptions = 0, kFSPathMakeRefDoNotFollowLeafSymlink = 1 };

// Makes a reference to the existing object at `path` (UTF-8, absolute or relative). Follows a
// symbolic link at the last component unless `options` forbids it. `is_directory` is not used and
// may be null. Takes three system calls at any depth.
OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref,
                                  Boolean* is_directory);

// The same with kFSPathMakeRefDefaultOptions.
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* is_directory);

// Writes the object's absolute path to `buffer` of `size` bytes: UTF-8, NUL-terminated, without
// links, each component spelled as the file system stores it. ENAMETOOLONG if it does not fit.
OSStatus FSRefMakePath(const FSRef* ref, UInt8* buffer, UInt32 size);

#endif
