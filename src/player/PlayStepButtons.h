#pragma once

#include "store/Options.h"

#include <QWidget>
#include <array>

class QLabel;
class QToolButton;

// The six steps back and forward of the players, one column per row of the step table:
// its label over a back and a forward button.
class PlayStepButtons : public QWidget {
    Q_OBJECT
public:
    PlayStepButtons(const std::array<Options::PlayStep, 6>& steps, QWidget* parent = nullptr);

    std::array<QToolButton*, 6> btnForward{};
    std::array<QToolButton*, 6> btnReverse{};
    std::array<QLabel*, 6> lblStepSize{};

Q_SIGNALS:
    void Forward(int index);
    void Reverse(int index);
};
