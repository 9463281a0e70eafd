#pragma once

#include "Programs.h"
#include "TestContext.h"
#include "scheduling/ProgramListCommands.h"

#include <functional>

// The programs grid and its dialogs as the program commands see them, answered by script.
class FakeProgramListView : public ProgramListView {
public:
    FakeProgramListView() = default;
    // Views that show real forms need the context; this one takes it to stand in for them.
    explicit FakeProgramListView(AppContext&) {}

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

// An open database of programs with the commands on it.
template <typename View = FakeProgramListView> struct ProgramListFixture {
    ProgramListFixture()
    {
        tc.clock.Set(QDateTime(QDate(2026, 6, 1), QTime(12, 0, 0)));
        tc.OpenDatabase();
        tc.ctx->WfxDefault.SetToPcm(1, 11025, 8);
    }
    // Rows get the format that every row written by the editor has.
    qint64 Add(const QVariantHash& row)
    {
        const qint64 id =
            tc.AddProgram(Programs::WithPcmFormat(row, 11025, 8, "PCM 11.025 kHz, 8 Bit, Mono"));
        tc.ctx->database.DataPrograms.Requery();
        return id;
    }
    QVariant Column(qint64 id, const QString& column)
    {
        Recordset rs = tc.ctx->database.DataPrograms.recordset().Clone();
        rs.FindFirst("Id = " + QString::number(id));
        return rs.NoMatch() ? QVariant() : rs.Value(column);
    }

    TestContext tc;
    View view{*tc.ctx};
    ProgramListCommands commands{tc.ctx->ForProgramList(), view};
};
