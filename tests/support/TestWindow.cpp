// A titled top-level X window for the tests of the streaming player: it closes when asked
// through WM_DELETE_WINDOW, or with --refuse stays open as a player that asks a question
// does. It prints "ready" once the window is mapped. Arguments after the title (a URL from
// a desktop handler) are ignored.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <xcb/xcb.h>

namespace {

xcb_atom_t Atom(xcb_connection_t* c, const char* name)
{
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, uint16_t(std::strlen(name)), name), nullptr);
    const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    std::free(reply);
    return atom;
}

} // namespace

int main(int argc, char* argv[])
{
    bool refuse = false;
    std::string title;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--refuse") == 0)
            refuse = true;
        else if (title.empty())
            title = argv[i];
    }
    xcb_connection_t* c = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(c))
        return 2;
    xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
    const xcb_window_t window = xcb_generate_id(c);
    const uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 200, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK,
                      &events);
    const xcb_atom_t utf8 = Atom(c, "UTF8_STRING");
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        uint32_t(title.size()), title.data());
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, Atom(c, "_NET_WM_NAME"), utf8, 8,
                        uint32_t(title.size()), title.data());
    const xcb_atom_t protocols = Atom(c, "WM_PROTOCOLS");
    const xcb_atom_t deleteWindow = Atom(c, "WM_DELETE_WINDOW");
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, protocols, XCB_ATOM_ATOM, 32, 1,
                        &deleteWindow);
    xcb_map_window(c, window);
    xcb_flush(c);

    while (xcb_generic_event_t* event = xcb_wait_for_event(c)) {
        const uint8_t type = event->response_type & 0x7f;
        if (type == XCB_MAP_NOTIFY) {
            std::printf("ready\n");
            std::fflush(stdout);
        } else if (type == XCB_CLIENT_MESSAGE) {
            const auto* message = reinterpret_cast<xcb_client_message_event_t*>(event);
            if (message->type == protocols && message->data.data32[0] == deleteWindow) {
                std::printf(refuse ? "refused\n" : "closed\n");
                std::fflush(stdout);
                if (!refuse) {
                    std::free(event);
                    break;
                }
            }
        }
        std::free(event);
    }
    xcb_disconnect(c);
    return 0;
}
