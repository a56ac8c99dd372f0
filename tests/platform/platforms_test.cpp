// The platforms that a start tries, for each kind of session.
#include "platform/desktop/platforms.h"

#include <gtest/gtest.h>

TEST(PlatformsToTry, ForEachKindOfSession) {
    const struct {
        const char* wanted;  // $QT_QPA_PLATFORM
        const char* display;
        const char* wayland;
        const char* platforms;
    } cases[] = {
        {"", "", "", "offscreen"},
        {"", ":0", "", "xcb;offscreen"},
        {"", "", "wayland-0", "wayland;offscreen"},
        {"", ":0", "wayland-0", "xcb;wayland;offscreen"},
        {"wayland", ":0", "wayland-0", "wayland;xcb;offscreen"},
        {"wayland-egl;xcb", ":0", "", "wayland-egl;xcb;offscreen"},
        {"wayland", "", "", "wayland;offscreen"},
        {"xcb:option", "", "", "offscreen"},
        {"xcb:option", ":0", "", "xcb:option;offscreen"},
        {"offscreen", ":0", "wayland-0", "offscreen"},
        {"minimal;offscreen", "", "", "minimal;offscreen"},
    };
    for (const auto& row : cases) {
        QProcessEnvironment environment;
        environment.insert("QT_QPA_PLATFORM", row.wanted);
        environment.insert("DISPLAY", row.display);
        environment.insert("WAYLAND_DISPLAY", row.wayland);
        EXPECT_EQ(PlatformsToTry(environment).join(';'), row.platforms) << row.wanted << row.display << row.wayland;
    }
}
