#pragma once

#include <QString>

// Every message box of the system goes through this interface, so that tests can answer it
// and read what was asked.
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgResult { Ok, Cancel, Yes, No };

class MessageBoxPresenter {
public:
    virtual ~MessageBoxPresenter() = default;
    // Modal: waits for the user's answer.
    virtual MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                           MsgButtons buttons) = 0;
    // Puts an Ok box on screen and returns at once; the user closes it when they come.
    virtual void ShowWithoutWaiting(const QString& title, const QString& text, MsgIcon icon) = 0;
};
