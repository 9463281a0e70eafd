#pragma once

#include "player/PlayerPanels.h"

#include <memory>

class EventLog;
class Mixer;
class Options;
class QWidget;
class clsAppStatus;
class frmPlayPanel;
class frmPlayPanelMP;

// The player panels of the main window: at most one of each kind, each replaced by the
// next play of its kind. It also keeps the enhanced panel's volume for the whole run.
class PlayPanels : public PlayerPanels {
public:
    PlayPanels(EventLog& log, const Options& options, clsAppStatus& appStatus, Mixer& mixer,
               QWidget* mainForm);
    ~PlayPanels() override;

    void OpenEnhanced(const QString& file, const QString& title, double startTime) override;
    void OpenClassic(const QString& file, const QString& title, double startTime) override;

    frmPlayPanelMP* Enhanced() { return m_enhanced.get(); }
    frmPlayPanel* Classic() { return m_classic.get(); }

private:
    EventLog& m_log;
    const Options& m_options;
    clsAppStatus& m_appStatus;
    Mixer& m_mixer;
    QWidget* m_mainForm;
    // In hundredths of a decibel; not stored in the settings.
    int m_volume = 0;
    std::unique_ptr<frmPlayPanelMP> m_enhanced;
    std::unique_ptr<frmPlayPanel> m_classic;
};
