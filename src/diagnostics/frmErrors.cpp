#include "diagnostics/frmErrors.h"

#include "diagnostics/clsError.h"
#include "diagnostics/frmElog.h"
#include "gui/FormPlacement.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString ErrorListText(const clsError& error)
{
    const QStringList texts = error.ConditionTexts();
    return texts.isEmpty() ? QStringLiteral("none")
                           : texts.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
}

} // namespace

frmErrors::frmErrors(clsError& error, AppDatabase& database, RegKeys& registry,
                     MessageBoxPresenter& messageBox, QWidget* owner)
    : QDialog(owner)
    , m_error(error)
    , m_database(database)
    , m_registry(registry)
    , m_messageBox(messageBox)
    , m_txtbxErrors(new QPlainTextEdit)
    , m_lblNumErrors(new QLabel)
    , m_btnViewElog(new QPushButton(tr("&View Error Log")))
    , m_btnExit(new QPushButton(tr("E&xit")))
{
    setObjectName(QStringLiteral("frmErrors"));
    setWindowTitle(QStringLiteral("Errors/Warnings"));

    auto* head = new QLabel(tr("The following error/warning conditions are present:"));
    head->setObjectName(QStringLiteral("lblHead"));
    m_txtbxErrors->setObjectName(QStringLiteral("txtbxErrors"));
    m_txtbxErrors->setReadOnly(true);
    m_lblNumErrors->setObjectName(QStringLiteral("lblNumErrors"));
    m_btnViewElog->setObjectName(QStringLiteral("btnViewElog"));
    m_btnExit->setObjectName(QStringLiteral("btnExit"));
    m_btnExit->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_btnViewElog);
    buttons->addWidget(m_btnExit);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(head);
    layout->addWidget(m_txtbxErrors, 1);
    layout->addWidget(m_lblNumErrors);
    layout->addLayout(buttons);

    connect(m_btnViewElog, &QPushButton::clicked, this, &frmErrors::btnViewElog_Click);
    connect(m_btnExit, &QPushButton::clicked, this, &QDialog::accept);

    resize(460, 260);
    FormPlacement::PlaceAtMainForm(this, owner, 100);
    RefreshErrorList();
}

void frmErrors::RefreshErrorList()
{
    const clsError& error = m_error;
    m_txtbxErrors->setPlainText(ErrorListText(error));
    if (error.UnviewedElogErrors()) {
        const int count = error.NumUnviewedElogErrors();
        m_lblNumErrors->setText(count == 1
                                    ? tr("There is an unviewed error/warning in the error log.")
                                    : tr("There are ") + QString::number(count) +
                                          tr(" unviewed errors/warnings in the error log."));
        m_btnViewElog->setEnabled(true);
    } else {
        m_lblNumErrors->clear();
        m_btnViewElog->setEnabled(false);
    }
    if (error.ElogFull())
        m_btnViewElog->setEnabled(true);
}

void frmErrors::btnViewElog_Click()
{
    frmElog elog(m_database, m_error, m_registry, m_messageBox, this);
    elog.exec();
    RefreshErrorList();
}
