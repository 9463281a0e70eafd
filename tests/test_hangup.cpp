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
#include <QTest>
#include <memory>

class TestHangUp : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void dialUpKinds_data();
    void dialUpKinds();
    void recordingEndHangsUpTheDialUpLines_data();
    void recordingEndHangsUpTheDialUpLines();
    void withoutNetworkServiceTheRecordingEndsQuietly();

private:
    std::unique_ptr<PulseFixture> m_pulse;
};

void TestHangUp::initTestCase()
{
    const QString missing = RecordingRig::StartSound(m_pulse);
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing));
}

void TestHangUp::dialUpKinds_data()
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

void TestHangUp::dialUpKinds()
{
    QFETCH(QString, type);
    QFETCH(QString, bluetoothType);
    QFETCH(bool, dialUp);
    QCOMPARE(IsDialUpConnection({"/c/0", type, bluetoothType}), dialUp);
}

void TestHangUp::recordingEndHangsUpTheDialUpLines_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("hangUp");
    QTest::addColumn<bool>("expectHangUp");
    QTest::newRow("link and flag") << "http://radio.example/live" << true << true;
    QTest::newRow("no flag") << "http://radio.example/live" << false << false;
    QTest::newRow("no link") << "" << true << false;
}

void TestHangUp::recordingEndHangsUpTheDialUpLines()
{
    QFETCH(QString, link);
    QFETCH(bool, hangUp);
    QFETCH(bool, expectHangUp);

    NetworkManagerStandIn nm;
    if (!nm.Running())
        QSKIP("no private system bus with NetworkManager's stand-in could be started");
    const QString wired = nm.AddActiveConnection("wired", "802-3-ethernet");
    const QString modem = nm.AddActiveConnection("modem", "gsm");
    const QString pan = nm.AddActiveConnection("pan", "bluetooth", "panu");
    const QString phone = nm.AddActiveConnection("phone", "bluetooth", "dun");
    QVERIFY(!wired.isEmpty() && !modem.isEmpty() && !pan.isEmpty() && !phone.isEmpty());

    RecordingRig r;
    r.AddProgramAt10({{"InternetLink", link},
                      // The player is left alone: the hang-up doesn't depend on closing it.
                      {"StreamingPlayerClose", "DO_NOT_CLOSE"},
                      {"HangupInternetConnection", hangUp ? -1 : 0}});
    QVERIFY(r.Run(RecordingRig::At("10:00:08")));
    QCOMPARE(r.Recordings().size(), 1);

    const QStringList expected = expectHangUp ? QStringList{modem, phone} : QStringList();
    QCOMPARE(nm.Deactivated(), expected);
    QCOMPARE(r.LoggedMessages(), QStringList{});
}

void TestHangUp::withoutNetworkServiceTheRecordingEndsQuietly()
{
    // A bus address where nothing listens.
    const QByteArray saved = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/system_bus_socket");
    RecordingRig r;
    r.AddProgramAt10({{"InternetLink", "http://radio.example/live"},
                      {"StreamingPlayerClose", "DO_NOT_CLOSE"},
                      {"HangupInternetConnection", -1}});
    const bool ran = r.Run(RecordingRig::At("10:00:08"));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", saved);
    QVERIFY(ran);
    QCOMPARE(r.Recordings().size(), 1);
    QCOMPARE(r.LoggedMessages(), QStringList{});
    QVERIFY(!r.tc.ctx->appStatus.Recording());
}

NIGHTREEL_TEST_PARTS_MAIN(TestHangUp, QCoreApplication)
#include "test_hangup.moc"
