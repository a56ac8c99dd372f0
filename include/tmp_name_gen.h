// Short random names for temporary files and folders.
#pragma once

#include <pthread.h>

#include "ustring/ustring.h"

// Generates names of eight characters from an alphabet of 64 characters that are safe in file
// names. The stream is RC4 keyed by the clock, with changes described below; it is not for
// encryption. Does not check whether a file with the name exists.
class TmpNameGen {
  public:
    // The only instance, created by the first call. Any thread.
    static TmpNameGen* getInstance();

    // Returns a new name of eight characters, which may begin with '-'. Any thread.
    ustring getTmpName();
    // Returns `dir`, "/" and a new name. Creates nothing. Any thread.
    ustring getTmpPath(const ustring& dir);

    // Writes "<seconds>-<microseconds>" and a NUL to `key` of `size` bytes.
    void get_key(unsigned char* key, unsigned long size);

    // The key schedule, with 256 bytes of `state` and `key`. Unlike RC4's, it uses all 256 bytes of
    // the key instead of repeating a shorter one. Fills a key that begins with 0 from rand() first.
    // Takes no lock.
    void rc4_init(unsigned char* state, unsigned char* key);

    // Writes `count` bytes of the stream to `out`. Unlike RC4's, its two indices start from 0 in
    // each call. Does nothing if `count` is 0 or less. Takes no lock.
    void rc4_randomize(unsigned char* state, unsigned char* out, int count);

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

  private:
    TmpNameGen();
    ~TmpNameGen() {}

    unsigned char m_state[256];  // the permutation
    unsigned char m_key[256];    // not used after the schedule
    unsigned char m_random[6];   // the latest bytes of the stream
    static pthread_mutex_t m_lock;
};
