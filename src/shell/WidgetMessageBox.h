#pragma once

#include "common/MessageBox.h"

// Message boxes on screen: modal to the application, or left open without waiting.
class WidgetMessageBox : public MessageBoxPresenter {
public:
    MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                   MsgButtons buttons) override;
    void ShowWithoutWaiting(const QString& title, const QString& text, MsgIcon icon) override;
};
