// The privileged wake helper on a system bus of the test's own, asked by the recorder's client.
#include "SystemBusStandIn.h"
#include "platform/LogindSleepInhibitor.h"
#include "platform/SleepInhibitor.h"

#include <QDBusConnectionInterface>
#include <QDateTime>

namespace {

// polkit's stand-in, refusing every action until told otherwise.
class PolkitStandIn : public SystemBusStandIn {
public:
    PolkitStandIn()
        : SystemBusStandIn("polkitd", Authority() + "a.AllowUnknown(False)")
    {
    }

    bool SetAllowed(const QStringList& actions)
    {
        return !Script(Authority() + "a.SetAllowed(['" + actions.join("', '") + "'])").isNull();
    }

private:
    static QString Authority()
    {
        return "import dbus\n"
               "a = dbus.Interface(dbus.SystemBus().get_object('org.freedesktop.PolicyKit1', "
               "'/org/freedesktop/PolicyKit1/Authority'), 'org.freedesktop.DBus.Mock')\n";
    }
};

} // namespace

class TestWakeHelper : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!m_polkit.Running())
            QSKIP("polkit's stand-in could not be started");
        m_bus = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"),
                                              "wake-test");
        m_helper.setProcessChannelMode(QProcess::ForwardedChannels);
        m_helper.start(NIGHTREEL_WAKE, {"--clock-folder", m_clock.path()});
        QTRY_VERIFY_WITH_TIMEOUT(
            m_bus.interface()->isServiceRegistered("org.larkmoor.NightreelWake1"), 10000);
    }

    void cleanupTestCase()
    {
        m_helper.terminate();
        m_helper.waitForFinished(3000);
    }

    void onlyAllowedCallersAndTimesInRange_data()
    {
        QTest::addColumn<bool>("allowed");
        QTest::addColumn<qint64>("ahead"); // 0 clears
        QTest::addColumn<bool>("accepted");
        QTest::newRow("an hour ahead") << true << qint64(3600) << true;
        QTest::newRow("almost 31 days ahead") << true << qint64(31 * 86400 - 30) << true;
        QTest::newRow("the clear call") << true << qint64(0) << true;
        QTest::newRow("refused caller") << false << qint64(3600) << false;
        QTest::newRow("refused caller's clear") << false << qint64(0) << false;
        QTest::newRow("under a minute ahead") << true << qint64(30) << false;
        QTest::newRow("in the past") << true << qint64(-3600) << false;
        QTest::newRow("beyond 31 days") << true << qint64(31 * 86400 + 60) << false;
    }
    void onlyAllowedCallersAndTimesInRange()
    {
        QFETCH(bool, allowed);
        QFETCH(qint64, ahead);
        QFETCH(bool, accepted);
        QVERIFY(m_polkit.SetAllowed(
            {allowed ? "org.larkmoor.nightreel.set-wake-alarm" : "org.larkmoor.other"}));
        const QString alarmFile = m_clock.path() + "/wakealarm";
        QFile file(alarmFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("untouched\n");
        file.close();

        LogindSleepInhibitor recorderSide(m_bus, QString());
        const qint64 when = ahead == 0 ? 0 : QDateTime::currentSecsSinceEpoch() + ahead;
        QCOMPARE(recorderSide.SetWakeAlarm(when), accepted);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().trimmed(),
                 !accepted ? QByteArray("untouched") : QByteArray::number(when));
    }

private:
    PolkitStandIn m_polkit;
    QTemporaryDir m_clock;
    QProcess m_helper;
    QDBusConnection m_bus{QString()};
};

QTEST_GUILESS_MAIN(TestWakeHelper)
#include "test_wakehelper.moc"
