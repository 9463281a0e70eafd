#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>

class StreamCapture;

// The program editor's Test of a stream address: connects, reads a few seconds, and prints
// what it found as key=value lines (codec, kbits, rate, channels, station), or one line
// error=why. The process's exit code is 0 on success.
class StreamProbe : public QObject {
    Q_OBJECT
public:
    explicit StreamProbe(const QString& url, QObject* parent = nullptr);
    ~StreamProbe() override;

private:
    void Check();
    void Finish(const QString& error);

    QElapsedTimer m_clock;
    QTimer m_check;
    std::unique_ptr<StreamCapture> m_capture;
    qint64 m_firstSoundMs = -1;
};
