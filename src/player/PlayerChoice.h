#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>

class EventLog;
class MessageBoxPresenter;
class Options;
class PlayerPanels;
class RegKeys;

// Which player plays a recording: the enhanced panel, the classic panel (WAV only) or the
// desktop's default program, by the file's extension and the settings WavPlayer and
// Mp3Player. The settings are repaired at start-up to what this installation can play, and
// the repair is stored: a player installed later is not taken up by itself.
class PlayerChoice {
public:
    // The stored names of the players; the texts are those of every settings store.
    static inline const QString EnhancedPlayer = QStringLiteral("Nightreel Enhanced Player");
    static inline const QString ClassicPlayer = QStringLiteral("Nightreel Classic Player");
    static inline const QString DefaultPlayer = QStringLiteral("Desktop Default");
    // What settings written by earlier versions call the default program.
    static inline const QString FormerDefaultPlayer = QStringLiteral("Windows Default");

    // opener opens a file in the desktop's default program (see OpenWithDefaultProgram);
    // probe tells whether the enhanced player can run, MediaPlayerAvailable() when empty.
    PlayerChoice(EventLog& log, RegKeys& registry, Options& options,
                 MessageBoxPresenter& messageBox, PlayerPanels& panels,
                 std::function<int(const QString&)> opener, std::function<bool()> probe = {});

    // At the first activation, before GetPlayerSetting.
    void CheckMediaPlayerControl();
    bool MediaPlayerAvailable() const { return m_mediaPlayerAvailable; }
    // Sets Options::WavPlayer and Mp3Player from the settings, repaired and written back. A
    // failure throws, marked with the routine's name.
    void GetPlayerSetting();

    // Plays a file known to exist in the player chosen for it.
    void PlayExistingFile(const QString& file, const QString& title, double startTime);
    // The most recent recording; one that is gone is forgotten, here and in the settings,
    // after telling the user.
    void ToolbarPlay();

    static bool HasMP3FileExtension(const QString& file);

private:
    EventLog& m_log;
    RegKeys& m_registry;
    Options& m_options;
    MessageBoxPresenter& m_messageBox;
    PlayerPanels& m_panels;
    std::function<bool()> m_probe;
    std::function<int(const QString&)> m_opener;
    bool m_mediaPlayerAvailable = false;

    Q_DECLARE_TR_FUNCTIONS(PlayerChoice)
};
