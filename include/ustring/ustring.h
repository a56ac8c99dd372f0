// A text in UTF-8 and, on demand, in UTF-16.
#pragma once

#include <cstring>
#include <iosfwd>
#include <string>

// The UTF-8 text is always current. The UTF-16 text is a cache, filled on demand and cleared when
// the UTF-8 text changes.
//
// - Positions and lengths count bytes of the UTF-8 text. Only the count `n` of the `unsigned short`
//   forms counts 16-bit units.
// - The text is not validated. Only a conversion detects bytes that are not UTF-8.
// - For copies, searches, comparisons and conversions the text ends at its first NUL.
// - Pointers and references are valid until the next change of the object. For pointers to the
// UTF-16
//   text, `c_str_utf16` is a change.
// - Do not pass null pointers, or pointers into the middle of the object's own buffers.
// - Throws std::bad_alloc without memory; an assignment may then have cleared the text. Throws
//   std::out_of_range, with the object unchanged, for a position after the end. A failed conversion
//   writes a warning to std::cerr and gives an empty text.
// - One thread at a time, also for `c_str_utf16` and `normalize`, which fill the cache.
class ustring {
  public:
    // As a result: not found. As a count: to the end.
    static constexpr unsigned long npos = static_cast<unsigned long>(-1);

    // Normalization forms of Unicode Standard Annex #15.
    enum normalization_form { NFC = 0, NFD = 1 };

    ustring();
    ustring(ustring const& other);         // the UTF-8 text up to its first NUL
    ustring(char const* utf8);             // NUL-terminated, unchecked
    ustring(unsigned short const* utf16);  // zero-terminated
    ustring(std::string const& utf8);      // up to its first NUL
    ustring(char c);
    ~ustring();

    // Clears the text and keeps the capacities.
    void clear();

    // The UTF-8 text, NUL-terminated, never null.
    char const* c_str() const { return data; }
    char const* c_str_utf8() const { return data; }
    // The UTF-16 text, zero-terminated, never null; empty if the conversion fails.
    unsigned short const* c_str_utf16() const;

    // Bytes of the UTF-8 text.
    unsigned long length() const { return data_length; }
    unsigned long size() const { return data_length; }
    bool empty() const { return data_length == 0; }

    // The byte at `offset`, which is at most length(), where the terminator is. Not checked. A
    // write does not change the UTF-16 text.
    char const& operator[](unsigned long offset) const { return data[offset]; }
    char& operator[](unsigned long offset) { return data[offset]; }

    void swap(ustring& other) noexcept;

    // Returns at most `n` bytes from `pos`. Throws std::out_of_range("substr") if pos > length().
    ustring substr(unsigned long pos, unsigned long n) const;

    // Replace the text. The source may be the object's own c_str() or c_str_utf16().
    ustring& assign(ustring const& s, unsigned long pos, unsigned long n);
    ustring& assign(char const* s);
    ustring& assign(char const* s, unsigned long n);
    ustring& assign(unsigned short const* s);
    ustring& assign(unsigned short const* s, unsigned long n);
    ustring& assign(std::string const& s, unsigned long pos, unsigned long n);
    ustring& assign(char c, unsigned long n);
    ustring& assign(unsigned short c, unsigned long n);

    ustring& operator=(ustring const& s) { return assign(s, 0, npos); }
    ustring& operator=(std::string const& s) { return assign(s, 0, npos); }
    ustring& operator=(char const* s) { return assign(s); }
    ustring& operator=(unsigned short const* s) { return assign(s); }
    ustring& operator=(char c) { return assign(c, 1); }
    ustring& operator=(unsigned short c) { return assign(c, 1); }

    // Append. The UTF-8 forms clear the UTF-16 text. The UTF-16 forms update both texts, or clear
    // the object if the result is not UTF-16, for example with a lone surrogate. The std::string
    // form throws std::out_of_range("basic_string::substr") if pos > s.size().
    ustring& append(char const* s);
    ustring& append(char const* s, unsigned long n);
    ustring& append(char c, unsigned long n);
    ustring& append(ustring const& s, unsigned long pos, unsigned long n);
    ustring& append(std::string const& s, unsigned long pos, unsigned long n);
    ustring& append(unsigned short const* s);
    ustring& append(unsigned short const* s, unsigned long n);
    ustring& append(unsigned short c, unsigned long n);

    ustring& operator+=(ustring const& s) { return append(s, 0, npos); }
    ustring& operator+=(std::string const& s) { return append(s, 0, npos); }
    ustring& operator+=(char const* s) { return append(s); }
    ustring& operator+=(unsigned short const* s) { return append(s); }
    ustring& operator+=(char c) { return append(c, 1); }
    ustring& operator+=(unsigned short c) { return append(c, 1); }

    // Searches. Result: the position in bytes, or npos. A forward search from pos >= length()
    // returns npos, and a backward search starts at the last byte at most, also for an empty
    // needle. A set consists of bytes, not of characters.
    unsigned long find(std::string const& needle, unsigned long pos) const {
        return find(needle.c_str(), pos);
    }
    unsigned long find(char const* needle, unsigned long pos) const;
    unsigned long find(ustring const& needle, unsigned long pos) const {
        return find(needle.data, pos);
    }
    unsigned long find(char needle, unsigned long pos) const {
        return find(one_byte{needle}.text, pos);
    }

    unsigned long rfind(std::string const& needle, unsigned long pos) const {
        return rfind(needle.c_str(), pos);
    }
    unsigned long rfind(char const* needle, unsigned long pos) const;
    unsigned long rfind(ustring const& needle, unsigned long pos) const {
        return rfind(needle.data, pos);
    }
    unsigned long rfind(char needle, unsigned long pos) const {
        return rfind(one_byte{needle}.text, pos);
    }

    unsigned long find_first_of(std::string const& set, unsigned long pos) const {
        return find_first_of(set.c_str(), pos);
    }
    unsigned long find_first_of(char const* set, unsigned long pos) const;
    unsigned long find_first_of(ustring const& set, unsigned long pos) const {
        return find_first_of(set.data, pos);
    }
    unsigned long find_first_of(char set, unsigned long pos) const {
        return find_first_of(one_byte{set}.text, pos);
    }

    unsigned long find_first_not_of(std::string const& set, unsigned long pos) const {
        return find_first_not_of(set.c_str(), pos);
    }
    unsigned long find_first_not_of(char const* set, unsigned long pos) const;
    unsigned long find_first_not_of(ustring const& set, unsigned long pos) const {
        return find_first_not_of(set.data, pos);
    }
    unsigned long find_first_not_of(char set, unsigned long pos) const {
        return find_first_not_of(one_byte{set}.text, pos);
    }

    unsigned long find_last_of(std::string const& set, unsigned long pos) const {
        return find_last_of(set.c_str(), pos);
    }
    unsigned long find_last_of(char const* set, unsigned long pos) const;
    unsigned long find_last_of(ustring const& set, unsigned long pos) const {
        return find_last_of(set.data, pos);
    }
    unsigned long find_last_of(char set, unsigned long pos) const {
        return find_last_of(one_byte{set}.text, pos);
    }

    unsigned long find_last_not_of(std::string const& set, unsigned long pos) const {
        return find_last_not_of(set.c_str(), pos);
    }
    unsigned long find_last_not_of(char const* set, unsigned long pos) const;
    unsigned long find_last_not_of(ustring const& set, unsigned long pos) const {
        return find_last_not_of(set.data, pos);
    }
    unsigned long find_last_not_of(char set, unsigned long pos) const {
        return find_last_not_of(one_byte{set}.text, pos);
    }

    // Remove leading or trailing bytes of a set, or both. An empty set changes nothing.
    void ltrim(ustring const& set) { ltrim(set.data); }
    void ltrim(char const* set);
    void rtrim(ustring const& set) { rtrim(set.data); }
    void rtrim(char const* set);
    void trim(ustring const& set) { trim(set.data); }
    void trim(char const* set);

    // Replaces each byte `from`.
    void replace(char from, char to);

    // Returns the difference of the first different bytes, as unsigned values, this minus `other`;
    // 0 for equal texts. The second form compares at most `n` bytes. With `ignore_case` the static
    // form folds ASCII letters.
    int compare(ustring const& other) const;
    int compare(ustring const& other, unsigned long n) const;
    static int compare(ustring const& a, ustring const& b, bool ignore_case);

    // Returns the normalized text; empty, with a warning on std::cerr, if the text is not UTF-8.
    static ustring normalize(ustring const& source, normalization_form form);
    ustring normalize(normalization_form form) const { return normalize(*this, form); }

    // Whether the text is UTF-8. True for an empty text.
    static bool is_valid(ustring const& s);

    // The result has no UTF-16 text and ends at the first NUL.
    friend ustring operator+(ustring const& left, ustring const& right);
    friend ustring operator+(ustring const& left, char const* right);
    friend ustring operator+(ustring const& left, char right);
    friend ustring operator+(ustring const& left, unsigned short const* right);
    friend ustring operator+(ustring const& left, unsigned short right);

  private:
    friend struct ustring_test_peer;

    // One byte as a needle or a set; empty for NUL.
    struct one_byte {
        char text[2];  // the second byte is 0
    };

    ustring(char const* head, unsigned long head_length, char const* tail,
            unsigned long tail_length);

    void init();
    void init(unsigned long need);
    void check(unsigned long pos) const;
    void realloc_data(unsigned long need);
    void realloc_wdata(unsigned long need) const;
    void clear_data();
    void clear_wdata() const;
    void build_wdata() const;
    int convert_from_data() const;
    int convert_from_wdata();

    char* data;                            // heap block from realloc, NUL-terminated, never null
    unsigned long data_length;             // bytes before the terminator
    unsigned long data_capacity;           // bytes of the block
    mutable unsigned short* wdata;         // heap block from realloc, zero-terminated, never null
    mutable unsigned long wdata_length;    // units before the terminator; 0 if not filled
    mutable unsigned long wdata_capacity;  // units of the block
};

void swap(ustring& a, ustring& b) noexcept;

ustring operator+(ustring const& left, ustring const& right);
ustring operator+(ustring const& left, char const* right);
ustring operator+(ustring const& left, char right);
ustring operator+(ustring const& left, unsigned short const* right);
ustring operator+(ustring const& left, unsigned short right);

namespace ustring_detail {

// As strcmp(3), without a call if the first bytes differ.
inline int order(ustring const& left, ustring const& right) {
    const int first = static_cast<unsigned char>(left[0]) - static_cast<unsigned char>(right[0]);
    return first != 0 ? first : std::strcmp(left.c_str(), right.c_str());
}

}  // namespace ustring_detail

// Compare the bytes of the UTF-8 texts up to their first NUL. Different normal forms are different.
inline bool operator==(ustring const& left, ustring const& right) {
    return ustring_detail::order(left, right) == 0;
}
inline bool operator!=(ustring const& left, ustring const& right) {
    return ustring_detail::order(left, right) != 0;
}
inline bool operator<(ustring const& left, ustring const& right) {
    return ustring_detail::order(left, right) < 0;
}
inline bool operator>(ustring const& left, ustring const& right) {
    return ustring_detail::order(left, right) > 0;
}
inline bool operator<=(ustring const& left, ustring const& right) {
    return ustring_detail::order(left, right) <= 0;
}
inline bool operator>=(ustring const& left, ustring const& right) {
    return ustring_detail::order(left, right) >= 0;
}

// Writes the UTF-8 text up to its first NUL.
std::ostream& operator<<(std::ostream& out, ustring const& s);
// Reads one word, as for std::string. Clears the target if that fails.
std::istream& operator>>(std::istream& in, ustring& s);
