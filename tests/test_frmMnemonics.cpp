// Alt and a letter reaches one control: no two captions that can be on screen together share
// a mnemonic, in the main window and in every dialog its menus open, and a label with a
// mnemonic hands the focus to its field.
#include "ModalDialogs.h"
#include "TestContext.h"
#include "shell/frmMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>

namespace {

QChar Mnemonic(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] != u'&')
            return text[i + 1].toUpper();
        ++i;
    }
    return {};
}

// The pages a widget lies on: two widgets can be on screen together unless they lie on
// different pages of the same stack (a tab widget's pages are a stack).
using Pages = QList<std::pair<const QWidget*, int>>;

Pages PagesOf(const QWidget* widget, const QWidget* form)
{
    Pages pages;
    for (const QWidget* w = widget; w && w != form; w = w->parentWidget())
        if (auto* stack = qobject_cast<const QStackedWidget*>(w->parentWidget()))
            pages.append({stack, stack->indexOf(const_cast<QWidget*>(w))});
    return pages;
}

bool Together(const Pages& a, const Pages& b)
{
    for (const auto& [stack, page] : a)
        for (const auto& [otherStack, otherPage] : b)
            if (stack == otherStack && page != otherPage)
                return false;
    return true;
}

// A control hidden for good (not merely on another page) has no mnemonic to clash.
bool Shown(const QWidget* widget, const QWidget* form)
{
    for (const QWidget* w = widget; w && w != form; w = w->parentWidget())
        if (w->isHidden() && !qobject_cast<const QStackedWidget*>(w->parentWidget()))
            return false;
    return true;
}

struct Caption {
    QString text;
    Pages pages;
};

// The clashes of one form, as "text / text" lines, and its labels that have a mnemonic but
// no field.
QStringList Faults(QWidget* form)
{
    QList<Caption> captions;
    QStringList faults;
    const auto add = [&](const QWidget* owner, const QString& text) {
        if (!Mnemonic(text).isNull() && Shown(owner, form))
            captions.append({text, PagesOf(owner, form)});
    };
    for (auto* button : form->findChildren<QAbstractButton*>())
        add(button, button->text());
    for (auto* box : form->findChildren<QGroupBox*>())
        add(box, box->title());
    for (auto* label : form->findChildren<QLabel*>()) {
        add(label, label->text());
        if (!Mnemonic(label->text()).isNull() && !label->buddy())
            faults << QStringLiteral("no field: ") + label->text();
    }
    for (auto* tabs : form->findChildren<QTabBar*>())
        for (int i = 0; i < tabs->count(); ++i)
            add(tabs, tabs->tabText(i));
    for (auto* bar : form->findChildren<QMenuBar*>())
        for (QAction* action : bar->actions())
            add(bar, action->text());
    for (qsizetype i = 0; i < captions.size(); ++i)
        for (qsizetype j = i + 1; j < captions.size(); ++j)
            if (Mnemonic(captions[i].text) == Mnemonic(captions[j].text) &&
                Together(captions[i].pages, captions[j].pages))
                faults << captions[i].text + QStringLiteral(" / ") + captions[j].text;

    for (auto* menu : form->findChildren<QMenu*>()) {
        QHash<QChar, QString> seen;
        for (QAction* action : menu->actions()) {
            const QChar letter = Mnemonic(action->text());
            if (letter.isNull())
                continue;
            if (seen.contains(letter))
                faults << seen[letter] + QStringLiteral(" / ") + action->text();
            seen.insert(letter, action->text());
        }
    }
    return faults;
}

} // namespace

class TestFrmMnemonics : public QObject {
    Q_OBJECT

private slots:
    void noFormHasClashingMnemonics_data()
    {
        QTest::addColumn<QString>("entry"); // the menu entry that opens the form; none: main
        QTest::newRow("main window") << QString();
        for (const char* entry :
             {"mnuViewOptions", "mnuViewDiskStatus", "mnuErrors", "mnuViewErrorLog",
              "mnuMixerProfiles", "mnuHelpAbout", "mnuAddNew", "mnuManualRecording"})
            QTest::newRow(entry) << QString::fromLatin1(entry);
    }
    void noFormHasClashingMnemonics()
    {
        QFETCH(QString, entry);
        TestContext tc;
        QDir().mkpath(tc.Root() + "/recordings");
        tc.ctx->registry.SaveSetting("Settings", "DefaultRecordingDirectory",
                                     tc.Root() + "/recordings");
        frmMain main(*tc.ctx, false);
        main.FirstActivate();
        if (entry.isEmpty()) {
            const QStringList faults = Faults(&main);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
            return;
        }
        QStringList faults;
        bool opened = false;
        WhenModalOpens([&](QDialog* dialog) {
            opened = true;
            faults = Faults(dialog);
            dialog->reject();
        });
        // Some entries wait for a condition (an error to list); the form is the same.
        main.ui.Action(entry)->setEnabled(true);
        main.ui.Action(entry)->trigger();
        QVERIFY(opened);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_MAIN(TestFrmMnemonics)
#include "test_frmMnemonics.moc"
