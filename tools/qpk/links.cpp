// Resolves symbolic links among the entries of a client, without a file system.
#include "tools/qpk/links.h"

namespace {

constexpr int kMostLinks = 40;  // the kernel's own limit

// Removes the first component of `path` and the slashes after it.
std::string TakeFirst(std::string& path) {
    const std::size_t slash = path.find('/');
    std::string first = path.substr(0, slash);
    path.erase(0, path.find_first_not_of('/', slash));
    return first;
}

std::string Join(const std::string& head, const std::string& tail) {
    return head.empty() || tail.empty() ? head + tail : (head + '/').append(tail);
}

std::string Parent(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

}  // namespace

Links::Links(const Entries& entries) {
    for (const Entry& entry : entries) {
        entries_.emplace(entry.path, &entry);
    }
}

const Entry* Links::Find(const std::string& path) const {
    const auto found = entries_.find(path);
    return found == entries_.end() ? nullptr : found->second;
}

Links::Target Links::Follow(const Entry& link) const {
    return Follow(Parent(link.path), link.link_text);
}

// `done` is inside the client and has no more links.
Links::Target Links::Follow(std::string done, std::string rest) const {
    for (int links = 0; !rest.empty();) {
        if (rest[0] == '/') {
            return {kLeaves, ""};
        }
        const std::string name = TakeFirst(rest);
        if (name == "..") {
            if (done.empty()) {
                return {kLeaves, ""};
            }
            done = Parent(done);
        } else if (name != ".") {
            const std::string here = Join(done, name);
            const Entry* const entry = Find(here);
            if (entry == nullptr || !S_ISLNK(entry->mode)) {
                done = here;
            } else if (++links > kMostLinks) {
                return {kCircle, ""};
            } else {
                rest = Join(entry->link_text, rest);
            }
        }
    }
    return {kInside, done};
}
