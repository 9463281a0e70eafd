#include "player/PlayPanels.h"

#include "common/clsAppStatus.h"
#include "player/frmPlayPanel.h"
#include "player/frmPlayPanelMP.h"

#include <QCoreApplication>
#include <QScopeGuard>

namespace {

// Closing the old panel ends its play (and clears Playing) before the new one begins.
template <typename Panel> void Unload(std::unique_ptr<Panel>& panel)
{
    if (panel)
        panel->close();
    panel.reset();
}

} // namespace

PlayPanels::PlayPanels(EventLog& log, const Options& options, clsAppStatus& appStatus, Mixer& mixer,
                       QWidget* mainForm)
    : m_log(log)
    , m_options(options)
    , m_appStatus(appStatus)
    , m_mixer(mixer)
    , m_mainForm(mainForm)
{
}

PlayPanels::~PlayPanels() = default;

void PlayPanels::OpenEnhanced(const QString& file, const QString& title, double startTime)
{
    Unload(m_enhanced);
    m_enhanced =
        std::make_unique<frmPlayPanelMP>(m_log, m_options, m_appStatus, m_volume, m_mainForm);
    m_enhanced->setWindowTitle(
        QCoreApplication::translate("PlayPanels", "Nightreel 2000 playing - ") + title);
    // The panel shows also when its load failed; the failure goes on to the play command.
    const auto shown = qScopeGuard([this] {
        m_appStatus.SetPlaying(true);
        m_enhanced->show();
    });
    m_enhanced->Form_Load(file, startTime);
}

void PlayPanels::OpenClassic(const QString& file, const QString& title, double startTime)
{
    Unload(m_classic);
    m_classic = std::make_unique<frmPlayPanel>(m_log, m_options, m_appStatus, m_mixer, m_mainForm);
    m_classic->setWindowTitle(
        QCoreApplication::translate("PlayPanels", "Nightreel 2000 playing - ") + title);
    const auto shown = qScopeGuard([this] {
        m_appStatus.SetPlaying(true);
        m_classic->show();
    });
    m_classic->Form_Load(file, startTime);
}
