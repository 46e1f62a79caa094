#pragma once

// The top-level windows of a program on the test's X display, seen and
// handled as a window manager would: whether each is on screen, and the
// close button (WM_DELETE_WINDOW). There is no window manager in the test's
// session, so the top-level windows are the root window's children.

#include <cstdint>
#include <string>
#include <sys/types.h>
#include <vector>

struct xcb_connection_t;

namespace vexel::testing {

class XDisplay {
public:
    // Connects to $DISPLAY; connected() says whether that worked.
    XDisplay();
    ~XDisplay();
    XDisplay(const XDisplay&) = delete;
    XDisplay& operator=(const XDisplay&) = delete;

    [[nodiscard]] bool connected() const;

    // The windows of process `pid` titled `title` exactly, the mapped first.
    [[nodiscard]] std::vector<uint32_t> windowsOf(pid_t pid, const std::string& title);
    // Whether the window is mapped on the screen (minimised ones stay mapped
    // without a window manager; hidden ones are unmapped).
    [[nodiscard]] bool mapped(uint32_t window);
    // Whether `pid` has a window titled `title` on the screen.
    [[nodiscard]] bool shows(pid_t pid, const std::string& title);
    // The class half of WM_CLASS, which a desktop entry's StartupWMClass names.
    [[nodiscard]] std::string windowClass(uint32_t window);
    // Whether the window carries its own icon (_NET_WM_ICON) for taskbars.
    [[nodiscard]] bool hasIcon(uint32_t window);
    // Asks the window to close, as a window manager's close button does.
    void close(uint32_t window);

private:
    [[nodiscard]] uint32_t atom(const char* name);
    [[nodiscard]] std::vector<uint8_t> propertyOf(uint32_t window, uint32_t property, uint32_t type);

    xcb_connection_t* m_connection = nullptr;
    uint32_t m_root = 0;
};

} // namespace vexel::testing
