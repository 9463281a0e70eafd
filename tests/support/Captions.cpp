// Prints the captions of the main window and of a dialog, one a line, in the language the
// locale of its environment asks for: the window and the dialog as the program builds them,
// with the catalogues loaded as the program loads them at its start.
#include "common/ProgramFiles.h"
#include "common/Translations.h"
#include "scheduling/frmEnableDisablePrograms.h"
#include "shell/frmMainUi.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenuBar>
#include <QTabWidget>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Translations::Install(ProgramFiles(QStringLiteral(NIGHTREEL_BIN_DIR)));
    QTextStream out(stdout);

    QMainWindow window;
    frmMainUi ui;
    ui.Setup(&window);
    out << window.windowTitle() << '\n';
    for (const QAction* menu : window.menuBar()->actions())
        out << menu->text() << '\n';
    for (int i = 0; i < ui.SSTab1->count(); ++i)
        out << ui.SSTab1->tabText(i) << '\n';

    frmEnableDisablePrograms dialog(&window);
    out << dialog.windowTitle() << '\n';
    for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
        out << button->text() << '\n';
    // A text of Qt's own, from its catalogue.
    out << QKeySequence(Qt::CTRL | Qt::Key_Q).toString(QKeySequence::NativeText) << '\n';
    return 0;
}
