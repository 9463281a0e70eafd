#pragma once

#include "Programs.h"
#include "PulseFixture.h"
#include "TestContext.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QSqlQuery>
#include <QTest>
#include <functional>
#include <memory>

// A scheduled recording with its side actions (web link, streaming player, hang-up), made
// by the program's own recorder and the real recording task on Monday 1 June 2026. The
// clock runs at real speed from a few seconds before the start; the heartbeat is ticked by
// hand until the recording has come and gone.
class LinkedRecording {
public:
    LinkedRecording()
    {
        tc.OpenDatabase();
        folder = tc.Root() + "/recordings";
        QDir().mkpath(folder);
        tc.ctx->options.DefaultRecordingDirectory = folder;
        tc.ctx->appStatus.SetReady(true);
        tc.ctx->recorder.Link().SetTaskProgram(QCoreApplication::applicationDirPath() +
                                               "/../src/nightreel-rec");
    }

    // The test's own sound server with a tone playing into it; "" when it runs, otherwise
    // why recordings can't be made here.
    static QString StartSound(std::unique_ptr<PulseFixture>& pulse)
    {
        if (!QFile::exists(QCoreApplication::applicationDirPath() + "/../src/nightreel-rec"))
            return "the recording task is not built";
        pulse = std::make_unique<PulseFixture>();
        if (!pulse->Running())
            return "no PulseAudio server could be started";
        return pulse->PlayTone() ? QString() : QString("no tone could be played");
    }

    static double At(const QString& time) { return Programs::At(2026, 6, 1, time); }

    // A three-second program at 10:00:10 with the given side actions, 16-bit mono PCM. The
    // mixer profiles are empty texts, as the editor writes them: under a NULL after-profile
    // the player's mode would read as "never close".
    void AddProgram(const QVariantHash& sideActions)
    {
        QVariantHash row =
            Programs::WithPcmFormat(Programs::Weekly("Stream", "10:00:10", "10:00:13", "0100000"));
        row.insert({{"MixerProfileBefore", ""}, {"MixerProfileAfter", ""}});
        row.insert(sideActions);
        tc.AddProgram(row);
        tc.ctx->database.DataPrograms.Requery();
    }

    // Runs from `from` until the recording has started and ended; calls atStart once when it
    // has started. False when that didn't happen within the limit.
    bool Run(double from, const std::function<void()>& atStart = {}, int limitMs = 25000)
    {
        tc.clock.Set(from);
        tc.ctx->scheduler.ScheduleNextRecording();
        QElapsedTimer elapsed;
        elapsed.start();
        bool started = false;
        while (elapsed.elapsed() < limitMs) {
            tc.clock.Set(AutomationDate::AddSeconds(from, elapsed.elapsed() / 1000.0));
            tc.ctx->recorder.HeartbeatTimer().Timer1_Timer();
            const bool recording = tc.ctx->appStatus.Recording();
            if (recording && !started) {
                started = true;
                if (atStart)
                    atStart();
            }
            if (started && !recording)
                return true;
            QTest::qWait(50);
        }
        return false;
    }

    // The rows of Recordings and the messages of the event log, read from the file.
    int RecordingRows() const { return tc.CountRows("Recordings"); }
    QStringList LoggedMessages() const
    {
        QStringList messages;
        QSqlQuery q(tc.ctx->database.db.Connection());
        q.exec("SELECT Message FROM EventLog ORDER BY ID");
        while (q.next())
            messages << q.value(0).toString();
        return messages;
    }

    TestContext tc;
    QString folder;
};
