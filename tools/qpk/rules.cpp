// What the launcher could not install, or could not remove again.
#include "tools/qpk/rules.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "tools/qpk/layout.h"
#include "tools/qpk/links.h"
#include "ustring/ustring.h"

namespace {

constexpr std::size_t kLongestName = 255;  // NAME_MAX of every file system in use
// PATH_MAX is 1024 on Mac OS X; the rest is for <home>/.Quillmere/Quillmere.app_tmp9/.
constexpr std::size_t kLongestPath = 900;
constexpr std::size_t kLongestLinkText = 1023;  // what the launcher's file layer reads

std::vector<std::string> Components(const std::string& path) {
    std::vector<std::string> components;
    std::istringstream stream(path);
    for (std::string component; std::getline(stream, component, '/');) {
        components.push_back(component);
    }
    return components;
}

class Rules {
  public:
    explicit Rules(const Entries& entries) : entries_(entries), links_(entries) {}

    Findings Apply() {
        for (const Entry& entry : entries_) {
            Name(entry);
            Kind(entry);
            Collision(entry.path);
        }
        Executable();
        if (links_.Find(layout::kInfo) == nullptr) {
            Add(layout::kInfo, "is missing: every start of the launcher would be an upgrade");
        }
        return std::move(findings_);
    }

  private:
    void Add(const std::string& path, const std::string& text) {
        findings_.push_back({path.empty() ? "." : path, text});
    }

    void Name(const Entry& entry) {
        const std::vector<std::string> components = Components(entry.path);
        if (!entry.path.empty() && entry.path[0] == '/') {
            Add(entry.path, "absolute path: would be installed elsewhere than it says");
        }
        if (std::find(components.begin(), components.end(), "..") != components.end()) {
            Add(entry.path, "has \"..\" in its path: would never install");
        }
        if (!ustring::is_valid(entry.path)) {
            Add(entry.path, "name is not UTF-8: no upgrade could remove the installed copy");
        }
        const bool long_name =
            std::any_of(components.begin(), components.end(),
                        [](const std::string& name) { return name.size() > kLongestName; });
        if (long_name || entry.path.size() > kLongestPath) {
            Add(entry.path, "name is longer than " + std::to_string(kLongestName) +
                                " bytes or path longer than " + std::to_string(kLongestPath) +
                                ": would not install under every home");
        }
    }

    void Kind(const Entry& entry) {
        if (!entry.hard_link.empty()) {
            Add(entry.path, "hard link to " + entry.hard_link +
                                ": would never install; make it a copy or a symbolic link");
        } else if (S_ISLNK(entry.mode)) {
            Link(entry);
        } else if (S_ISDIR(entry.mode)) {
            if ((entry.mode & S_IRWXU) != S_IRWXU) {
                Add(entry.path,
                    "directory that its owner cannot read, write and search: every upgrade would "
                    "leave its old copy behind, and after ten none is possible");
            }
        } else if (!S_ISREG(entry.mode)) {
            Add(entry.path, "is no file, directory or symbolic link: would not install");
        } else if ((entry.mode & (S_ISUID | S_ISGID)) != 0) {
            Add(entry.path, "set-user-id or set-group-id bit: would be lost when it is installed");
        }
    }

    void Link(const Entry& entry) {
        if (entry.link_text.empty() || entry.link_text.size() > kLongestLinkText) {
            Add(entry.path, "link text is empty or longer than " +
                                std::to_string(kLongestLinkText) + " bytes: would not install");
            return;
        }
        switch (links_.Follow(entry).outcome) {
            case Links::kLeaves:
                Add(entry.path, "link to " + entry.link_text +
                                    " leaves the client: would lead to whatever a user has there");
                break;
            case Links::kCircle:
                Add(entry.path,
                    "link to " + entry.link_text + " goes in a circle: would lead nowhere");
                break;
            case Links::kInside:
                break;
        }
    }

    // Each directory is a set of names without case and in one normal form, as other file systems
    // see them: Unicode Standard, D145 canonical caseless match. Parents that have no entry of
    // their own count as well.
    void Collision(const std::string& path) {
        if (!entries_seen_.insert(path).second) {
            Add(path, "comes twice: the later one would replace the former");
        }
        for (std::size_t end = path.find('/');; end = path.find('/', end + 1)) {
            if (seen_.insert(path.substr(0, end)).second) {
                Collide(path.substr(0, end));
            }
            if (end == std::string::npos) {
                return;
            }
        }
    }

    void Collide(const std::string& path) {
        const std::size_t slash = path.rfind('/');
        const std::size_t name = slash == std::string::npos ? 0 : slash + 1;
        const auto inserted =
            names_.emplace(path.substr(0, name) + Folded(path.substr(name)), path);
        if (!inserted.second) {
            Add(path, "differs from " + inserted.first->second +
                          " only by case or Unicode normal form: where these do not count, one "
                          "would replace the other");
        }
    }

    static std::string Folded(const std::string& name) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::Normalizer2* const nfd = icu::Normalizer2::getNFDInstance(status);
        icu::UnicodeString text = nfd->normalize(icu::UnicodeString::fromUTF8(name), status);
        text = nfd->normalize(text.foldCase(), status);
        std::string folded;
        return text.toUTF8String(folded);
    }

    void Executable() {
        const Links::Target target = links_.Follow(layout::kExecutable);
        const Entry* const entry =
            target.outcome == Links::kInside ? links_.Find(target.path) : nullptr;
        if (entry == nullptr) {
            Add(layout::kExecutable,
                "is missing: every start would install the copy anew, and open nothing");
        } else if (!S_ISREG(entry->mode) || (entry->mode & S_IXUSR) == 0) {
            Add(layout::kExecutable, "is no executable file: would be installed and never open");
        }
    }

    const Entries& entries_;
    const Links links_;
    Findings findings_;
    std::map<std::string, std::string> names_;  // parent and folded name -> path
    std::set<std::string> entries_seen_;
    std::set<std::string> seen_;  // the entries' paths and all their parents
};

}  // namespace

Findings FaultsOf(const Entries& entries) {
    return Rules(entries).Apply();
}
