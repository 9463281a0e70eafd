#pragma once

#include <QString>

// Every modal message box of the system goes through this interface, so that tests can
// answer it and read what was asked.
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgResult { Ok, Cancel, Yes, No };

class MessageBoxPresenter {
public:
    virtual ~MessageBoxPresenter() = default;
    virtual MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                           MsgButtons buttons) = 0;
};
