#include "sideactions/ViewHtmlFile.h"

#include "common/MessageBox.h"
#include "common/RuntimeError.h"
#include "platform/ProcessLauncher.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QScopeGuard>

void ViewHtmlFile(MessageBoxPresenter& messageBox, ProcessLauncher& launcher,
                  const QString& tempFolder, const QString& url)
{
    const QString path = QDir(tempFolder).filePath(QStringLiteral("temphtm.HTM"));
    InRoutine("ViewHtmlFile", [&] {
        const auto removeFile = qScopeGuard([&] { QFile::remove(path); });
        // The content doesn't matter: the file only has to exist for its type to be judged.
        QFile page(path);
        if (!page.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            page.write("<HTML> <\\HTML>") < 0)
            throw RuntimeError(
                ErrorNumber::PathFileAccess,
                QCoreApplication::translate("ViewHtmlFile", "Path/File access error: ") + path);
        page.close();

        const QString browser = launcher.FindExecutable(path);
        if (browser.isEmpty()) {
            messageBox.Show(
                QCoreApplication::translate("ViewHtmlFile", "Browser Not Found"),
                QCoreApplication::translate("ViewHtmlFile", "Could not find associated Browser"),
                MsgIcon::Exclamation, MsgButtons::Ok);
            return;
        }
        if (!launcher.ShellExecute(browser, url, WindowStyleNormal))
            messageBox.Show(QCoreApplication::translate("ViewHtmlFile", "URL Failed"),
                            QCoreApplication::translate("ViewHtmlFile", "Web Page not Opened"),
                            MsgIcon::Exclamation, MsgButtons::Ok);
    });
}
