// Looks on while the main thread talks to the session.
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <system_error>
#include <utility>

#include "malloc-ptr.h"
#include "platform/desktop/session-watch.h"
#include "platform/desktop/start-over.h"

namespace {

using std::chrono::seconds;

constexpr seconds kAnswer(3);         // a display across a slow link answers in less
constexpr seconds kBuilding(10);      // and has much to say
constexpr seconds kAccessibility(3);  // the bus is on this machine

constexpr std::uint32_t kLongestResources = 1 << 18;  // in units of four bytes
const std::string kResolutionKey = "Xft.dpi:";

struct Disconnecter {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnecter>;

bool IsOverWithin(const std::future<void>& step, seconds limit) {
    return step.wait_for(limit) == std::future_status::ready;
}

// The first screen's. Qt looks at the same two places: X resources, and the screen's size.
double Resolution(xcb_connection_t* display) {
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
    const MallocPtr<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(display,
                               xcb_get_property(display, 0, screen->root, XCB_ATOM_RESOURCE_MANAGER,
                                                XCB_ATOM_STRING, 0, kLongestResources),
                               nullptr));
    std::string resources;
    if (reply != nullptr) {
        resources.assign(static_cast<const char*>(xcb_get_property_value(reply.get())),
                         static_cast<std::size_t>(xcb_get_property_value_length(reply.get())));
    }
    const std::size_t key = resources.find(kResolutionKey);
    if (key != std::string::npos) {
        return std::atof(resources.c_str() + key + kResolutionKey.size());
    }
    return 25.4 * screen->width_in_pixels / std::max<int>(screen->width_in_millimeters, 1);
}

SessionWatch::Display Ask(const Connection& connection) {
    SessionWatch::Display display;
    display.answers = connection != nullptr && xcb_connection_has_error(connection.get()) == 0;
    if (display.answers) {
        display.resolution = Resolution(connection.get());
    }
    return display;
}

void Watch(bool wants_x11, std::promise<SessionWatch::Display> answer,
           const std::future<void>& built, const std::future<void>& ended) {
    const Connection connection(wants_x11 ? xcb_connect(nullptr, nullptr) : nullptr);
    answer.set_value(Ask(connection));
    if (!IsOverWithin(built, kBuilding) || !IsOverWithin(ended, kAccessibility)) {
        StartOver(Without::kSession);
        StartOver(Without::kDisplay);
    }
}

}  // namespace

SessionWatch::Display SessionWatch::Begin(bool wants_x11) {
    std::promise<Display> promise;
    std::future<Display> answer = promise.get_future();
    try {
        thread_ = std::thread(Watch, wants_x11, std::move(promise), built_.get_future(),
                              ended_.get_future());
    } catch (const std::system_error&) {
        return Display();
    }
    if (answer.wait_for(kAnswer) != std::future_status::ready) {
        StartOver(Without::kDisplay);
        thread_.detach();
        return Display();
    }
    return answer.get();
}

void SessionWatch::ApplicationIsBuilt() {
    built_.set_value();
}

void SessionWatch::End() {
    if (thread_.joinable()) {
        ended_.set_value();
        thread_.join();
    }
}
