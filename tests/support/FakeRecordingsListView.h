#pragma once

#include "common/RuntimeError.h"
#include "recordingslist/RecordingsListView.h"
#include "store/Recordset.h"

#include <functional>

// The grid and the forms, answered by script. With fail set, every question to the grid or
// the user fails as a broken list would.
class FakeRecordingsListView : public RecordingsListView {
public:
    QList<qint64> SelectedRows() const override { return Fail(), selected; }
    qint64 CommandRow() const override { return Fail(), commandRow; }
    void ClearSelection() override { selected.clear(); }
    void SelectAll() override {}
    QString AskForFile(const QString& filter) override
    {
        Fail();
        askedFilter = filter;
        return answer;
    }
    QString AskForFolder(const QString& startFolder) override
    {
        Fail();
        askedStart = startFolder;
        return answer;
    }
    void ShowRecordingDetails(const Recordset& row) override
    {
        detailsOf = row.Value("File").toString();
    }
    void ShowLoadList() override {}
    void ShowSaveList() override {}
    void CopyToClipboard(const QString& text) override { clipboard = text; }
    void OpenFolder(const QString& folder) override { opened = folder; }
    void UpdateRecordingsButtonsAndMenus() override { ++buttonUpdates; }
    void UpdateStatusBarPlus() override { ++statusUpdates; }
    void UpdateModeDisplay() override { ++modeUpdates; }
    void PlayRecording(const QString& file, const QString& title, double startTime) override
    {
        if (play)
            play(file, title, startTime);
    }

    void Fail() const
    {
        if (fail)
            throw RuntimeError(ErrorNumber::NoCurrentRecord, "No current record.");
    }

    bool fail = false;
    QList<qint64> selected;
    qint64 commandRow = -1;
    QString answer, askedFilter, askedStart, detailsOf, clipboard, opened;
    int buttonUpdates = 0, statusUpdates = 0, modeUpdates = 0;
    // Where a play goes; nowhere without it.
    std::function<void(const QString&, const QString&, double)> play;
};
