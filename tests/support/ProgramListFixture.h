#pragma once

#include "Programs.h"
#include "StoreParts.h"
#include "formats/clsRecordingFormat.h"
#include "scheduling/ProgramListCommands.h"
#include "scheduling/Scheduler.h"

#include <functional>

// The programs grid and its dialogs as the program commands see them, answered by script.
class FakeProgramListView : public ProgramListView {
public:
    QList<qint64> SelBookmarks() const override { return selected; }
    void AddSelBookmark(qint64 bookmark) override
    {
        if (!selected.contains(bookmark))
            selected.append(bookmark);
    }
    void RemoveSelBookmark(qint64 bookmark) override { selected.removeAll(bookmark); }
    qint64 CurrentBookmark() const override { return current; }
    void SetCurrentBookmark(qint64 bookmark) override { current = bookmark; }
    // Unless answerForm is set, the user cancels the editor; if set, it edits and saves.
    bool ShowProgramForm(const ProgramFormValues& initial, bool editingExisting,
                         qint32 editProgramId, ProgramFormValues& result) override
    {
        ++formsShown;
        shownWith = initial;
        shownEditing = editingExisting;
        shownId = editProgramId;
        if (!answerForm)
            return false;
        result = initial;
        answerForm(result);
        return true;
    }
    int ShowEnableDisablePrograms() override
    {
        ++enableDisableShown;
        return enableDisableChoice;
    }
    void UpdateProgramsButtonsAndMenus() override { ++buttonUpdates; }

    QList<qint64> selected;
    qint64 current = -1;
    std::function<void(ProgramFormValues&)> answerForm;
    int enableDisableChoice = 2;
    int formsShown = 0;
    int enableDisableShown = 0;
    int buttonUpdates = 0;
    ProgramFormValues shownWith;
    bool shownEditing = false;
    qint32 shownId = 0;
};

// A row as the editor writes it, in the default format of the fixtures (phone quality).
inline QVariantHash AsEdited(const QVariantHash& row)
{
    return Programs::WithPcmFormat(row, 11025, 8, "PCM 11.025 kHz, 8 Bit, Mono");
}

// The program commands over the store's parts at noon on Monday 1 June 2026, with a
// phone-quality default format.
struct ProgramListFixture : StoreParts {
    ProgramListFixture()
    {
        clock.Set(QDateTime(QDate(2026, 6, 1), QTime(12, 0, 0)));
        defaultFormat.SetToPcm(1, 11025, 8);
    }
    qint64 Add(const QVariantHash& row) { return AddProgram(AsEdited(row)); }

    Scheduler scheduler{clock, database, log, messageBox, options};
    clsRecordingFormat defaultFormat;
    FakeProgramListView view;
    ProgramListCommands commands{
        {database, scheduler, messageBox, clock, defaultFormat, Root() + "/mixer"}, view};
};
