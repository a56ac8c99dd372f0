// The string type of everything below the GUI: one text, held in UTF-8 and, on demand, in UTF-16.
#pragma once

#include <cstring>
#include <iosfwd>
#include <string>

// One text in two encodings. UTF-8 is the authority and always current; UTF-16 is a cache, built
// when somebody asks for it and dropped when the UTF-8 text changes.
//
// - Positions and lengths count bytes of the UTF-8 text. Only the count `n` of the `unsigned short`
//   forms counts 16-bit units.
// - The text is not validated: bytes that are not UTF-8 may stand in it, and only a conversion
//   finds out.
// - Copies, searches, comparisons and conversions take the text as ending at its first NUL.
// - Pointers and references given out last until the next operation that changes the object.
//   `c_str_utf16` counts as such a change for pointers into the UTF-16 view.
// - Null pointers, and pointers into the middle of the object's own buffers, must not be passed.
// - Throws std::bad_alloc when memory runs out, with the object as it was just before it asked for
//   more (an assignment has cleared the text by then), and std::out_of_range for a position beyond
//   the end. A failed conversion throws nothing: it writes a warning to std::cerr and leaves an
//   empty text.
// - A ustring belongs to one thread at a time, also for `c_str_utf16` and `normalize`, which write
//   the cache through const.
class ustring {
  public:
    // "No position" as a result, "to the end" as a count.
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

    // Empties the text; the capacities stay.
    void clear();

    // The UTF-8 text, NUL-terminated, never null.
    char const* c_str() const { return data; }
    char const* c_str_utf8() const { return data; }
    // The UTF-16 text, zero-terminated, never null; converted first when it is not built. The empty
    // text if the conversion fails.
    unsigned short const* c_str_utf16() const;

    // Bytes of the UTF-8 text.
    unsigned long length() const { return data_length; }
    unsigned long size() const { return data_length; }
    bool empty() const { return data_length == 0; }

    // The byte at `offset`, which is at most length(): there it is the terminator. No test is made.
    // A write goes unseen by the UTF-16 view.
    char const& operator[](unsigned long offset) const { return data[offset]; }
    char& operator[](unsigned long offset) { return data[offset]; }

    void swap(ustring& other);

    // At most `n` bytes from `pos`. Throws std::out_of_range("substr") if pos > length().
    ustring substr(unsigned long pos, unsigned long n) const;

    // Replace the text. With the object's own c_str() or c_str_utf16() as the source the text
    // stays, cut to `n` where one is given.
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

    // Append. The UTF-8 forms drop the UTF-16 view; the UTF-16 forms leave both views current, or
    // the whole object empty when the result is not UTF-16 (a lone surrogate, say). The std::string
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

    // Searches. Result: the position in bytes from the start of the text, or npos. A forward search
    // from pos >= length() is npos, also for an empty needle; a backward search starts at the last
    // byte at the latest, also for an empty needle. A set is a set of bytes, not of characters.
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

    // Remove leading, trailing or both kinds of bytes that are in the set, in place; the capacity
    // stays. An empty set changes nothing.
    void ltrim(ustring const& set) { ltrim(set.data); }
    void ltrim(char const* set);
    void rtrim(ustring const& set) { rtrim(set.data); }
    void rtrim(char const* set);
    void trim(ustring const& set) { trim(set.data); }
    void trim(char const* set);

    // Replaces every byte equal to `from`, in place.
    void replace(char from, char to);

    // The difference of the first bytes that differ, as unsigned values, this minus `other`; 0 for
    // equal texts. The second form looks at the first `n` bytes at most. The static form folds the
    // ASCII letters, and only them, when `ignore_case` is true.
    int compare(ustring const& other) const;
    int compare(ustring const& other, unsigned long n) const;
    static int compare(ustring const& a, ustring const& b, bool ignore_case);

    // The normalised text, with both views current; empty for an empty source, and, after a warning
    // on std::cerr, for one that is not UTF-8.
    static ustring normalize(ustring const& source, normalization_form form);
    ustring normalize(normalization_form form) const { return normalize(*this, form); }

    // Whether the text is UTF-8. An empty text is.
    static bool is_valid(ustring const& s);

    // The result holds UTF-8 only and ends at the first NUL.
    friend ustring operator+(ustring const& left, ustring const& right);
    friend ustring operator+(ustring const& left, char const* right);
    friend ustring operator+(ustring const& left, char right);
    friend ustring operator+(ustring const& left, unsigned short const* right);
    friend ustring operator+(ustring const& left, unsigned short right);

  private:
    friend struct ustring_test_peer;

    // One byte as a needle or a set; NUL makes it empty.
    struct one_byte {
        char text[2];  // the braces leave the second byte 0
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
    mutable unsigned long wdata_length;    // units before the terminator; 0: the view is not built
    mutable unsigned long wdata_capacity;  // units of the block
};

void swap(ustring& a, ustring& b);

ustring operator+(ustring const& left, ustring const& right);
ustring operator+(ustring const& left, char const* right);
ustring operator+(ustring const& left, char right);
ustring operator+(ustring const& left, unsigned short const* right);
ustring operator+(ustring const& left, unsigned short right);

namespace ustring_detail {

// As strcmp(3). The first bytes tell most keys of a map apart, without a call.
inline int order(ustring const& left, ustring const& right) {
    const int first = static_cast<unsigned char>(left[0]) - static_cast<unsigned char>(right[0]);
    return first != 0 ? first : std::strcmp(left.c_str(), right.c_str());
}

}  // namespace ustring_detail

// Byte order of the UTF-8 texts up to their first NUL: the composed and the decomposed form of one
// text differ. <= and >= are true for equal texts.
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

// Writes the bytes of the UTF-8 text up to its first NUL.
std::ostream& operator<<(std::ostream& out, ustring const& s);
// Reads one token, as the standard extraction does; the target is cleared also when that fails.
std::istream& operator>>(std::istream& in, ustring& s);
