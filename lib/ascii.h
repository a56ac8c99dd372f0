// A test for ASCII text.
#pragma once

// Has no branch for each byte, so that the compiler can vectorize it.
inline bool IsAscii(char const* text, unsigned long length) {
    unsigned char bits = 0;
    for (unsigned long i = 0; i < length; ++i) {
        bits = static_cast<unsigned char>(bits | text[i]);
    }
    return bits < 0x80;
}
