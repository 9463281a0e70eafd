#pragma once

#include <QDialog>

class DiskForecast;
class DiskSpace;
class EventLog;
class Options;
class QLabel;
class QPushButton;
class QStandardItemModel;
class QTableView;
class RegKeys;
class clsError;

// "Disk Status": the recording drive's figures and the coming recordings, each with the
// space that will remain after it. Everything is worked out while the form loads; without
// a valid recording folder the form does not open at all.
class frmDiskStatus : public QDialog {
    Q_OBJECT
public:
    frmDiskStatus(EventLog& log, RegKeys& registry, const Options& options, const clsError& error,
                  DiskSpace& diskSpace, const DiskForecast& forecast, QWidget* owner);

    // Returns at once when the load unloaded the form.
    int exec() override;
    void done(int result) override;

    // Whether the load got as far as showing anything.
    bool Loaded() const { return m_loaded; }

private:
    void FormLoad(const Options& options, const clsError& error, DiskSpace& diskSpace,
                  const DiskForecast& forecast);
    void FillGrid(const Options& options, const DiskForecast& forecast, double freeMbytes);
    void SetColumnWidths();
    void RestoreGeometry(QWidget* owner);
    int ReadSetting(const char* name, int defaultValue) const;
    void SaveSettings();

    EventLog& m_log;
    RegKeys& m_registry;
    QLabel* lblCurrentDrive;
    QLabel* lblDiskSpaceUsed;
    QLabel* lblPercentUsed;
    QLabel* lblDiskCapacity;
    QLabel* lblDiskRemaining;
    QLabel* m_gridCaption;
    QTableView* TDBGrid1;
    QStandardItemModel* m_rows;
    QPushButton* btnExit;
    bool m_loaded = false;
};
