#include "TestContext.h"
#include "shell/frmAbout.h"
#include "shell/frmSplash.h"

#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QTest>

class TestFrmAbout : public QObject {
    Q_OBJECT

private slots:
    void versionComesFromTheApplication_data()
    {
        QTest::addColumn<QString>("appVersion");
        QTest::addColumn<QString>("shown");
        QTest::newRow("set by the program") << "2.3.4"
                                            << "Version 2.3.4";
        QTest::newRow("built in") << QString()
                                  << QString("Version %1.%2.%3")
                                         .arg(NIGHTREEL_VERSION_MAJOR)
                                         .arg(NIGHTREEL_VERSION_MINOR)
                                         .arg(NIGHTREEL_VERSION_REV);
    }
    void versionComesFromTheApplication()
    {
        QFETCH(QString, appVersion);
        QFETCH(QString, shown);
        QCoreApplication::setApplicationVersion(appVersion);
        TestContext tc;
        frmAbout about(*tc.ctx, nullptr);
        frmSplash splash;
        QCOMPARE(about.findChild<QLabel*>("lblVersion")->text(), shown);
        QCOMPARE(splash.findChild<QLabel*>("lblVersion")->text(), shown);
    }

    void systemInfoShowsTheFactsInABox()
    {
        TestContext tc;
        frmAbout about(*tc.ctx, nullptr);
        about.findChild<QPushButton*>("btnSysInfo")->click();
        QCOMPARE(tc.messageBox.asked.size(), 1);
        QCOMPARE(tc.messageBox.asked[0].title, QString("System Information"));
        QCOMPARE(tc.messageBox.asked[0].icon, MsgIcon::Information);
        QVERIFY(tc.messageBox.asked[0].text.contains(QSysInfo::kernelVersion()));
        QVERIFY(tc.messageBox.asked[0].text.contains(QSysInfo::currentCpuArchitecture()));
    }
};

QTEST_MAIN(TestFrmAbout)
#include "test_frmAbout.moc"
