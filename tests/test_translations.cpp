// The program speaks the language of the user's locale: the main window, a dialog, the help
// of the command line (asked for without a display) and Qt's own texts in German under a German
// locale, and the texts as written under the C locale.
#include <QProcess>
#include <QTest>

class TestTranslations : public QObject {
    Q_OBJECT
private slots:
    void textsFollowTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QString>("help");
        QTest::newRow("C") << "C" << QStringList{"&File",
                                                 "&View",
                                                 "&Programming",
                                                 "Enable/Disable Programs",
                                                 "&Enable Programs",
                                                 "Ctrl+Q"}
                           << "Nightreel 2000 records sound at the times of the programs you list.";
        QTest::newRow("German")
            << "de_DE.UTF-8"
            << QStringList{"&Datei",
                           "&Ansicht",
                           "&Programmierung",
                           "Sendungen aktivieren/deaktivieren",
                           "Sendungen a&ktivieren",
                           "Strg+Q"}
            << "Nightreel 2000 nimmt Ton zu den Zeiten der von Ihnen eingetragenen Sendungen auf.";
    }
    void textsFollowTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, captions);
        QFETCH(QString, help);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LANG"), locale);
        environment.insert(QStringLiteral("LC_ALL"), locale);
        environment.insert(QStringLiteral("LANGUAGE"), locale.section(u'.', 0, 0));
        // Help is what a user asks for when the program won't start, often with no desktop.
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QString::fromLatin1(name));
        const QStringList helpLines = Run(QStringLiteral(NIGHTREEL_BIN_DIR "/nightreel"),
                                          {QStringLiteral("--help")}, environment);
        QVERIFY2(helpLines.contains(help), qPrintable(helpLines.join(u'\n')));

        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        const QStringList shown = Run(QStringLiteral(NIGHTREEL_CAPTIONS), {}, environment);
        for (const QString& caption : captions)
            QVERIFY2(shown.contains(caption),
                     qPrintable(caption + QStringLiteral(" not in ") + shown.join(u'|')));
    }

private:
    static QStringList Run(const QString& program, const QStringList& arguments,
                           const QProcessEnvironment& environment)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        if (!process.waitForFinished(30000) || process.exitCode() != 0)
            return {};
        return QString::fromUtf8(process.readAllStandardOutput()).split(u'\n');
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "test_translations.moc"
