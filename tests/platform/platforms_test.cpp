// The platforms that a start tries, for each kind of session.
#include "platform/desktop/platforms.h"

#include "tests/support.h"

TEST(PlatformsToTry, ForEachKindOfSession) {
    const Rows<Text, Text, Text, Text> cases = {
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
    for (const auto& [wanted, display, wayland, platforms] : cases) {
        QProcessEnvironment environment;
        environment.insert("QT_QPA_PLATFORM", wanted);
        environment.insert("DISPLAY", display);
        environment.insert("WAYLAND_DISPLAY", wayland);
        EXPECT_EQ(PlatformsToTry(environment).join(';'), platforms) << wanted << display << wayland;
    }
}
