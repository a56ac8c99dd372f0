// Owners of objects of C libraries.
#pragma once

// A deleter for std::unique_ptr: std::unique_ptr<DIR, FreeBy<closedir>>.
template <auto Free>
struct FreeBy {
    template <class T>
    void operator()(T* object) const {
        Free(object);
    }
};
