#pragma once

#include <QDialog>

class Recordset;

// The facts of one row of the recordings list.
class frmRecordingDetails : public QDialog {
    Q_OBJECT
public:
    // Filled from the current row of the recordset.
    frmRecordingDetails(const Recordset& row, QWidget* owner);
};
