// Texts in UTF-8 and UTF-16, with conversions by ICU.
#include "ustring/ustring.h"

// Switches of ICU: only the C interface, with the unit type of this class. Since ICU 76 the C++
// interface has two parts.
#define UCHAR_TYPE unsigned short
#define U_SHOW_CPLUSPLUS_API 0
#define U_SHOW_CPLUSPLUS_HEADER_API 0

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <new>
#include <stdexcept>

#include "lib/ascii.h"

namespace {

constexpr unsigned long kFirstCapacity = 4;

unsigned long LengthUpTo(char const* s, unsigned long limit) {
    return limit == ustring::npos ? std::strlen(s) : strnlen(s, limit);
}

unsigned long LengthUpTo(unsigned short const* s, unsigned long limit) {
    unsigned long length = 0;
    while (length < limit && s[length] != 0) {
        ++length;
    }
    return length;
}

// Returns the elements for `length`, `extra` and the terminator. Throws if the sum overflows.
unsigned long Need(unsigned long length, unsigned long extra) {
    if (extra >= ustring::npos - length) {
        throw std::bad_alloc();
    }
    return length + extra + 1;
}

// Keeps a block that is up to twice as large as necessary.
bool Fits(unsigned long capacity, unsigned long need) {
    return capacity >= need && capacity / 2 <= need;
}

template <class Unit>
void Fit(Unit*& block, unsigned long& capacity, unsigned long need) {
    if (block != nullptr && Fits(capacity, need)) {
        return;
    }
    if (need > ustring::npos / sizeof(Unit)) {
        throw std::bad_alloc();
    }
    void* const fitted = std::realloc(block, need * sizeof(Unit));
    if (fitted == nullptr) {
        throw std::bad_alloc();
    }
    block = static_cast<Unit*>(fitted);
    capacity = need;
}

// Appends at most `n` units of `s`, which may be `block` itself.
template <class Unit>
void AppendUnits(Unit*& block, unsigned long& length, unsigned long& capacity, Unit const* s,
                 unsigned long n) {
    const bool self = s == block;
    const unsigned long available = self ? std::min(length, n) : LengthUpTo(s, n);
    Fit(block, capacity, Need(length, available));
    Unit const* const source = self ? block : s;
    const unsigned long copied = self ? LengthUpTo(source, available) : available;
    std::memcpy(block + length, source, copied * sizeof(Unit));
    length += copied;
    block[length] = 0;
}

template <class Unit>
void AppendFill(Unit*& block, unsigned long& length, unsigned long& capacity, Unit c,
                unsigned long n) {
    Fit(block, capacity, Need(length, n));
    std::fill_n(block + length, n, c);
    length += n;
    block[length] = 0;
}

void Warn(char const* what, UErrorCode status, int line) {
    std::cerr << what << static_cast<int>(status) << " at line " << line << '\n';
}

// Returns the length of the common beginning, in whole words.
unsigned long EqualWords(char const* a, char const* b, unsigned long length) {
    constexpr unsigned long kWord = 8;
    unsigned long equal = 0;
    while (equal + kWord <= length && std::memcmp(a + equal, b + equal, kWord) == 0) {
        equal += kWord;
    }
    return equal;
}

// Tests for a text at an offset.
struct StartsWith {
    char const* needle;
    bool operator()(char const* text) const {
        char const* wanted = needle;
        while (*wanted != 0 && *text == *wanted) {
            ++text;
            ++wanted;
        }
        return *wanted == 0;
    }
};

struct StartsWithOneOf {
    char const* set;
    bool operator()(char const* text) const {
        return *text != 0 && std::strchr(set, *text) != nullptr;
    }
};

struct StartsWithNoneOf {
    char const* set;
    bool operator()(char const* text) const { return !StartsWithOneOf{set}(text); }
};

template <class Test>
unsigned long SearchForward(ustring const& text, unsigned long pos, Test test) {
    if (pos >= text.length()) {
        return ustring::npos;
    }
    for (; text[pos] != 0; ++pos) {
        if (test(text.c_str() + pos)) {
            return pos;
        }
    }
    return ustring::npos;
}

template <class Test>
unsigned long SearchBackward(ustring const& text, unsigned long pos, Test test) {
    for (unsigned long end = std::min(pos, text.length() - 1) + 1; !text.empty() && end > 0;
         --end) {
        if (test(text.c_str() + end - 1)) {
            return end - 1;
        }
    }
    return ustring::npos;
}

int Difference(char a, char b) {
    return static_cast<unsigned char>(a) - static_cast<unsigned char>(b);
}

constexpr std::array<unsigned char, 256> FoldingTable() {
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < table.size(); ++i) {
        const bool upper = i >= 'A' && i <= 'Z';
        table[i] = static_cast<unsigned char>(upper ? i - 'A' + 'a' : i);
    }
    return table;
}

int str_case_cmp(char const* a, char const* b) {
    static constexpr std::array<unsigned char, 256> table = FoldingTable();
    for (;; ++a, ++b) {
        const int difference =
            table[static_cast<unsigned char>(*a)] - table[static_cast<unsigned char>(*b)];
        if (difference != 0 || *a == 0) {
            return difference;
        }
    }
}

}  // namespace

void ustring::init() {
    init(kFirstCapacity);
}

// Fits the block of the UTF-8 text to `need` afterwards.
void ustring::init(unsigned long need) {
    data = nullptr;
    wdata = nullptr;
    data_capacity = 0;
    wdata_capacity = 0;
    realloc_data(Fits(kFirstCapacity, need) ? kFirstCapacity : need);
    try {
        realloc_wdata(kFirstCapacity);
    } catch (std::bad_alloc const&) {
        std::free(data);
        throw;
    }
    clear();
}

// Constructors that may throw delegate to this one, so that the destructor runs.
ustring::ustring() {
    init();
}

ustring::ustring(char const* head, unsigned long head_length, char const* tail,
                 unsigned long tail_length) {
    init(Need(head_length, tail_length));
    std::memcpy(data, head, head_length);
    std::memcpy(data + head_length, tail, tail_length);
    data_length = head_length + tail_length;
    data[data_length] = 0;
}

ustring::ustring(ustring const& other) : ustring(other.data) {}

ustring::ustring(char const* utf8) : ustring(utf8, std::strlen(utf8), "", 0) {}

ustring::ustring(unsigned short const* utf16) : ustring() {
    assign(utf16);
}

ustring::ustring(std::string const& utf8) : ustring(utf8.c_str()) {}

ustring::ustring(char c) : ustring() {
    append(c, 1);
}

ustring::~ustring() {
    std::free(data);
    std::free(wdata);
    data = nullptr;
    wdata = nullptr;
}

void ustring::realloc_data(unsigned long need) {
    Fit(data, data_capacity, need);
}

void ustring::realloc_wdata(unsigned long need) const {
    Fit(wdata, wdata_capacity, need);
}

void ustring::clear_data() {
    data_length = 0;
    data[0] = 0;
}

void ustring::clear_wdata() const {
    wdata_length = 0;
    wdata[0] = 0;
}

void ustring::clear() {
    clear_data();
    clear_wdata();
}

unsigned short const* ustring::c_str_utf16() const {
    if (wdata_length == 0) {
        convert_from_data();
    }
    return wdata;
}

void ustring::swap(ustring& other) noexcept {
    std::swap(data, other.data);
    std::swap(data_length, other.data_length);
    std::swap(data_capacity, other.data_capacity);
    std::swap(wdata, other.wdata);
    std::swap(wdata_length, other.wdata_length);
    std::swap(wdata_capacity, other.wdata_capacity);
}

void swap(ustring& a, ustring& b) noexcept {
    a.swap(b);
}

ustring ustring::substr(unsigned long pos, unsigned long n) const {
    check(pos);
    return ustring(data + pos, LengthUpTo(data + pos, n), "", 0);
}

void ustring::check(unsigned long pos) const {
    if (pos > data_length) {
        throw std::out_of_range("substr");
    }
}

ustring& ustring::assign(ustring const& s, unsigned long pos, unsigned long n) {
    if (&s == this) {
        const ustring part = substr(pos, n);
        return assign(part, 0, npos);
    }
    s.check(pos);
    clear();
    return append(s, pos, n);
}

ustring& ustring::assign(char const* s) {
    if (s == data) {
        return *this;
    }
    clear();
    return append(s);
}

ustring& ustring::assign(char const* s, unsigned long n) {
    if (s != data) {
        clear();
        return append(s, n);
    }
    if (data_length > n) {
        data_length = n;
        data[n] = 0;
        clear_wdata();
    }
    return *this;
}

ustring& ustring::assign(unsigned short const* s) {
    if (s == wdata) {
        return *this;
    }
    clear();
    return append(s);
}

ustring& ustring::assign(unsigned short const* s, unsigned long n) {
    if (s != wdata) {
        clear();
        return append(s, n);
    }
    if (wdata_length > n) {
        wdata_length = n;
        wdata[n] = 0;
        convert_from_wdata();
    }
    return *this;
}

ustring& ustring::assign(std::string const& s, unsigned long pos, unsigned long n) {
    if (pos > s.size()) {
        throw std::out_of_range("basic_string::substr");
    }
    clear();
    return append(s, pos, n);
}

ustring& ustring::assign(char c, unsigned long n) {
    clear();
    return append(c, n);
}

ustring& ustring::assign(unsigned short c, unsigned long n) {
    clear();
    return append(c, n);
}

ustring& ustring::append(char const* s) {
    return append(s, npos);
}

ustring& ustring::append(char const* s, unsigned long n) {
    AppendUnits<char>(data, data_length, data_capacity, s, n);
    clear_wdata();
    return *this;
}

ustring& ustring::append(char c, unsigned long n) {
    AppendFill(data, data_length, data_capacity, c, n);
    clear_wdata();
    return *this;
}

ustring& ustring::append(ustring const& s, unsigned long pos, unsigned long n) {
    if (&s == this) {
        const ustring part = substr(pos, n);
        return append(part.data);
    }
    s.check(pos);
    return append(s.data + pos, n);
}

ustring& ustring::append(std::string const& s, unsigned long pos, unsigned long n) {
    if (pos > s.size()) {
        throw std::out_of_range("basic_string::substr");
    }
    return append(s.c_str() + pos, std::min<unsigned long>(n, s.size() - pos));
}

ustring& ustring::append(unsigned short const* s) {
    return append(s, npos);
}

ustring& ustring::append(unsigned short const* s, unsigned long n) {
    // Before the conversion, which may move the buffer of `s`.
    const bool self = s == wdata;
    build_wdata();
    AppendUnits<unsigned short>(wdata, wdata_length, wdata_capacity, self ? wdata : s, n);
    convert_from_wdata();
    return *this;
}

ustring& ustring::append(unsigned short c, unsigned long n) {
    build_wdata();
    AppendFill(wdata, wdata_length, wdata_capacity, c, n);
    convert_from_wdata();
    return *this;
}

// Fills the UTF-16 text before a change of it; empty if the conversion fails.
void ustring::build_wdata() const {
    if (wdata_length == 0 && data_length != 0) {
        convert_from_data();
    }
}

int ustring::convert_from_data() const {
    const unsigned long bytes = std::strlen(data);
    if (IsAscii(data, bytes)) {
        realloc_wdata(bytes + 1);
        std::copy_n(data, bytes + 1, wdata);
        wdata_length = bytes;
        return 0;
    }
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &length, data, -1, &status);
    realloc_wdata(static_cast<unsigned long>(length) + 1);
    status = U_ZERO_ERROR;
    u_strFromUTF8(wdata, static_cast<int32_t>(wdata_capacity), &length, data, -1, &status);
    if (U_FAILURE(status)) {
        Warn("Warning: u_strFromUTF8: error code ", status, 921);
        clear_wdata();
        return -1;
    }
    wdata_length = static_cast<unsigned long>(length);
    wdata[wdata_length] = 0;
    return 0;
}

int ustring::convert_from_wdata() {
    unsigned long ascii = 0;
    while (wdata[ascii] != 0 && wdata[ascii] < 0x80) {
        ++ascii;
    }
    if (wdata[ascii] == 0) {
        realloc_data(ascii + 1);
        std::copy_n(wdata, ascii + 1, data);
        data_length = ascii;
        return 0;
    }
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8(nullptr, 0, &length, wdata, -1, &status);
    realloc_data(static_cast<unsigned long>(length) + 1);
    status = U_ZERO_ERROR;
    u_strToUTF8(data, static_cast<int32_t>(data_capacity), &length, wdata, -1, &status);
    if (U_FAILURE(status)) {
        Warn("Warning: u_strToUTF8: error code ", status, 888);
        clear();
        return -1;
    }
    data_length = static_cast<unsigned long>(length);
    data[data_length] = 0;
    return 0;
}

bool ustring::is_valid(ustring const& s) {
    if (s.empty()) {
        return true;
    }
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &length, s.data, -1, &status);
    return status != U_INVALID_CHAR_FOUND;
}

unsigned long ustring::find(char const* needle, unsigned long pos) const {
    if (pos >= data_length || data[pos] == 0) {
        return npos;
    }
    char const* const found = std::strstr(data + pos, needle);
    return found == nullptr ? npos : static_cast<unsigned long>(found - data);
}

unsigned long ustring::rfind(char const* needle, unsigned long pos) const {
    return SearchBackward(*this, pos, StartsWith{needle});
}

unsigned long ustring::find_first_of(char const* set, unsigned long pos) const {
    return SearchForward(*this, pos, StartsWithOneOf{set});
}

unsigned long ustring::find_first_not_of(char const* set, unsigned long pos) const {
    return SearchForward(*this, pos, StartsWithNoneOf{set});
}

unsigned long ustring::find_last_of(char const* set, unsigned long pos) const {
    return SearchBackward(*this, pos, StartsWithOneOf{set});
}

unsigned long ustring::find_last_not_of(char const* set, unsigned long pos) const {
    return SearchBackward(*this, pos, StartsWithNoneOf{set});
}

void ustring::ltrim(char const* set) {
    const StartsWithOneOf in_set{set};
    char const* rest = data;
    while (in_set(rest)) {
        ++rest;
    }
    if (rest == data) {
        return;
    }
    data_length = std::strlen(rest);
    std::memmove(data, rest, data_length + 1);
    clear_wdata();
}

void ustring::rtrim(char const* set) {
    const StartsWithOneOf in_set{set};
    unsigned long length = data_length;
    while (length > 0 && in_set(data + length - 1)) {
        --length;
    }
    if (length == data_length) {
        return;
    }
    data_length = length;
    data[length] = 0;
    clear_wdata();
}

void ustring::trim(char const* set) {
    ltrim(set);
    rtrim(set);
}

void ustring::replace(char from, char to) {
    bool changed = false;
    for (char* byte = data; *byte != 0; ++byte) {
        if (*byte == from) {
            *byte = to;
            changed = from != to;
        }
    }
    if (changed) {
        clear_wdata();
    }
}

int ustring::compare(ustring const& other) const {
    return compare(other, npos);
}

int ustring::compare(ustring const& other, unsigned long n) const {
    unsigned long i = EqualWords(data, other.data, std::min({n, data_length, other.data_length}));
    if (std::memchr(data, 0, i) != nullptr) {
        return 0;
    }
    for (; i < n; ++i) {
        const int difference = Difference(data[i], other.data[i]);
        if (difference != 0 || data[i] == 0) {
            return difference;
        }
    }
    return 0;
}

int ustring::compare(ustring const& a, ustring const& b, bool ignore_case) {
    return ignore_case ? str_case_cmp(a.data, b.data) : a.compare(b);
}

ustring ustring::normalize(ustring const& source, normalization_form form) {
    static constexpr UNormalization2Mode kModes[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
    ustring result;
    if (source.empty()) {
        return result;
    }
    // ASCII text is normalized (Unicode Standard Annex #15).
    if (IsAscii(source.data, std::strlen(source.data))) {
        source.c_str_utf16();
        result = source;
        result.c_str_utf16();
        return result;
    }
    UErrorCode status = U_ZERO_ERROR;
    // ICU owns the instance.
    UNormalizer2 const* const normalizer =
        unorm2_getInstance(nullptr, "nfc", kModes[form], &status);
    if (U_FAILURE(status) || normalizer == nullptr) {
        Warn("Warning: unorm2_getInstance: error code ", status, 1014);
        return result;
    }
    const int32_t measured =
        unorm2_normalize(normalizer, source.c_str_utf16(), -1, nullptr, 0, &status);
    result.realloc_wdata(static_cast<unsigned long>(measured) + 1);
    status = U_ZERO_ERROR;
    const int32_t length = unorm2_normalize(normalizer, source.c_str_utf16(), -1, result.wdata,
                                            static_cast<int32_t>(result.wdata_capacity), &status);
    if (U_FAILURE(status)) {
        Warn("Warning: unorm2_normalize: error code ", status, 1026);
        result.clear();
        return result;
    }
    result.wdata_length = static_cast<unsigned long>(length);
    result.wdata[length] = 0;
    result.convert_from_wdata();
    return result;
}

ustring operator+(ustring const& left, ustring const& right) {
    return left + right.data;
}

ustring operator+(ustring const& left, char const* right) {
    return ustring(left.data, std::strlen(left.data), right, std::strlen(right));
}

ustring operator+(ustring const& left, char right) {
    return left + ustring::one_byte{right}.text;
}

// A temporary has both texts; its copy has only UTF-8.
ustring operator+(ustring const& left, unsigned short const* right) {
    return ustring(left).append(right).data;
}

ustring operator+(ustring const& left, unsigned short right) {
    return ustring(left).append(right, 1).data;
}

std::ostream& operator<<(std::ostream& out, ustring const& s) {
    return out << s.c_str();
}

std::istream& operator>>(std::istream& in, ustring& s) {
    std::string token;
    in >> token;
    s.clear();
    s.append(token, 0, ustring::npos);
    return in;
}
