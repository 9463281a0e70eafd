#pragma once

#include <QProcess>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <vector>

// What reaches a sink, as its monitor hears it: 16-bit stereo at 44.1 kHz recorded from
// Start to Stop, with the measures the player tests need.
class SinkMonitor {
public:
    static constexpr int Rate = 44100;

    explicit SinkMonitor(const QString& sink = QStringLiteral("recsink"))
        : m_sink(sink)
    {
    }
    ~SinkMonitor() { Stop(); }

    bool Start()
    {
        m_samples.clear();
        m_parec.start("parec", {"--device=" + m_sink + ".monitor", "--raw", "--format=s16le",
                                "--rate=44100", "--channels=2", "--latency-msec=20"});
        return m_parec.waitForStarted(3000);
    }

    void Stop()
    {
        if (m_parec.state() == QProcess::NotRunning)
            return;
        m_parec.terminate();
        m_parec.waitForFinished(3000);
        const QByteArray raw = m_parec.readAllStandardOutput();
        for (qsizetype i = 0; i + 1 < raw.size(); i += 2)
            m_samples.push_back(qFromLittleEndian<qint16>(raw.constData() + i));
    }

    // The loudest sample of a channel (0 left, 1 right) in the last seconds heard, in
    // dBFS; -120 for silence.
    double PeakDb(int channel, double lastSeconds) const
    {
        int peak = 0;
        const size_t frames = m_samples.size() / 2;
        const size_t from = frames - std::min(frames, size_t(lastSeconds * Rate));
        for (size_t i = 2 * from + size_t(channel); i < m_samples.size(); i += 2)
            peak = std::max(peak, std::abs(int(m_samples[i])));
        return peak == 0 ? -120.0 : 20.0 * std::log10(peak / 32768.0);
    }

    // Seconds from the first to the last sample of the left channel above -40 dBFS.
    double SoundingSeconds() const
    {
        const auto [first, last] = SoundingRange();
        return first < 0 ? 0.0 : double(last - first) / Rate;
    }

    // The left channel's frequency, from its rising zero crossings while it sounds.
    double Frequency() const
    {
        const auto [first, last] = SoundingRange();
        int crossings = 0;
        long firstCrossing = -1;
        long lastCrossing = -1;
        for (long f = std::max(first, 1L); first >= 0 && f <= last; ++f) {
            if (m_samples[size_t(2 * (f - 1))] < 0 && m_samples[size_t(2 * f)] >= 0) {
                if (firstCrossing < 0)
                    firstCrossing = f;
                lastCrossing = f;
                ++crossings;
            }
        }
        return crossings < 2 ? 0.0
                             : (crossings - 1) * double(Rate) / (lastCrossing - firstCrossing);
    }

private:
    std::pair<long, long> SoundingRange() const
    {
        const int threshold = int(32768 * 0.01);
        long first = -1;
        long last = -1;
        for (size_t i = 0; i < m_samples.size(); i += 2) {
            if (std::abs(int(m_samples[i])) > threshold) {
                if (first < 0)
                    first = long(i / 2);
                last = long(i / 2);
            }
        }
        return {first, last};
    }

    QString m_sink;
    QProcess m_parec;
    std::vector<qint16> m_samples;
};
