#pragma once

#include "control/CallMessageBox.h"
#include "scheduling/ProgramListCommands.h"

#include <QVariantMap>
#include <optional>

class AppDatabase;
class Clock;
class EventLog;
class Options;

// The program list's commands as a caller on the bus drives them: the list's cursor stands
// on one program, and the editor is the request itself. Its values go through the editor's
// own checks; the first that fails is the refusal, with the editor's title and text. The
// call that drives it captures the boxes the commands show (see CallMessageBox).
class ProgramRequestView : public ProgramListView {
public:
    struct Services {
        EventLog& log;
        AppDatabase& database;
        const Clock& clock;
        const Options& options;
        CallMessageBox& messageBox;
    };

    // bookmark is the program the command works on; -1 for a new one. The changes are what
    // the editor's form is given.
    ProgramRequestView(const Services& services, qint64 bookmark, const QVariantMap& changes);

    // Set when the editor refused the request, or its values could not be read.
    const std::optional<CallMessageBox::Refusal>& Refused() const { return m_refusal; }
    // The row that the command wrote or stands on at its end.
    qint64 CurrentBookmark() const override { return m_current; }

    QList<qint64> SelBookmarks() const override { return m_selected; }
    void AddSelBookmark(qint64 bookmark) override;
    void RemoveSelBookmark(qint64 bookmark) override { m_selected.removeAll(bookmark); }
    void SetCurrentBookmark(qint64 bookmark) override { m_current = bookmark; }
    bool ShowProgramForm(const ProgramFormValues& initial, bool editingExisting,
                         qint32 editProgramId, ProgramFormValues& result) override;
    // Choosing between enable and disable of several programs is never asked here.
    int ShowEnableDisablePrograms() override { return 2; }
    void UpdateProgramsButtonsAndMenus() override {}

private:
    Services m_s;
    qint64 m_current;
    QList<qint64> m_selected;
    QVariantMap m_changes;
    std::optional<CallMessageBox::Refusal> m_refusal;
};
