#pragma once

#include <QString>

class MessageBoxPresenter;
class ProcessLauncher;

// Opens a web page in the program that opens HTML files, never through the URL's own
// handler: the desktop is asked which program opens a small page file in the temporary
// folder, and that program is started with the URL. A missing program or a failed start
// is told in a message box; the page file is removed in any case. A page file that can't
// be written throws, marked with the routine's name.
void ViewHtmlFile(MessageBoxPresenter& messageBox, ProcessLauncher& launcher,
                  const QString& tempFolder, const QString& url);
