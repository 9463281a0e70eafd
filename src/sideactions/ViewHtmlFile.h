#pragma once

#include <QString>

class EventLog;
class MessageBoxPresenter;
class ProcessLauncher;

// Opens a web page in the program that opens HTML files, never through the URL's own
// handler: the desktop is asked which program opens a small page file in the temporary
// folder, and that program is started with the URL. A missing program or a failed start
// is told in a message box; the page file is removed in any case.
void ViewHtmlFile(EventLog& log, MessageBoxPresenter& messageBox, ProcessLauncher& launcher,
                  const QString& tempFolder, const QString& url);
