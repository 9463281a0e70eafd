#pragma once

#include <QString>

// The two player panels as the choice of player opens them. Opening a panel closes the one
// of its kind that is still open, hands the new one the file, the recording's start time
// (an automation date, for the clock display) and its title, marks the application as
// playing and shows the panel without making it modal.
class PlayerPanels {
public:
    virtual ~PlayerPanels() = default;
    virtual void OpenEnhanced(const QString& file, const QString& title, double startTime) = 0;
    virtual void OpenClassic(const QString& file, const QString& title, double startTime) = 0;
};
