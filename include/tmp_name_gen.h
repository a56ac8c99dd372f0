// Short random names for temporary files and folders.
#pragma once

#include <pthread.h>

#include "ustring/ustring.h"

// Draws names of eight characters from a 64-character alphabet that is safe in a file name. The
// stream is RC4 keyed from the clock, with a schedule and an output step of its own (below): it
// serves for names only, and nothing is enciphered with it. Names are not tested against the file
// system.
class TmpNameGen {
  public:
    // The one instance, made at the first call. Any thread.
    static TmpNameGen* getInstance();

    // A new name of exactly eight characters, which may begin with '-'. Any thread.
    ustring getTmpName();
    // `dir`, "/" and a new name. Nothing is examined or created. Any thread.
    ustring getTmpPath(const ustring& dir);

    // Writes the clock as "<seconds>-<microseconds>", NUL-terminated, into `key` of `size` bytes.
    void get_key(unsigned char* key, unsigned long size);

    // The key schedule, over 256 bytes each of `state` and `key`. Unlike RC4's, it does not repeat
    // the key modulo its length but takes all 256 bytes. A key that begins with 0 is empty and is
    // filled from rand() first. Takes no lock.
    void rc4_init(unsigned char* state, unsigned char* key);

    // Writes `count` bytes of the stream to `out`. Unlike RC4's, its two indices start anew at
    // every call, and only `state` carries over. A count of 0 or less does nothing. Takes no lock.
    void rc4_randomize(unsigned char* state, unsigned char* out, int count);

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

  private:
    TmpNameGen();
    ~TmpNameGen() {}

    unsigned char m_state[256];  // the permutation, from one name to the next
    unsigned char m_key[256];    // the key, kept after the schedule and not used again
    unsigned char m_random[6];   // the latest draw
    static pthread_mutex_t m_lock;
};
