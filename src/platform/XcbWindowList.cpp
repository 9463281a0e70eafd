#include "platform/XcbWindowList.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>
#include <xcb/xcb_icccm.h>

namespace {

struct FreeDeleter {
    void operator()(void* p) const { std::free(p); }
};
template <typename T> using XcbReply = std::unique_ptr<T, FreeDeleter>;

// A connection to the display of DISPLAY with the desktop's atoms, for one request of the
// program. Without a display (or its atoms) it is not Usable and every step is skipped.
class XcbSession {
public:
    XcbSession()
    {
        m_c = xcb_connect(nullptr, &m_screen);
        if (xcb_connection_has_error(m_c))
            return;
        xcb_intern_atom_cookie_t* cookies = xcb_ewmh_init_atoms(m_c, &m_ewmh);
        m_hasEwmh = xcb_ewmh_init_atoms_replies(&m_ewmh, cookies, nullptr);
        if (!m_hasEwmh)
            return;
        xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(m_c));
        for (int i = 0; i < m_screen && it.rem; ++i)
            xcb_screen_next(&it);
        if (!it.rem)
            return;
        m_root = it.data->root;
        m_wmState = Atom("WM_STATE");
        m_deleteWindow = Atom("WM_DELETE_WINDOW");
        m_usable = m_wmState != XCB_ATOM_NONE;
        m_managed = FindWindowManager();
    }
    ~XcbSession()
    {
        if (m_hasEwmh)
            xcb_ewmh_connection_wipe(&m_ewmh);
        xcb_disconnect(m_c);
    }
    XcbSession(const XcbSession&) = delete;
    XcbSession& operator=(const XcbSession&) = delete;

    bool Usable() const { return m_usable; }

    // The clients of the window manager; without one, the root's children.
    QList<xcb_window_t> Candidates()
    {
        QList<xcb_window_t> windows;
        xcb_ewmh_get_windows_reply_t list;
        if (m_managed &&
            xcb_ewmh_get_client_list_reply(&m_ewmh, xcb_ewmh_get_client_list(&m_ewmh, m_screen),
                                           &list, nullptr)) {
            for (uint32_t i = 0; i < list.windows_len; ++i)
                windows.append(list.windows[i]);
            xcb_ewmh_get_windows_reply_wipe(&list);
            return windows;
        }
        XcbReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_c, xcb_query_tree(m_c, m_root), nullptr));
        if (!tree)
            return windows;
        const xcb_window_t* children = xcb_query_tree_children(tree.get());
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
            windows.append(children[i]);
        return windows;
    }

    // False for a window that has gone, and for pop-ups that no window manager handles.
    bool Read(xcb_window_t window, TopLevelWindow& out)
    {
        XcbReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(m_c, xcb_get_window_attributes(m_c, window), nullptr));
        if (!attributes || attributes->override_redirect)
            return false;
        out.handle = window;
        out.visible = Visible(window, attributes->map_state);
        xcb_window_t owner = XCB_NONE;
        out.hasOwner = xcb_icccm_get_wm_transient_for_reply(
                           m_c, xcb_icccm_get_wm_transient_for(m_c, window), &owner, nullptr) &&
                       owner != XCB_NONE;
        out.title = IsDesktop(window) ? QStringLiteral("Program Manager") : Title(window);
        return true;
    }

    void RequestClose(xcb_window_t window)
    {
        // A window that doesn't take the request could only be killed; it is left alone.
        if (!TakesDeleteWindow(window))
            return;
        if (m_managed && Supports(m_ewmh._NET_CLOSE_WINDOW)) {
            xcb_ewmh_request_close_window(&m_ewmh, m_screen, window, XCB_CURRENT_TIME,
                                          XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
        } else {
            xcb_client_message_event_t event{};
            event.response_type = XCB_CLIENT_MESSAGE;
            event.format = 32;
            event.window = window;
            event.type = m_ewmh.WM_PROTOCOLS;
            event.data.data32[0] = m_deleteWindow;
            event.data.data32[1] = XCB_CURRENT_TIME;
            xcb_send_event(m_c, 0, window, XCB_EVENT_MASK_NO_EVENT,
                           reinterpret_cast<const char*>(&event));
        }
        Sync();
    }

    xcb_window_t Foreground()
    {
        xcb_window_t active = XCB_NONE;
        if (m_managed &&
            xcb_ewmh_get_active_window_reply(&m_ewmh, xcb_ewmh_get_active_window(&m_ewmh, m_screen),
                                             &active, nullptr))
            return active;
        XcbReply<xcb_get_input_focus_reply_t> focus(
            xcb_get_input_focus_reply(m_c, xcb_get_input_focus(m_c), nullptr));
        return focus ? focus->focus : XCB_NONE;
    }

    bool SetForeground(xcb_window_t window)
    {
        if (m_managed && Supports(m_ewmh._NET_ACTIVE_WINDOW)) {
            xcb_ewmh_request_change_active_window(&m_ewmh, m_screen, window,
                                                  XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
                                                  XCB_CURRENT_TIME, XCB_NONE);
            return Sync();
        }
        const uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(m_c, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        XcbReply<xcb_generic_error_t> error(
            xcb_request_check(m_c, xcb_set_input_focus_checked(m_c, XCB_INPUT_FOCUS_POINTER_ROOT,
                                                               window, XCB_CURRENT_TIME)));
        return !error;
    }

private:
    // Waits until the server has handled what was sent. The connection closes after each
    // request, and the server drops what it hasn't read yet from a client that has hung up,
    // so a request without a reply would otherwise be lost now and then.
    bool Sync()
    {
        XcbReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(m_c, xcb_get_input_focus(m_c), nullptr));
        return reply != nullptr;
    }

    xcb_atom_t Atom(const char* name)
    {
        XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
            m_c, xcb_intern_atom(m_c, 0, uint16_t(std::strlen(name)), name), nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

    // A window manager announces itself on the root and on a window of its own.
    bool FindWindowManager()
    {
        xcb_window_t check = XCB_NONE;
        if (!xcb_ewmh_get_supporting_wm_check_reply(
                &m_ewmh, xcb_ewmh_get_supporting_wm_check(&m_ewmh, m_root), &check, nullptr))
            return false;
        xcb_window_t self = XCB_NONE;
        return xcb_ewmh_get_supporting_wm_check_reply(
                   &m_ewmh, xcb_ewmh_get_supporting_wm_check(&m_ewmh, check), &self, nullptr) &&
               self == check;
    }

    bool Supports(xcb_atom_t atom)
    {
        xcb_ewmh_get_atoms_reply_t supported;
        if (!xcb_ewmh_get_supported_reply(&m_ewmh, xcb_ewmh_get_supported(&m_ewmh, m_screen),
                                          &supported, nullptr))
            return false;
        bool found = false;
        for (uint32_t i = 0; i < supported.atoms_len; ++i)
            found = found || supported.atoms[i] == atom;
        xcb_ewmh_get_atoms_reply_wipe(&supported);
        return found;
    }

    // Shown or minimised as the window manager keeps it; without one, mapped.
    bool Visible(xcb_window_t window, uint8_t mapState)
    {
        XcbReply<xcb_get_property_reply_t> state(xcb_get_property_reply(
            m_c, xcb_get_property(m_c, 0, window, m_wmState, m_wmState, 0, 2), nullptr));
        if (state && xcb_get_property_value_length(state.get()) >= 4) {
            const uint32_t value =
                *static_cast<const uint32_t*>(xcb_get_property_value(state.get()));
            return value == XCB_ICCCM_WM_STATE_NORMAL || value == XCB_ICCCM_WM_STATE_ICONIC;
        }
        return mapState == XCB_MAP_STATE_VIEWABLE;
    }

    bool IsDesktop(xcb_window_t window)
    {
        xcb_ewmh_get_atoms_reply_t types;
        if (!xcb_ewmh_get_wm_window_type_reply(
                &m_ewmh, xcb_ewmh_get_wm_window_type(&m_ewmh, window), &types, nullptr))
            return false;
        bool desktop = false;
        for (uint32_t i = 0; i < types.atoms_len; ++i)
            desktop = desktop || types.atoms[i] == m_ewmh._NET_WM_WINDOW_TYPE_DESKTOP;
        xcb_ewmh_get_atoms_reply_wipe(&types);
        return desktop;
    }

    QString Title(xcb_window_t window)
    {
        xcb_ewmh_get_utf8_strings_reply_t name;
        if (xcb_ewmh_get_wm_name_reply(&m_ewmh, xcb_ewmh_get_wm_name(&m_ewmh, window), &name,
                                       nullptr)) {
            const QString title = QString::fromUtf8(name.strings, int(name.strings_len));
            xcb_ewmh_get_utf8_strings_reply_wipe(&name);
            return title;
        }
        xcb_icccm_get_text_property_reply_t text;
        if (!xcb_icccm_get_wm_name_reply(m_c, xcb_icccm_get_wm_name(m_c, window), &text, nullptr))
            return QString();
        const QString title = text.encoding == XCB_ATOM_STRING
                                  ? QString::fromLatin1(text.name, int(text.name_len))
                                  : QString::fromUtf8(text.name, int(text.name_len));
        xcb_icccm_get_text_property_reply_wipe(&text);
        return title;
    }

    bool TakesDeleteWindow(xcb_window_t window)
    {
        xcb_icccm_get_wm_protocols_reply_t protocols;
        if (!xcb_icccm_get_wm_protocols_reply(
                m_c, xcb_icccm_get_wm_protocols(m_c, window, m_ewmh.WM_PROTOCOLS), &protocols,
                nullptr))
            return false;
        bool takes = false;
        for (uint32_t i = 0; i < protocols.atoms_len; ++i)
            takes = takes || protocols.atoms[i] == m_deleteWindow;
        xcb_icccm_get_wm_protocols_reply_wipe(&protocols);
        return takes;
    }

    xcb_connection_t* m_c = nullptr;
    int m_screen = 0;
    xcb_ewmh_connection_t m_ewmh{};
    bool m_hasEwmh = false;
    bool m_usable = false;
    bool m_managed = false;
    xcb_window_t m_root = XCB_NONE;
    xcb_atom_t m_wmState = XCB_ATOM_NONE;
    xcb_atom_t m_deleteWindow = XCB_ATOM_NONE;
};

} // namespace

QList<TopLevelWindow> XcbWindowList::TopLevelWindows()
{
    QList<TopLevelWindow> windows;
    XcbSession x;
    if (!x.Usable())
        return windows;
    for (xcb_window_t window : x.Candidates()) {
        TopLevelWindow read;
        if (x.Read(window, read))
            windows.append(read);
    }
    return windows;
}

void XcbWindowList::RequestClose(WindowHandle window)
{
    XcbSession x;
    if (x.Usable())
        x.RequestClose(window);
}

WindowHandle XcbWindowList::ForegroundWindow()
{
    XcbSession x;
    return x.Usable() ? x.Foreground() : XCB_NONE;
}

bool XcbWindowList::SetForegroundWindow(WindowHandle window)
{
    XcbSession x;
    return x.Usable() && x.SetForeground(window);
}
