#include "support/XWindows.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace vexel::testing {

namespace {

template <typename Reply> using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply> Owned<Reply> own(Reply* reply)
{
    return Owned<Reply>(reply, &std::free);
}

} // namespace

XDisplay::XDisplay()
{
    int screen = 0;
    m_connection = ::xcb_connect(nullptr, &screen);
    if (::xcb_connection_has_error(m_connection) != 0)
        return;
    auto roots = ::xcb_setup_roots_iterator(::xcb_get_setup(m_connection));
    for (int i = 0; i < screen; ++i)
        ::xcb_screen_next(&roots);
    m_root = roots.data->root;
}

XDisplay::~XDisplay()
{
    ::xcb_disconnect(m_connection);
}

bool XDisplay::connected() const
{
    return m_root != 0;
}

uint32_t XDisplay::atom(const char* name)
{
    const auto reply = own(::xcb_intern_atom_reply(
        m_connection, ::xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(name)), name), nullptr));
    return reply ? reply->atom : static_cast<uint32_t>(XCB_ATOM_NONE);
}

std::vector<uint8_t> XDisplay::propertyOf(uint32_t window, uint32_t property, uint32_t type)
{
    const auto reply = own(::xcb_get_property_reply(
        m_connection, ::xcb_get_property(m_connection, 0, window, property, type, 0, 1024), nullptr));
    if (!reply)
        return {};
    const auto* bytes = static_cast<const uint8_t*>(::xcb_get_property_value(reply.get()));
    return {bytes, bytes + ::xcb_get_property_value_length(reply.get())};
}

std::vector<uint32_t> XDisplay::windowsOf(pid_t pid, const std::string& title)
{
    std::vector<uint32_t> found;
    if (!connected())
        return found;
    const auto tree = own(::xcb_query_tree_reply(m_connection, ::xcb_query_tree(m_connection, m_root), nullptr));
    if (!tree)
        return found;
    const uint32_t pidAtom = atom("_NET_WM_PID");
    const uint32_t nameAtom = atom("_NET_WM_NAME");
    const uint32_t utf8 = atom("UTF8_STRING");
    const auto* children = ::xcb_query_tree_children(tree.get());
    for (int i = 0; i < ::xcb_query_tree_children_length(tree.get()); ++i) {
        const uint32_t window = children[i];
        const auto owner = propertyOf(window, pidAtom, XCB_ATOM_CARDINAL);
        uint32_t ownerPid = 0;
        if (owner.size() != sizeof ownerPid)
            continue;
        std::memcpy(&ownerPid, owner.data(), sizeof ownerPid);
        const auto name = propertyOf(window, nameAtom, utf8);
        if (static_cast<pid_t>(ownerPid) == pid && std::string(name.begin(), name.end()) == title)
            found.push_back(window);
    }
    std::ranges::stable_partition(found, [this](uint32_t window) { return mapped(window); });
    return found;
}

bool XDisplay::mapped(uint32_t window)
{
    const auto reply = own(
        ::xcb_get_window_attributes_reply(m_connection, ::xcb_get_window_attributes(m_connection, window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

std::string XDisplay::windowClass(uint32_t window)
{
    const auto value = propertyOf(window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING);
    const std::string both(value.begin(), value.end()); // "instance\0Class\0"
    const auto split = both.find('\0');
    if (split == std::string::npos)
        return {};
    return std::string(both.c_str() + split + 1);
}

bool XDisplay::hasIcon(uint32_t window)
{
    return !propertyOf(window, atom("_NET_WM_ICON"), XCB_ATOM_CARDINAL).empty();
}

bool XDisplay::shows(pid_t pid, const std::string& title)
{
    const auto windows = windowsOf(pid, title);
    return !windows.empty() && mapped(windows.front());
}

void XDisplay::close(uint32_t window)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom("WM_PROTOCOLS");
    event.data.data32[0] = atom("WM_DELETE_WINDOW");
    event.data.data32[1] = XCB_CURRENT_TIME;
    ::xcb_send_event(m_connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    ::xcb_flush(m_connection);
}

} // namespace vexel::testing
