// Asks an X display for a sign of life.
#include "platform/desktop/display-x11.h"

#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <xcb/xcb.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "malloc-ptr.h"

namespace {

constexpr int kPatience = 3000;  // milliseconds; a display across a slow link answers in less
constexpr int kFirstPort = 6000;

struct AddressesFreer {
    void operator()(addrinfo* addresses) const { freeaddrinfo(addresses); }
};

bool IsReady(int fd, short event) {
    pollfd waited = {fd, event, 0};
    return poll(&waited, 1, kPatience) == 1;
}

UniqueFd Connect(int family, const sockaddr* address, socklen_t length) {
    UniqueFd connection(socket(family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (connect(connection.get(), address, length) == 0 ||
        (errno == EINPROGRESS && IsReady(connection.get(), POLLOUT))) {
        return connection;
    }
    return UniqueFd();
}

// `mark` is the NUL of Linux's abstract names (unix(7)), or nothing.
UniqueFd ConnectLocally(const std::string& mark, int display) {
    const std::string path = mark + "/tmp/.X11-unix/X" + std::to_string(display);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.data(), path.size());
    const std::size_t length = offsetof(sockaddr_un, sun_path) + path.size();
    return Connect(AF_UNIX, reinterpret_cast<const sockaddr*>(&address),
                   static_cast<socklen_t>(length));
}

UniqueFd ConnectByTcp(const char* host, int display) {
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(host, std::to_string(kFirstPort + display).c_str(), &hints, &found) != 0) {
        return UniqueFd();
    }
    const std::unique_ptr<addrinfo, AddressesFreer> addresses(found);
    for (const addrinfo* address = found; address != nullptr; address = address->ai_next) {
        UniqueFd connection = Connect(address->ai_family, address->ai_addr, address->ai_addrlen);
        if (connection.valid()) {
            return connection;
        }
    }
    return UniqueFd();
}

UniqueFd ConnectTo(const char* host, int display) {
    if (*host != 0 && std::strcmp(host, "unix") != 0) {
        return ConnectByTcp(host, display);
    }
    UniqueFd connection = ConnectLocally(std::string(1, '\0'), display);
    return connection.valid() ? std::move(connection) : ConnectLocally("", display);
}

// Least significant byte first, protocol 11.0, and no authorization.
bool AnswersSetUp(int connection) {
    const char request[12] = {'l', 0, 11};
    return send(connection, request, sizeof request, MSG_NOSIGNAL) == sizeof request &&
           IsReady(connection, POLLIN);
}

}  // namespace

bool DisplayAnswers(UniqueFd& connection) {
    char* parsed = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &parsed, &display, &screen) == 0) {
        return true;
    }
    const MallocPtr<char> host(parsed);
    connection = ConnectTo(host.get(), display);
    return connection.valid() && AnswersSetUp(connection.get());
}
