#pragma once

#include "ModalDialogs.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimeEdit>

// Edits a form as a user makes them, in order: "name=value". A box is typed into on its tab,
// so that leaving it runs the form's rules; buttons take 1 or 0 and are clicked only when that
// changes them; lists take an index, "last" or an item's text; time pickers HH:mm:ss.
inline void Apply(QWidget* form, const QStringList& edits)
{
    for (const QString& edit : edits) {
        const QString name = edit.section(u'=', 0, 0);
        const QString value = edit.section(u'=', 1);
        QWidget* control = Control(form, name);
        if (auto* box = qobject_cast<QLineEdit*>(control)) {
            for (QTabWidget* tabs : form->findChildren<QTabWidget*>()) {
                for (int i = 0; i < tabs->count(); ++i) {
                    if (tabs->widget(i)->isAncestorOf(box))
                        tabs->setCurrentIndex(i);
                }
            }
            box->setFocus();
            box->selectAll();
            box->del();
            QTest::keyClicks(box, value);
        } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
            if (button->isChecked() != (value == "1"))
                button->click();
        } else if (auto* list = qobject_cast<QComboBox*>(control)) {
            bool isIndex = false;
            const int index = value == "last" ? list->count() - 1 : value.toInt(&isIndex);
            if (isIndex || value == "last")
                list->setCurrentIndex(index);
            else
                list->setCurrentText(value);
        } else if (auto* time = qobject_cast<QTimeEdit*>(control)) {
            time->setTime(QTime::fromString(value, "HH:mm:ss"));
        } else {
            qFatal("can't edit %s", qPrintable(name));
        }
    }
}
