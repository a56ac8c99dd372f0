// Rules for clients that the launcher can install and remove.
#include "tools/qpk/rules.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "install-layout.h"
#include "tools/qpk/links.h"
#include "tools/qpk/message.h"
#include "ustring/ustring.h"

namespace {

constexpr std::size_t kLongestName = 255;  // NAME_MAX; kTooLong has both limits
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
            Add(layout::kInfo, Message::kInfoMissing);
        }
        return std::move(findings_);
    }

  private:
    void Add(const std::string& path, Message message,
             std::initializer_list<std::string> values = {}) {
        findings_.emplace_back(path.empty() ? "." : path, message, values);
    }

    void Name(const Entry& entry) {
        const std::vector<std::string> components = Components(entry.path);
        if (!entry.path.empty() && entry.path[0] == '/') {
            Add(entry.path, Message::kAbsolutePath);
        }
        if (std::find(components.begin(), components.end(), "..") != components.end()) {
            Add(entry.path, Message::kParentInPath);
        }
        if (!ustring::is_valid(entry.path)) {
            Add(entry.path, Message::kNotUtf8);
        }
        const bool long_name =
            std::any_of(components.begin(), components.end(),
                        [](const std::string& name) { return name.size() > kLongestName; });
        if (long_name || entry.path.size() > kLongestPath) {
            Add(entry.path, Message::kTooLong);
        }
    }

    void Kind(const Entry& entry) {
        if (!entry.hard_link.empty()) {
            Add(entry.path, Message::kHardLink, {entry.hard_link});
        } else if (S_ISLNK(entry.mode)) {
            Link(entry);
        } else if (S_ISDIR(entry.mode)) {
            if ((entry.mode & S_IRWXU) != S_IRWXU) {
                Add(entry.path, Message::kDirectoryMode);
            }
        } else if (!S_ISREG(entry.mode)) {
            Add(entry.path, Message::kSpecialFile);
        } else if ((entry.mode & (S_ISUID | S_ISGID)) != 0) {
            Add(entry.path, Message::kSetId);
        }
    }

    void Link(const Entry& entry) {
        if (entry.link_text.empty() || entry.link_text.size() > kLongestLinkText) {
            Add(entry.path, Message::kLinkText);
            return;
        }
        switch (links_.Follow(entry).outcome) {
            case Links::kLeaves:
                Add(entry.path, Message::kLinkLeaves, {entry.link_text});
                break;
            case Links::kCircle:
                Add(entry.path, Message::kLinkLoop, {entry.link_text});
                break;
            case Links::kInside:
                break;
        }
    }

    // The names in each directory, folded as other file systems compare them: Unicode Standard,
    // D145 canonical caseless match. Includes parents without an entry.
    void Collision(const std::string& path) {
        if (!entries_seen_.insert(path).second) {
            Add(path, Message::kTwice);
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
            Add(path, Message::kCollision, {inserted.first->second});
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
            Add(layout::kExecutable, Message::kExecutableMissing);
        } else if (!S_ISREG(entry->mode) || (entry->mode & S_IXUSR) == 0) {
            Add(layout::kExecutable, Message::kNotExecutable);
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
