#pragma once

#include "tray/cSysTray.h"

#include <QElapsedTimer>
#include <QList>
#include <QString>
#include <functional>
#include <memory>

// Every call that the tray manager makes of its icon, in order, with the moment it came.
struct SysTrayCalls {
    struct Call {
        QString op;
        SysTrayPicture picture;
        QString tip;
        qint64 ms = 0;
    };

    SysTrayCalls() { clock.start(); }
    int Count(const QString& op = {}) const
    {
        int n = 0;
        for (const Call& c : calls)
            n += op.isEmpty() || c.op == op;
        return n;
    }

    QList<Call> calls;
    QElapsedTimer clock;
    // Runs right after each call has gone through, as the test's look at that moment.
    std::function<void(const Call&)> onCall;
};

// The test's view of the tray: counts what is asked of the icon and passes it on to the real
// icon when there is one; without one it answers as an icon in a notification area would.
class CountingSysTray : public cSysTray {
public:
    explicit CountingSysTray(SysTrayCalls& calls, std::unique_ptr<cSysTray> inner = {})
        : m_calls(calls)
        , m_inner(std::move(inner))
    {
    }

    int Activate(const SysTrayPicture& picture, const QString& tip, bool hideForm) override
    {
        const int fallback = m_active ? AlreadyActive : Done;
        m_active = true;
        return Note("Activate", picture, tip,
                    m_inner ? m_inner->Activate(picture, tip, hideForm) : fallback);
    }
    int ChangeSystemTrayIcon(const SysTrayPicture& picture, const QString& tip) override
    {
        return Note("ChangeSystemTrayIcon", picture, tip,
                    m_inner ? m_inner->ChangeSystemTrayIcon(picture, tip)
                            : (m_active ? Done : NotActive));
    }
    int ChangeSystemTrayTip(const QString& tip) override
    {
        return Note("ChangeSystemTrayTip", {}, tip,
                    m_inner ? m_inner->ChangeSystemTrayTip(tip) : (m_active ? Done : NotActive));
    }
    int Delete() override
    {
        const int fallback = m_active ? Done : NotActiveToDelete;
        m_active = false;
        return Note("Delete", {}, {}, m_inner ? m_inner->Delete() : fallback);
    }

private:
    int Note(const char* op, const SysTrayPicture& picture, const QString& tip, int status)
    {
        m_calls.calls << SysTrayCalls::Call{QString::fromLatin1(op), picture, tip,
                                            m_calls.clock.elapsed()};
        if (m_calls.onCall)
            m_calls.onCall(m_calls.calls.last());
        return status;
    }

    SysTrayCalls& m_calls;
    std::unique_ptr<cSysTray> m_inner;
    bool m_active = false;
};
