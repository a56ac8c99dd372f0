// File references: the absolute path of an object as the file system spells it.
#pragma once

#ifdef __APPLE__
#include <CoreServices/CoreServices.h>
#else

#include <climits>
#include <cstdint>

// The names and the contract of CoreServices' file references, where the system has none. A
// reference is a plain value that owns nothing; here it is the object's path at the time when it
// was made.
//
// All three return 0 on success. Any other status is an errno value and only fit to be logged. Safe
// on any thread.
using UInt8 = std::uint8_t;
using UInt32 = std::uint32_t;
using OptionBits = std::uint32_t;
using Boolean = unsigned char;
using OSStatus = std::int32_t;

struct FSRef {
    char path[PATH_MAX];
};

enum : OptionBits { kFSPathMakeRefDefaultOptions = 0, kFSPathMakeRefDoNotFollowLeafSymlink = 1 };

// Makes a reference to the existing object at `path` (UTF-8, absolute or relative to the working
// directory). A symbolic link at the last component is followed unless `options` says otherwise.
// `is_directory` is not used and may be null. Costs three system calls whatever the depth.
OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref,
                                  Boolean* is_directory);

// The same with a last link followed.
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* is_directory);

// Writes the object's absolute path into `buffer` of `size` bytes: UTF-8, NUL-terminated, its
// directories resolved and each component spelled as the file system stores it. A buffer that is
// too small is ENAMETOOLONG.
OSStatus FSRefMakePath(const FSRef* ref, UInt8* buffer, UInt32 size);

#endif
