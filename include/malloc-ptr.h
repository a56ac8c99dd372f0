// An owner of memory from malloc.
#pragma once

#include <cstdlib>
#include <memory>

#include "free-by.h"

template <class T>
using MallocPtr = std::unique_ptr<T, FreeBy<std::free>>;
