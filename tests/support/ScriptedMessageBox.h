#pragma once

#include "common/MessageBox.h"

#include <QList>

// Answers message boxes from a script and keeps what was asked.
class ScriptedMessageBox : public MessageBoxPresenter {
public:
    struct Asked {
        QString title;
        QString text;
        MsgIcon icon;
        MsgButtons buttons;
        // False for a box put on screen without waiting for an answer.
        bool waited = true;
    };

    MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                   MsgButtons buttons) override
    {
        asked.append({title, text, icon, buttons});
        if (!answers.isEmpty())
            return answers.takeFirst();
        return buttons == MsgButtons::Ok ? MsgResult::Ok : MsgResult::No;
    }
    void ShowWithoutWaiting(const QString& title, const QString& text, MsgIcon icon) override
    {
        asked.append({title, text, icon, MsgButtons::Ok, false});
    }

    // Answers in order; with none left, Ok for an Ok box and No for any other.
    QList<MsgResult> answers;
    QList<Asked> asked;
};
