#include "player/PlayStepButtons.h"

#include "player/PlayTime.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

PlayStepButtons::PlayStepButtons(const std::array<Options::PlayStep, 6>& steps, QWidget* parent)
    : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2);
    for (int i = 0; i < 6; ++i) {
        const QString label = PlayTime::StepLabel(steps[size_t(i)]);
        auto* text = new QLabel(label, this);
        text->setObjectName(QStringLiteral("lblStepSize%1").arg(i));
        text->setAlignment(Qt::AlignCenter);
        auto* back = new QToolButton(this);
        back->setObjectName(QStringLiteral("btnReverse%1").arg(i));
        back->setIcon(style()->standardIcon(QStyle::SP_MediaSeekBackward));
        back->setToolTip(tr("Rewind ") + label);
        auto* forward = new QToolButton(this);
        forward->setObjectName(QStringLiteral("btnForward%1").arg(i));
        forward->setIcon(style()->standardIcon(QStyle::SP_MediaSeekForward));
        forward->setToolTip(tr("Fast Forward ") + label);
        grid->addWidget(text, 0, 2 * i, 1, 2);
        grid->addWidget(back, 1, 2 * i);
        grid->addWidget(forward, 1, 2 * i + 1);
        connect(forward, &QToolButton::clicked, this, [this, i] { Q_EMIT Forward(i); });
        connect(back, &QToolButton::clicked, this, [this, i] { Q_EMIT Reverse(i); });
        btnForward[size_t(i)] = forward;
        btnReverse[size_t(i)] = back;
        lblStepSize[size_t(i)] = text;
    }
}
