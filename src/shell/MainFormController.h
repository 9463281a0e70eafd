#pragma once

#include <QObject>
#include <functional>

class AppContext;

// The routines of the main window that hold the system's rules: the start-up steps, the
// recording folder check, the rules for leaving, and the database commands. The window
// calls them in its order and shows what they decide.
class MainFormController : public QObject {
    Q_OBJECT
public:
    explicit MainFormController(AppContext& ctx, QObject* parent = nullptr);

    // Asks the user for a recording folder, proposing one; "" when none was chosen.
    using FolderChooser = std::function<QString(const QString& proposed)>;

    // The steps of the form's load that need no window: variables, options, old files.
    void Form_Load();
    // The database and schedule steps of the first activation, up to the start of the
    // heartbeat; the window then calls FinishFirstActivation with its status bar's update.
    void InitializeForFirstActivation(const FolderChooser& chooser);
    void FinishFirstActivation(const std::function<void()>& UpdateStatusBarPlus);
    void CheckDefaultRecordingDirectory(const FolderChooser& chooser);
    // True to keep the program running. A close by the system (log-out, shutdown) skips
    // the question about scheduled programs but not the refusals.
    bool QueryUnload(bool closedBySystem);
    void Form_Unload();

    void mnuCompactDb_Click();
    void mnuRestoreOriginalDb_Click();

signals:
    // The program list and the recordings list may have changed as a whole.
    void ListsReplaced();

private:
    void InitializeVariables();
    void RemoveTemporaryRecordings(const QString& folder);

    AppContext& m_ctx;
};
