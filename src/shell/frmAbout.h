#pragma once

#include <QDialog>

class AppContext;

// The program's name, version and notice, and a button that shows facts about the system
// it runs on.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    frmAbout(AppContext& ctx, QWidget* owner);

    static QString ProductName();
    // "Version 1.0.0": the application's version, or the built-in one when none is set.
    static QString VersionText();
    static QString NoticeText();
    // The facts the System Info button shows, one per line.
    static QString SystemFacts();

private:
    void btnSysInfo_Click();

    AppContext& m_ctx;
};
