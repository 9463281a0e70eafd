#pragma once

#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <cstring>
#include <list>
#include <optional>
#include <xcb/xcb.h>

// An X display of the test's own (Xvfb on a free number, DISPLAY pointing at it while the
// object lives), optionally under a window manager, and titled windows on it made by the
// small test window program.
class XDisplay {
public:
    explicit XDisplay(bool withWindowManager)
    {
        if (qEnvironmentVariableIsSet("DISPLAY"))
            m_saved = qgetenv("DISPLAY");
        // Xvfb takes a free display number itself and writes it once it takes connections:
        // the socket's file alone appears before that.
        m_server.start("Xvfb",
                       {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
        if (!m_server.waitForStarted(3000))
            return;
        while (!m_server.canReadLine())
            if (!m_server.waitForReadyRead(10000))
                return;
        const QByteArray number = m_server.readLine().trimmed();
        m_running = !number.isEmpty();
        if (m_running)
            qputenv("DISPLAY", ":" + number);
        if (m_running && withWindowManager)
            m_running = StartWindowManager();
    }

    ~XDisplay()
    {
        for (QProcess& window : m_windows)
            EndProcess(window);
        EndProcess(m_windowManager);
        EndProcess(m_server);
        if (m_saved)
            qputenv("DISPLAY", *m_saved);
        else
            qunsetenv("DISPLAY");
    }

    bool Running() const { return m_running; }

#ifdef TESTWINDOW_PATH
    // A window with the title, mapped when this returns; null when it couldn't be made.
    QProcess* OpenWindow(const QString& title, bool refuseToClose = false)
    {
        QProcess& window = m_windows.emplace_back();
        QStringList args{title};
        if (refuseToClose)
            args << "--refuse";
        window.start(TESTWINDOW_PATH, args);
        if (!window.waitForStarted(3000))
            return nullptr;
        while (!window.canReadLine())
            if (!window.waitForReadyRead(5000))
                return nullptr;
        if (window.readLine().trimmed() != "ready")
            return nullptr;
        // The window manager's part (frame, state) follows the map.
        QTest::qWait(m_windowManager.state() == QProcess::Running ? 300 : 50);
        return &window;
    }
#endif

    // Whether the window's program has closed it (it exits when it does), within a moment.
    static bool Closed(QProcess* window, int waitMs = 1500)
    {
        return window->state() == QProcess::NotRunning || window->waitForFinished(waitMs);
    }

private:
    bool StartWindowManager()
    {
        QStringList args{"--sm-disable"};
        if (QFile::exists("/etc/xdg/openbox/rc.xml"))
            args << "--config-file"
                 << "/etc/xdg/openbox/rc.xml";
        // Its themes are the system's: a test's private desktop folders would hide them, and
        // without a theme it announces itself and then quits.
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name :
             {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
            env.remove(name);
        m_windowManager.setProcessEnvironment(env);
        m_windowManager.start("openbox", args);
        if (!m_windowManager.waitForStarted(3000))
            return false;
        // Running once it announces itself on the root window and is still there a moment
        // later.
        for (int i = 0; i < 100; ++i) {
            if (WindowManagerAnnounced()) {
                QTest::qWait(300);
                return m_windowManager.state() == QProcess::Running;
            }
            QTest::qWait(50);
        }
        return false;
    }

    static bool WindowManagerAnnounced()
    {
        xcb_connection_t* c = xcb_connect(nullptr, nullptr);
        bool found = false;
        if (!xcb_connection_has_error(c)) {
            const char* name = "_NET_SUPPORTING_WM_CHECK";
            xcb_intern_atom_reply_t* atom = xcb_intern_atom_reply(
                c, xcb_intern_atom(c, 1, uint16_t(strlen(name)), name), nullptr);
            if (atom && atom->atom != XCB_ATOM_NONE) {
                const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
                xcb_get_property_reply_t* p = xcb_get_property_reply(
                    c, xcb_get_property(c, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr);
                found = p && xcb_get_property_value_length(p) == 4;
                free(p);
            }
            free(atom);
        }
        xcb_disconnect(c);
        return found;
    }

    QProcess m_server;
    QProcess m_windowManager;
    std::list<QProcess> m_windows;
    std::optional<QByteArray> m_saved;
    bool m_running = false;
};
