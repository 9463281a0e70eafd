#pragma once

#include <QCoreApplication>
#include <QLockFile>
#include <QString>
#include <optional>

class MessageBoxPresenter;

// One recorder per user, with a window or without: a lock in the runtime folder. The
// running instance's kind decides what a second start says.
class InstanceLock {
public:
    enum class Holder { None, Window, Headless };

    explicit InstanceLock(const QString& runtimeFolder);

    // Takes the lock and returns None, or says which kind of instance holds it.
    Holder TryLock();

    // Takes the lock for the window. When another instance holds it, the user is told and
    // the exit status given back: 1 beside a recorder without a window, which nothing may
    // run beside; 0 beside another window, unless a second one is allowed (the word "2").
    std::optional<int> RefuseWindowStart(bool allowSecondWindow, MessageBoxPresenter& messageBox);

    // What a start says when a recorder without a window runs, and what a second one says.
    static QString AlreadyRunningText()
    {
        return QCoreApplication::translate("InstanceLock", "Nightreel 2000 is already running.");
    }

private:
    QLockFile m_lock;

    Q_DECLARE_TR_FUNCTIONS(InstanceLock)
};
