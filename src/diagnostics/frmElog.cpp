#include "diagnostics/frmElog.h"

#include "common/MessageBox.h"
#include "common/Twips.h"
#include "diagnostics/clsError.h"
#include "diagnostics/frmElogDetails.h"
#include "gui/FormPlacement.h"
#include "store/AppDatabase.h"
#include "store/GridColumns.h"
#include "store/RecordsetModel.h"
#include "store/RegKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTimer>

namespace {

constexpr int kTypeColumn = 0;
constexpr int kDateColumn = 1;
constexpr int kMessageColumn = 2;
constexpr int kDetailsColumn = 3;
// Tool bar and cool bar height, 22 pixels as on the main form.
constexpr int kBarHeight = 22;

// Column 0 shows a picture for the entry's type instead of its number.
class TypePictureDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text.clear();
        const QVariant type = index.data(Qt::EditRole);
        if (type.isNull())
            return;
        QStyle::StandardPixmap picture;
        switch (type.toInt()) {
        case 0:
            picture = QStyle::SP_MessageBoxInformation;
            break;
        case 1:
            picture = QStyle::SP_MessageBoxWarning;
            break;
        case 2:
            picture = QStyle::SP_MessageBoxCritical;
            break;
        default:
            return;
        }
        const QStyle* style = option->widget ? option->widget->style() : QApplication::style();
        option->icon = style->standardIcon(picture);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = QSize(16, 16);
        option->decorationAlignment = Qt::AlignCenter;
        option->decorationPosition = QStyleOptionViewItem::Top;
    }
};

} // namespace

frmElog::frmElog(AppDatabase& database, clsError& error, RegKeys& registry,
                 MessageBoxPresenter& messageBox, QWidget* owner)
    : QDialog(owner)
    , m_database(database)
    , m_error(error)
    , m_registry(registry)
    , m_messageBox(messageBox)
{
    setupUi(this);
    Details->setIcon(style()->standardIcon(QStyle::SP_FileDialogInfoView));
    Remove->setIcon(style()->standardIcon(QStyle::SP_TrashIcon));

    m_model = new RecordsetModel(m_database.DataElog, GridColumns::EventLog(), this);
    DBGridLog->setModel(m_model);
    DBGridLog->setItemDelegateForColumn(kTypeColumn, new TypePictureDelegate(DBGridLog));
    DBGridLog->horizontalHeader()->setSectionsClickable(false);
    DBGridLog->verticalHeader()->setFixedWidth(14);
    DBGridLog->viewport()->installEventFilter(this);
    DBGridLog->installEventFilter(this);
    // The corner toggles the selection of all rows instead of selecting all.
    if (auto* corner = DBGridLog->findChild<QAbstractButton*>()) {
        disconnect(corner, nullptr, DBGridLog, nullptr);
        connect(corner, &QAbstractButton::clicked, this, &frmElog::ToggleSelectAll);
    }

    m_tmrRefresh = new QTimer(this);
    m_tmrRefresh->setObjectName(QStringLiteral("tmrRefresh"));
    m_tmrRefresh->setSingleShot(true);

    connect(Details, &QAction::triggered, this, &frmElog::ShowElogDetails);
    connect(mnuDetails, &QAction::triggered, this, &frmElog::ShowElogDetails);
    connect(Remove, &QAction::triggered, this, &frmElog::RemoveElogItems);
    connect(mnuRemove, &QAction::triggered, this, &frmElog::RemoveElogItems);
    connect(mnuExit, &QAction::triggered, this, &QDialog::reject);
    connect(m_tmrRefresh, &QTimer::timeout, this, &frmElog::tmrRefresh_Timer);
    connect(m_model, &RecordsetModel::RowsChanged, this, &frmElog::OnRowsChanged);
    connect(DBGridLog->horizontalHeader(), &QHeaderView::sectionResized, this, [this](int section) {
        if (section == kTypeColumn || section == kDateColumn)
            FitMessageColumn();
    });

    // Load: the geometry first, then the children may follow the size. The settings keep
    // the layout in twips, as the program has always stored it.
    RestoreGeometry(owner);
    m_resizeActive = true;
    CoolBarLog->setFixedHeight(kBarHeight);
    ToolbarElog->setFixedHeight(kBarHeight);
    DBGridLog->setColumnWidth(kTypeColumn, Twips::ToPixels(ReadSetting("ElogFormCol0Width", 500)));
    DBGridLog->setColumnWidth(kDateColumn, Twips::ToPixels(ReadSetting("ElogFormCol1Width", 1800)));
    // Details lie beyond the message, reached by scrolling; the details form shows them whole.
    DBGridLog->setColumnWidth(kDetailsColumn, Twips::ToPixels(3000));
    Details->setEnabled(false);
    Remove->setEnabled(false);
    mnuDetails->setEnabled(false);
    mnuRemove->setEnabled(false);
    m_error.ElogViewed();
    try {
        m_database.ElogRecordset();
        m_database.DataElog.SetRecordSource(GridColumns::SortStatement(
            QStringLiteral("EventLog"),
            GridColumns::DataFieldOf(GridColumns::EventLog(), QStringLiteral("Date/Time")), false));
        RefreshDataElog();
    } catch (const std::exception&) {
        // Without a usable database the log is shown empty; there is nowhere to report it.
    }
    UpdateElogButtons();
    FormResize();
    DBGridLog->setFocus();
}

frmElog::~frmElog()
{
    m_error.SetElogVisible(false);
}

int frmElog::ReadSetting(const char* name, int defaultValue) const
{
    bool ok = false;
    const int value =
        m_registry.GetSetting(QStringLiteral("Settings"), QLatin1String(name), QString())
            .trimmed()
            .toInt(&ok);
    return ok ? value : defaultValue;
}

void frmElog::RestoreGeometry(QWidget* owner)
{
    const QPoint corner = FormPlacement::OffsetFromMainForm(owner, 100);
    const int top = ReadSetting("ElogFormTop", Twips::FromPixels(corner.y()));
    const int left = ReadSetting("ElogFormLeft", Twips::FromPixels(corner.x()));
    const int width = ReadSetting("ElogFormWidth", 7500);
    const int height = ReadSetting("ElogFormHeight", 5000);
    move(Twips::ToPixels(left), Twips::ToPixels(top));
    resize(Twips::ToPixels(width), Twips::ToPixels(height));
}

void frmElog::SaveSettings()
{
    if (windowState() & (Qt::WindowMinimized | Qt::WindowMaximized))
        return;
    // The window's outer corner and its inner size: what is stored comes back unchanged.
    auto save = [this](const char* name, int pixels) {
        m_registry.SaveSetting(QStringLiteral("Settings"), QLatin1String(name),
                               QString::number(Twips::FromPixels(pixels)));
    };
    save("ElogFormTop", y());
    save("ElogFormLeft", x());
    save("ElogFormWidth", width());
    save("ElogFormHeight", height());
    save("ElogFormCol0Width", DBGridLog->columnWidth(kTypeColumn));
    save("ElogFormCol1Width", DBGridLog->columnWidth(kDateColumn));
}

void frmElog::done(int result)
{
    SaveSettings();
    m_error.SetElogVisible(false);
    QDialog::done(result);
}

void frmElog::showEvent(QShowEvent* event)
{
    m_error.SetElogVisible(true);
    QDialog::showEvent(event);
}

void frmElog::hideEvent(QHideEvent* event)
{
    // A minimised log still counts as on screen; only a real hide ends that.
    if (!event->spontaneous())
        m_error.SetElogVisible(false);
    QDialog::hideEvent(event);
}

void frmElog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        FormActivate();
}

void frmElog::FormActivate()
{
    if (m_firstActivation) {
        m_firstActivation = false;
        UpdateElogButtons();
        FormResize();
    }
    // Coming back from the details keeps the grid as it was, so the selected row stays.
    if (!m_returnFromDetails) {
        RefreshDataElog();
        m_error.ElogViewed();
    }
    m_returnFromDetails = false;
}

void frmElog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    FormResize();
}

void frmElog::FormResize()
{
    if (!m_resizeActive)
        return;
    const int margin = Twips::ToPixels(300) / 2;
    const int gridWidth = qMax(0, width() - Twips::ToPixels(300));
    const int gridHeight = qMax(0, height() - Twips::ToPixels(528));
    CoolBarLog->setGeometry(margin, 2, gridWidth, kBarHeight);
    DBGridLog->setGeometry(margin, kBarHeight + 5, gridWidth, gridHeight);
    FitMessageColumn();
}

void frmElog::FitMessageColumn()
{
    // The message stays readable: it gets the width that the picture and the date leave.
    const int rest = DBGridLog->viewport()->width() - DBGridLog->columnWidth(kTypeColumn) -
                     DBGridLog->columnWidth(kDateColumn);
    DBGridLog->setColumnWidth(kMessageColumn, qMax(rest, 60));
}

void frmElog::RefreshDataElog()
{
    m_refreshing = true;
    try {
        m_database.DataElog.Refresh();
    } catch (const std::exception&) {
        // The log can't report a failure to read itself; the grid keeps what it shows.
    }
    m_refreshing = false;
}

void frmElog::UpdateElogButtons()
{
    DBGridLog->viewport()->update();
    const bool any = m_model->rowCount() > 0;
    Details->setEnabled(any);
    Remove->setEnabled(any);
    mnuDetails->setEnabled(any);
    mnuRemove->setEnabled(any);
}

void frmElog::OnRowsChanged()
{
    UpdateElogButtons();
    // Our own refresh must not arm the timer again, or the grid would refresh forever.
    if (!m_refreshing)
        m_tmrRefresh->start(10);
}

void frmElog::tmrRefresh_Timer()
{
    m_tmrRefresh->stop();
    if (isVisible())
        RefreshDataElog();
}

void frmElog::ToggleSelectAll()
{
    const int rows = m_model->rowCount();
    if (DBGridLog->selectionModel()->selectedRows().size() < rows)
        DBGridLog->selectAll();
    else
        DBGridLog->clearSelection();
}

bool frmElog::GridMousePress(QMouseEvent* event)
{
    m_mouseY = event->position().toPoint().y();
    if (event->button() != Qt::RightButton)
        return false;
    const QModelIndex index = DBGridLog->indexAt(event->position().toPoint());
    if (!index.isValid())
        return false;
    DBGridLog->setCurrentIndex(index);
    mnuLog->popup(DBGridLog->viewport()->mapToGlobal(event->position().toPoint()));
    return true;
}

bool frmElog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == DBGridLog->viewport()) {
        if (event->type() == QEvent::MouseButtonPress)
            return GridMousePress(static_cast<QMouseEvent*>(event));
        if (event->type() == QEvent::MouseButtonDblClick) {
            if (DBGridLog->rowAt(m_mouseY) >= 0)
                ShowElogDetails();
            return true;
        }
    } else if (watched == DBGridLog && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const auto modifiers = key->modifiers() & ~Qt::KeypadModifier;
        if (modifiers == Qt::NoModifier) {
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                ShowElogDetails();
                return true;
            }
            if (key->key() == Qt::Key_Delete) {
                RemoveElogItems();
                return true;
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmElog::ShowElogDetails()
{
    if (m_model->rowCount() == 0)
        return;
    // A fresh grid stands on its first row, as the recordset does after a refresh.
    const int row = DBGridLog->currentIndex().isValid() ? DBGridLog->currentIndex().row() : 0;
    auto value = [&](int column) {
        return m_model->index(row, column).data(Qt::EditRole);
    };
    frmElogDetails details(this);
    details.Fill(value(kTypeColumn), value(kDateColumn), value(kMessageColumn).toString(),
                 value(kDetailsColumn).toString());
    m_returnFromDetails = true;
    details.exec();
}

void frmElog::RemoveElogItems()
{
    const MsgResult answer = m_messageBox.Show(tr("Remove All Error Log Entries"),
                                               tr("This will clear the error log. Proceed?"),
                                               MsgIcon::None, MsgButtons::YesNo);
    if (answer == MsgResult::Yes) {
        try {
            RefreshDataElog();
            m_database.db.Execute(QStringLiteral("DELETE FROM [EventLog]"));
            RefreshDataElog();
        } catch (const std::exception&) {
            // A log that can't be cleared stays as it is; there is nowhere to report it.
        }
    }
    // Also on No: the full condition stays hidden until the next entry recounts the rows.
    m_error.SetElogFull(false);
    UpdateElogButtons();
}
