#pragma once

#include <QDialog>

class QComboBox;
class QListWidget;

// "Select from all recording formats": every format of the codec catalogue, chosen by
// format tag and then by its attributes. Opens on the format handed in when the
// catalogue lists it, and hands back a full record with its extra bytes.
class FormatChooser : public QDialog {
    Q_OBJECT
public:
    FormatChooser(const QByteArray& current, QWidget* parent);

    // The record chosen; empty while nothing is selected.
    QByteArray SelectedRecord() const;

    // Shows the chooser modally over owner. On OK writes the chosen record into the
    // buffer of size cbwfx and returns 0; returns 1 on cancel and 2 when the record does
    // not fit the buffer, leaving the buffer as it was.
    static int Choose(QWidget* owner, quint8* pwfx, int cbwfx);

private:
    void FillAttributes(int tagIndex);

    QComboBox* m_tags;
    QListWidget* m_attributes;
    QList<quint16> m_tagValues;
};
