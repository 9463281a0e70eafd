#pragma once

#include <QDialog>
#include <QVariant>

class QLabel;

// One entry of the event log, read only.
class frmElogDetails : public QDialog {
    Q_OBJECT
public:
    explicit frmElogDetails(QWidget* owner);

    // Fills the labels from a row of the log. A Type other than 0, 1 or 2 leaves the type
    // label as it was.
    void Fill(const QVariant& type, const QVariant& dateAndTime, const QString& message,
              const QString& details);

private:
    QLabel* m_lblDate;
    QLabel* m_lblTime;
    QLabel* m_lblType;
    QLabel* m_lblDescription;
    QLabel* m_lblDetails;
};
