#pragma once

#include "common/MessageBox.h"

// Message boxes on screen, modal to the application.
class WidgetMessageBox : public MessageBoxPresenter {
public:
    MsgResult Show(const QString& title, const QString& text, MsgIcon icon,
                   MsgButtons buttons) override;
};
