#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

// Plays one audio file at a time for the player panels: WAV (PCM or MP3 inside) and MP3.
// Opening is asynchronous: Opened or Failed follows, as the bus reports on the GUI thread.
// Volume and balance are in hundredths of a decibel, as the panels show them; the rate is
// kept across seeks. The volume is applied inside our own pipeline, so the sound server's
// volume for this program is never set and so never remembered by it.
class PlaybackEngine : public QObject {
    Q_OBJECT
public:
    enum class PlayState { Stopped = 0, Paused = 1, Playing = 2 };
    // Why a file could not be opened or played, for the panels that report by kind.
    enum class FailureKind { None, FileNotFound, NoOutput, MissingDecoder, BadContent, Other };

    explicit PlaybackEngine(QObject* parent = nullptr);
    ~PlaybackEngine() override;

    // Starts opening the file (any file open before is closed); it ends stopped at 0.
    void Open(const QString& file);
    // Handles the bus until the file is open or has failed, at most timeoutMs; true when
    // open.
    bool WaitForOpen(int timeoutMs);
    void Close();
    bool IsOpen() const { return m_open; }

    void Play();
    void Pause();
    // Stops and goes back to the beginning.
    void Stop();
    PlayState State() const { return m_state; }

    // In seconds; 0 until open.
    double Duration() const { return m_duration; }
    // In seconds; -1 when nothing is open. At or past the end it is the duration and the
    // engine stops there; a Play then starts from the beginning.
    double CurrentPosition() const;
    void SetCurrentPosition(double seconds);

    double Rate() const { return m_rate; }
    void SetRate(double rate);
    // -10000 (silent) to 0 (as recorded); the value given is kept for reading back.
    int Volume() const { return m_volume; }
    void SetVolume(int hundredthsDb);
    // Negative turns the right channel down by that many hundredths of a decibel, positive
    // the left; -10000..10000.
    int Balance() const { return m_balance; }
    void SetBalance(int hundredthsDb);

    QString ErrorDescription() const { return m_error; }
    FailureKind Failure() const { return m_failure; }

    // Linear gain of a level in hundredths of a decibel.
    static double Gain(int hundredthsDb);

Q_SIGNALS:
    void Opened();
    void PlayStateChanged(PlaybackEngine::PlayState state);
    void Failed(const QString& description);
    void Warning(const QString& description);

private:
    struct Pipeline;

    void PollBus();
    // Handles one bus message; takes ownership.
    void Handle(void* message);
    void Seek(double seconds);
    void SetState(PlayState state);
    void ApplyVolume();
    void ApplyBalance();

    std::unique_ptr<Pipeline> m_pipeline;
    QString m_file;
    QTimer m_busTimer;
    bool m_open = false;
    bool m_atEnd = false;
    bool m_seekPending = false;
    double m_seekTarget = 0.0;
    PlayState m_state = PlayState::Stopped;
    double m_duration = 0.0;
    double m_rate = 1.0;
    int m_volume = 0;
    int m_balance = 0;
    QString m_error;
    FailureKind m_failure = FailureKind::None;
};
