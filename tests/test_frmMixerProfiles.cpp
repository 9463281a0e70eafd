// The two forms of the mixer profiles over a profile folder of the test's own: what they list,
// which entry they select after each command, what they ask, where they open.
#include "ModalDialogs.h"
#include "PulseFixture.h"
#include "TestContext.h"
#include "TestFiles.h"
#include "common/Twips.h"
#include "sideactions/frmAddMixerProfile.h"
#include "sideactions/frmMixerProfiles.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>
#include <memory>

namespace {

QStringList Texts(const QListWidget* list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->text();
    return texts;
}

QString Selected(const QListWidget* list)
{
    const auto items = list->selectedItems();
    return items.isEmpty() ? QString() : items.first()->text();
}

const QByteArray kProfile = "nightreel-mixer-profile 1\n";

} // namespace

class TestFrmMixerProfiles : public QObject {
    Q_OBJECT

    std::unique_ptr<TestContext> m_tc;
    std::unique_ptr<QWidget> m_main;

    MixerProfiles& Profiles() { return m_tc->ctx->mixerProfiles; }

    // Profile files in the folder; an empty content makes a file of no length.
    void MakeProfiles(const QStringList& names, const QByteArray& content = kProfile)
    {
        QDir().mkpath(Profiles().Folder());
        for (const QString& name : names)
            QVERIFY(WriteFile(Profiles().PathOf(name), content));
    }

    std::unique_ptr<frmMixerProfiles> Open()
    {
        return std::make_unique<frmMixerProfiles>(Profiles(), m_tc->ctx->log, m_tc->messageBox,
                                                  m_main.get());
    }

private slots:
    void init()
    {
        m_tc = std::make_unique<TestContext>();
        m_tc->OpenDatabase();
        m_main = std::make_unique<QWidget>();
        m_main->move(100, 80);
    }

    void removeSelects_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("selected");
        QTest::newRow("the first of three") << QStringList{"b", "A", "C"} << 0 << "b";
        QTest::newRow("the last") << QStringList{"b", "A", "C"} << 2 << "b";
        QTest::newRow("the only one") << QStringList{"A"} << 0 << "";
    }

    // The form lists the profiles sorted by name, whatever the case, and selects the first;
    // Remove asks, then selects the next one, or the one before the last.
    void removeSelects()
    {
        QFETCH(QStringList, files);
        QFETCH(int, row);
        QFETCH(QString, selected);
        MakeProfiles(files);
        QVERIFY(WriteFile(Profiles().Folder() + "/notes.txt", "x")); // not a profile
        const auto form = Open();
        auto* list = Control<QListWidget>(form.get(), "lstMixerProfiles");
        files.sort(Qt::CaseInsensitive);
        QCOMPARE(Texts(list), files);
        QCOMPARE(Selected(list), files[0]);
        list->setCurrentRow(row);
        m_tc->messageBox.answers = {MsgResult::Yes};
        form->btnRemove_Click();

        QCOMPARE(m_tc->messageBox.asked.size(), 1);
        QVERIFY(!QFile::exists(Profiles().PathOf(files[row])));
        files.removeAt(row);
        QCOMPARE(Texts(list), files);
        QCOMPARE(Profiles().Names(), files);
        QCOMPARE(Selected(list), selected);
        QCOMPARE(Control<QPushButton>(form.get(), "btnRemove")->isEnabled(), !files.isEmpty());
        QCOMPARE(Control<QPushButton>(form.get(), "btnActivate")->isEnabled(), !files.isEmpty());
    }

    // Activate and Remove ask first: No changes nothing; Yes activates (an empty profile is
    // deleted by the activation, and stays listed until the form is opened again) or removes.
    // Without a selection the two buttons go grey and ask nothing.
    void activateAndRemoveAskFirst_data()
    {
        QTest::addColumn<bool>("remove");
        QTest::addColumn<QString>("title");
        QTest::newRow("activate") << false << "Activate mixer profile";
        QTest::newRow("remove") << true << "Remove mixer profile";
    }

    void activateAndRemoveAskFirst()
    {
        QFETCH(bool, remove);
        MakeProfiles({"A", "B"}, QByteArray());
        const auto form = Open();
        // Opened at an offset from the main form, whatever its place.
        QCOMPARE(form->pos(), m_main->pos() + QPoint(Twips::ToPixels(250), Twips::ToPixels(250)));
        auto* list = Control<QListWidget>(form.get(), "lstMixerProfiles");
        const auto click = [&] {
            remove ? form->btnRemove_Click() : form->btnActivate_Click();
        };
        m_tc->messageBox.answers = {MsgResult::No, MsgResult::Yes};
        click();
        QCOMPARE(Texts(list), QStringList({"A", "B"}));
        QVERIFY(QFile::exists(Profiles().PathOf("A")));
        click();
        QCOMPARE(m_tc->messageBox.asked.size(), 2);
        QTEST(m_tc->messageBox.asked[1].title, "title");
        QCOMPARE(m_tc->messageBox.asked[1].buttons, MsgButtons::YesNo);
        QVERIFY(!QFile::exists(Profiles().PathOf("A")));
        QCOMPARE(Texts(list), remove ? QStringList{"B"} : QStringList({"A", "B"}));

        list->clearSelection();
        click();
        QCOMPARE(m_tc->messageBox.asked.size(), 2);
        QVERIFY(!Control<QPushButton>(form.get(), "btnActivate")->isEnabled());
        QVERIFY(!Control<QPushButton>(form.get(), "btnRemove")->isEnabled());
    }

    // Saving through the add form, opened by Add: a new name (trimmed) joins the list and is
    // selected as the first when nothing was; an existing name answered No keeps the form and
    // the file.
    void addThroughTheForm()
    {
        PulseFixture pulse;
        QVERIFY(pulse.Running());
        MakeProfiles({"Old"});
        const auto form = Open();
        auto* list = Control<QListWidget>(form.get(), "lstMixerProfiles");
        list->clearSelection();

        bool keptOpen = false;
        WhenModalOpens([&](QDialog* dialog) {
            // A failed check leaves the lambda: the form must not stay open.
            const auto close = qScopeGuard([dialog] {
                if (dialog->isVisible())
                    dialog->reject();
            });
            auto* combo = Control<QComboBox>(dialog, "Combo1");
            QCOMPARE(combo->currentText(), QString());
            QCOMPARE(combo->count(), 1);
            QCOMPARE(dialog->focusWidget(), combo);
            combo->setCurrentText("Old");
            m_tc->messageBox.answers = {MsgResult::No};
            Control<QPushButton>(dialog, "frmSave")->click();
            keptOpen = dialog->isVisible();
            combo->setCurrentText("   Late show");
            Control<QPushButton>(dialog, "frmSave")->click();
        });
        form->btnAdd_Click();

        QVERIFY(keptOpen);
        QCOMPARE(m_tc->messageBox.asked.size(), 1);
        QCOMPARE(m_tc->messageBox.asked[0].title, QString("Overwrite profile"));
        QCOMPARE(ReadFile(Profiles().PathOf("Old")), kProfile);
        QCOMPARE(Texts(list), QStringList({"Old", "Late show"}));
        QVERIFY(QFile(Profiles().PathOf("Late show")).size() > kProfile.size());
        QCOMPARE(Selected(list), QString("Old"));
        QVERIFY(Control<QPushButton>(form.get(), "btnActivate")->isEnabled());
    }
};

QTEST_MAIN(TestFrmMixerProfiles)
#include "test_frmMixerProfiles.moc"
