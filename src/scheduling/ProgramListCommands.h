#pragma once

#include "scheduling/ProgramEditor.h"

#include <QCoreApplication>
#include <QList>
#include <QtGlobal>

class AppDatabase;
class Clock;
class MessageBoxPresenter;
class Scheduler;

// What the program commands work with.
struct ProgramListServices {
    AppDatabase& database;
    Scheduler& scheduler;
    MessageBoxPresenter& messageBox;
    const Clock& clock;
    // A new program starts with this format.
    const clsRecordingFormat& defaultFormat;
    // Where the mixer profiles that rows name are looked for.
    QString mixerFolder;
};

// What the program commands need of the programs grid and of the dialogs. The grid's
// selection is a set of bookmarks (row IDs); its current row is the row under the cursor.
class ProgramListView {
public:
    virtual ~ProgramListView() = default;

    virtual QList<qint64> SelBookmarks() const = 0;
    virtual void AddSelBookmark(qint64 bookmark) = 0;
    virtual void RemoveSelBookmark(qint64 bookmark) = 0;
    // -1 without a current row.
    virtual qint64 CurrentBookmark() const = 0;
    virtual void SetCurrentBookmark(qint64 bookmark) = 0;

    // Shows the program editor modally with these values. True when the user saved; the
    // editor's answer is then in result.
    virtual bool ShowProgramForm(const ProgramFormValues& initial, bool editingExisting,
                                 qint32 editProgramId, ProgramFormValues& result) = 0;
    // Shows the enable/disable question for several programs: 0 enable, 1 disable, 2 cancel.
    virtual int ShowEnableDisablePrograms() = 0;
    virtual void UpdateProgramsButtonsAndMenus() = 0;
};

// The five commands on the program list and the ways of selecting in it. Each works through
// the list's recordset, throws its failures marked with its own name for the trap of the
// menu, the tool bar or the bus call that gave it, and has the next recording worked out
// again after a change.
class ProgramListCommands {
public:
    ProgramListCommands(const ProgramListServices& services, ProgramListView& view);

    void AddNewProgram();
    void CopyProgram();
    void EditProgram();
    void RemovePrograms();
    void ToggleProgramEnables();
    void SelectAll();
    // A double click: on a row it edits the program, elsewhere nothing.
    void DblClick(bool onRow);

private:
    // Puts the recordset on the row that edit and clone work on; false when there is none.
    bool FindRowToWorkOn();
    void RemoveAllSelBookmarks();
    bool HasCurrentRow() const;
    ProgramFormValues ReadCurrentRow();

    ProgramListServices m_services;
    ProgramListView& m_view;

    Q_DECLARE_TR_FUNCTIONS(ProgramListCommands)
};
