#pragma once

#include <QString>

// The picture lists of the tray icon, and how many pictures each holds.
enum class SysTrayList { General, Record, RecordAndPlay, Convert, ConvertAndPlay, Pause };

// One picture of the tray icon: a list and a place in it, counted from 1. Pictures are
// compared by these two and nothing else, so that the manager knows what is on show without
// asking the platform.
struct SysTrayPicture {
    SysTrayList list = SysTrayList::General;
    int index = 1;

    // The places of the four pictures of the general list.
    static constexpr int Normal = 1;
    static constexpr int Error = 2;
    static constexpr int Play = 3;
    static constexpr int Suspended = 4;

    static constexpr int Count(SysTrayList list)
    {
        switch (list) {
        case SysTrayList::Record:
        case SysTrayList::RecordAndPlay:
            return 16;
        case SysTrayList::Convert:
        case SysTrayList::ConvertAndPlay:
            return 5;
        case SysTrayList::General:
        case SysTrayList::Pause:
            break;
        }
        return 4;
    }
    bool operator==(const SysTrayPicture&) const = default;
};

// The one icon of the program in the desktop's notification area. Every operation answers
// with a status instead of failing: the program goes on without an icon when there is no
// place for one. What the user does with the icon (double click, context menu) goes to
// whoever made the implementation.
class cSysTray {
public:
    enum Status : int {
        Done = 0,
        AlreadyActive = 1,
        // Delete of an icon that is not shown.
        NotActiveToDelete = 2,
        // A change of an icon that is not shown.
        NotActive = 3,
        Refused = 4,
    };

    virtual ~cSysTray() = default;

    // Puts the icon in; with hideForm the owner's window is hidden first.
    virtual int Activate(const SysTrayPicture& picture, const QString& tip, bool hideForm) = 0;
    // An empty tip keeps the tip on show.
    virtual int ChangeSystemTrayIcon(const SysTrayPicture& picture, const QString& tip) = 0;
    virtual int ChangeSystemTrayTip(const QString& tip) = 0;
    virtual int Delete() = 0;

    // What the notification area shows of a tip: at most 63 characters.
    static QString CutTip(const QString& tip) { return tip.left(63); }
};
