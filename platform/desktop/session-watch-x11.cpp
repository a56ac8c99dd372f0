// Looks on while the main thread talks to the session.
#include <xcb/xcb.h>

#include <chrono>
#include <memory>
#include <system_error>
#include <utility>

#include "platform/desktop/session-watch.h"
#include "platform/desktop/start-over.h"

namespace {

using std::chrono::seconds;

constexpr seconds kAnswer(3);         // a display across a slow link answers in less
constexpr seconds kBuilding(10);      // and has much to say
constexpr seconds kAccessibility(3);  // the bus is on this machine

struct Disconnecter {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnecter>;

bool IsOverWithin(const std::future<void>& step, seconds limit) {
    return step.wait_for(limit) == std::future_status::ready;
}

bool Answers(const Connection& display) {
    return display != nullptr && xcb_connection_has_error(display.get()) == 0;
}

void Watch(bool wants_x11, std::promise<bool> answer, const std::future<void>& built,
           const std::future<void>& ended) {
    const Connection display(wants_x11 ? xcb_connect(nullptr, nullptr) : nullptr);
    answer.set_value(Answers(display));
    if (!IsOverWithin(built, kBuilding) || !IsOverWithin(ended, kAccessibility)) {
        StartOver(Without::kSession);
        StartOver(Without::kDisplay);
    }
}

}  // namespace

bool SessionWatch::Begin(bool wants_x11) {
    std::promise<bool> answer;
    std::future<bool> answers = answer.get_future();
    try {
        thread_ = std::thread(Watch, wants_x11, std::move(answer), built_.get_future(),
                              ended_.get_future());
    } catch (const std::system_error&) {
        return false;
    }
    if (answers.wait_for(kAnswer) != std::future_status::ready) {
        StartOver(Without::kDisplay);
        thread_.detach();
        return false;
    }
    return answers.get();
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
