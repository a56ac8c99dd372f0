// The owner of a block from malloc.
#pragma once

#include <cstdlib>
#include <memory>

struct MallocFreer {
    void operator()(void* block) const { std::free(block); }
};

// For what the C library and others hand out to be freed by the caller.
template <class T>
using MallocPtr = std::unique_ptr<T, MallocFreer>;
