// The generator of temporary names.
#include "tmp_name_gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

#include "mutex-guard.h"

namespace {

constexpr int kStateSize = 256;
constexpr int kDraw = 6;        // bytes of a name
constexpr int kNameLength = 8;  // characters of 6 bits

// Three bytes as four groups of six bits, most significant bit first.
void Encode(const unsigned char* bytes, char* out) {
    static const char map[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
    out[0] = map[bytes[0] >> 2];
    out[1] = map[(bytes[0] & 3) << 4 | bytes[1] >> 4];
    out[2] = map[(bytes[1] & 15) << 2 | bytes[2] >> 6];
    out[3] = map[bytes[2] & 63];
}

}  // namespace

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

// The schedule uses the whole buffer, so the rest must be zero.
TmpNameGen::TmpNameGen() : m_state{}, m_key{}, m_random{} {
    get_key(m_key, sizeof m_key);
    rc4_init(m_state, m_key);
}

TmpNameGen* TmpNameGen::getInstance() {
    static TmpNameGen tmp_name;
    return &tmp_name;
}

ustring TmpNameGen::getTmpName() {
    char name[kNameLength + 1] = {};
    {
        const MutexGuard guard(&m_lock);
        rc4_randomize(m_state, m_random, kDraw);
        Encode(m_random, name);
        Encode(m_random + 3, name + 4);
    }
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(const ustring& dir) {
    return dir + "/" + getTmpName();
}

void TmpNameGen::get_key(unsigned char* key, unsigned long size) {
    timeval now;
    gettimeofday(&now, nullptr);
    std::snprintf(reinterpret_cast<char*>(key), size, "%lu-%lu",
                  static_cast<unsigned long>(now.tv_sec), static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key) {
    for (int i = 0; i < kStateSize; ++i) {
        state[i] = static_cast<unsigned char>(i);
    }
    if (key[0] == 0) {
        std::srand(static_cast<unsigned>(std::time(nullptr)));
        for (int i = 0; i < kStateSize; ++i) {
            key[i] = static_cast<unsigned char>(std::rand());
        }
    }
    int j = 0;
    for (int i = 0; i < kStateSize; ++i) {
        j = (j + state[i] + key[i]) & 255;
        std::swap(state[i], state[j]);
    }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int count) {
    int j = 0;
    for (int k = 0; k < count; ++k) {
        const int i = (k + 1) & 255;
        const unsigned char t = state[i];
        j = (j + t) & 255;
        state[i] = state[j];
        state[j] = t;
        out[k] = state[(state[i] + t) & 255];
    }
}
