#pragma once

#include "common/MessageBox.h"

#include <optional>

// The message boxes of the recorder's core, seen from a caller on the bus. Outside a call
// every box goes on to the program's own presenter (a dialog, or the event log without a
// window). While a call is served nobody is at the screen to answer: the first warning or
// error becomes the call's refusal, and a question is answered Yes, because the call itself
// is the request the question confirms.
class CallMessageBox : public MessageBoxPresenter {
public:
    explicit CallMessageBox(MessageBoxPresenter& presenter);

    struct Refusal {
        QString title;
        QString text;
    };

    // Captures the boxes of one call for as long as it lives.
    class Capture {
    public:
        explicit Capture(CallMessageBox& box);
        ~Capture();
        Capture(const Capture&) = delete;
        Capture& operator=(const Capture&) = delete;
        const std::optional<Refusal>& Refused() const { return m_box.m_refusal; }

    private:
        CallMessageBox& m_box;
    };

    MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                   MsgButtons buttons) override;
    void ShowWithoutWaiting(const QString& title, const QString& text, MsgIcon icon) override;

private:
    MessageBoxPresenter& m_presenter;
    bool m_capturing = false;
    std::optional<Refusal> m_refusal;
};
