// The dial-up line that a program's stream used is hung up at the end of its recording:
// only dial-up kinds of connection, in the order the network service lists them, only for a
// program with a web link and the hang-up flag, and without a service nothing happens.
#include "NetworkManagerStandIn.h"
#include "PulseFixture.h"
#include "RecordingRig.h"
#include "TestParts.h"
#include "platform/NetworkConnections.h"
#include "sideactions/HangUpConnections.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QTest>
#include <memory>

class TestHangUp : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<PulseFixture> m_pulse;

private slots:
    void initTestCase()
    {
        if (const QString why = RecordingRig::StartSound(m_pulse); !why.isEmpty())
            QSKIP(qPrintable(why));
    }

    void dialUpKinds_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("bluetoothType");
        QTest::addColumn<bool>("dialUp");
        QTest::newRow("mobile modem") << "gsm"
                                      << "" << true;
        QTest::newRow("dsl over ppp") << "pppoe"
                                      << "" << true;
        QTest::newRow("phone's dial-up") << "bluetooth"
                                         << "dun" << true;
        QTest::newRow("phone's network") << "bluetooth"
                                         << "panu" << false;
        QTest::newRow("ethernet") << "802-3-ethernet"
                                  << "" << false;
        QTest::newRow("vpn") << "vpn"
                             << "" << false;
    }
    void dialUpKinds()
    {
        QFETCH(QString, type);
        QFETCH(QString, bluetoothType);
        QFETCH(bool, dialUp);
        QCOMPARE(IsDialUpConnection({"/c/0", type, bluetoothType}), dialUp);
    }

    void recordingEndHangsUpTheDialUpLines_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<bool>("hangUp");
        QTest::addColumn<bool>("service");
        QTest::newRow("link and flag") << "http://radio.example/live" << true << true;
        QTest::newRow("no flag") << "http://radio.example/live" << false << true;
        QTest::newRow("no link") << "" << true << true;
        QTest::newRow("no network service") << "http://radio.example/live" << true << false;
    }
    // Nothing is logged either way, and the recording is made.
    void recordingEndHangsUpTheDialUpLines()
    {
        QFETCH(QString, link);
        QFETCH(bool, hangUp);
        QFETCH(bool, service);
        std::optional<NetworkManagerStandIn> nm;
        QStringList expected;
        const QByteArray bus = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
        const auto restoreBus = qScopeGuard([&] { qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus); });
        if (service) {
            nm.emplace();
            if (!nm->Running())
                QSKIP("no private system bus with NetworkManager's stand-in could be started");
            QVERIFY(!nm->AddActiveConnection("wired", "802-3-ethernet").isEmpty());
            const QString modem = nm->AddActiveConnection("modem", "gsm");
            QVERIFY(!nm->AddActiveConnection("pan", "bluetooth", "panu").isEmpty());
            const QString phone = nm->AddActiveConnection("phone", "bluetooth", "dun");
            if (hangUp && !link.isEmpty())
                expected = {modem, phone};
        } else {
            // A bus address where nothing listens.
            qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/system_bus_socket");
        }

        RecordingRig r;
        r.AddProgramAt10({{"InternetLink", link},
                          // The player is left alone: the hang-up doesn't depend on closing it.
                          {"StreamingPlayerClose", "DO_NOT_CLOSE"},
                          {"HangupInternetConnection", hangUp ? -1 : 0}});
        QVERIFY(r.Run(RecordingRig::At("10:00:08")));
        QCOMPARE(r.Recordings().size(), 1);
        QCOMPARE(r.LoggedMessages(), QStringList{});
        if (nm)
            QCOMPARE(nm->Deactivated(), expected);
    }
};

NIGHTREEL_TEST_PARTS_MAIN(TestHangUp, QCoreApplication)
#include "test_hangup.moc"
