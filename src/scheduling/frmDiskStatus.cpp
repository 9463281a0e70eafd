#include "scheduling/frmDiskStatus.h"

#include "common/Twips.h"
#include "diagnostics/Trap.h"
#include "diagnostics/clsError.h"
#include "gui/FormPlacement.h"
#include "platform/DiskSpace.h"
#include "scheduling/DiskForecast.h"
#include "store/Options.h"
#include "store/RegKeys.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStorageInfo>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

namespace {

const QString kSection = QStringLiteral("Settings");

QString Megabytes(double value)
{
    return QString::number(value, 'f', 1);
}

// The percentage with one decimal and no zero before the point: 0.5 shows as ".5". The
// status bar writes its percentage differently.
QString Percent(double value)
{
    QString text = QString::number(value, 'f', 1);
    if (text.startsWith(QStringLiteral("0.")))
        text.remove(0, 1);
    return text;
}

QStandardItem* Cell(const QString& text, Qt::Alignment alignment = Qt::AlignLeft)
{
    auto* item = new QStandardItem(text);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    item->setEditable(false);
    return item;
}

} // namespace

frmDiskStatus::frmDiskStatus(EventLog& log, RegKeys& registry, const Options& options,
                             const clsError& error, DiskSpace& diskSpace,
                             const DiskForecast& forecast, QWidget* owner)
    : QDialog(owner)
    , m_log(log)
    , m_registry(registry)
{
    setObjectName(QStringLiteral("frmDiskStatus"));
    setWindowTitle(tr("Disk Status"));
    setSizeGripEnabled(true);
    const auto label = [this](const char* name) {
        auto* l = new QLabel(this);
        l->setObjectName(QLatin1String(name));
        return l;
    };
    lblCurrentDrive = label("lblCurrentDrive");
    lblDiskSpaceUsed = label("lblDiskSpaceUsed");
    lblPercentUsed = label("lblPercentUsed");
    lblDiskCapacity = label("lblDiskCapacity");
    lblDiskRemaining = label("lblDiskRemaining");
    m_gridCaption = label("TDBGrid1Caption");
    m_gridCaption->setAlignment(Qt::AlignCenter);
    m_gridCaption->setFrameShape(QFrame::Panel);
    m_gridCaption->setFrameShadow(QFrame::Raised);
    m_gridCaption->setAutoFillBackground(true);
    m_gridCaption->setBackgroundRole(QPalette::Button);

    m_rows = new QStandardItemModel(0, 4, this);
    m_rows->setHorizontalHeaderLabels(
        {tr("Description"), tr("Start Date/Time"), tr("End Date/Time"), tr("Mbytes")});
    TDBGrid1 = new QTableView(this);
    TDBGrid1->setObjectName(QStringLiteral("TDBGrid1"));
    TDBGrid1->setModel(m_rows);
    TDBGrid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    TDBGrid1->setSelectionBehavior(QAbstractItemView::SelectRows);
    TDBGrid1->setWordWrap(false);
    TDBGrid1->verticalHeader()->setDefaultSectionSize(20);
    TDBGrid1->verticalHeader()->setFixedWidth(14);
    TDBGrid1->horizontalHeader()->setStretchLastSection(true);
    TDBGrid1->horizontalHeader()->setHighlightSections(false);

    btnExit = new QPushButton(tr("E&xit"), this);
    btnExit->setObjectName(QStringLiteral("btnExit"));
    connect(btnExit, &QPushButton::clicked, this, &QDialog::reject);

    // The labels keep their place above; the grid and the button follow the form's size.
    auto* layout = new QVBoxLayout(this);
    for (QLabel* l :
         {lblCurrentDrive, lblDiskSpaceUsed, lblPercentUsed, lblDiskCapacity, lblDiskRemaining})
        layout->addWidget(l);
    layout->addSpacing(6);
    auto* grid = new QVBoxLayout;
    grid->setSpacing(0);
    grid->addWidget(m_gridCaption);
    grid->addWidget(TDBGrid1, 1);
    layout->addLayout(grid, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnExit);
    layout->addLayout(buttons);

    RestoreGeometry(owner);
    FormLoad(options, error, diskSpace, forecast);
}

void frmDiskStatus::FormLoad(const Options& options, const clsError& error, DiskSpace& diskSpace,
                             const DiskForecast& forecast)
{
    Trap(m_log, "Disk Status Form Load", [&] {
        if (error.InvalidRecordingDirectory())
            return;
        m_loaded = true;
        const QString folder = options.DefaultRecordingDirectory;
        const DiskSpaceMb disk = diskSpace.GetRecDirDiskSpaceMb(folder);
        // The drive of a recording folder is the file system it lies on: its mount point.
        lblCurrentDrive->setText(tr("Default Recording Drive: ") + QStorageInfo(folder).rootPath());
        lblDiskSpaceUsed->setText(tr("Disk Space Used: ") + Megabytes(disk.used) +
                                  tr(" Megabytes"));
        lblPercentUsed->setText(tr("Percent Used: ") + Percent(disk.usedPercent) + u'%');
        lblDiskCapacity->setText(tr("Disk Capacity: ") + Megabytes(disk.total) + tr(" Megabytes"));
        lblDiskRemaining->setText(tr("Disk Space Remaining: ") + Megabytes(disk.free) +
                                  tr(" Megabytes"));
        FillGrid(options, forecast, disk.free);
        SetColumnWidths();
    });
}

void frmDiskStatus::FillGrid(const Options& options, const DiskForecast& forecast,
                             double freeMbytes)
{
    m_gridCaption->setText(tr("Calculating Scheduled Recordings. Please Wait."));
    const QList<DiskForecastRow> rows =
        forecast.Rows(freeMbytes, options.StopRecMegsLeft, options.PaddingSeconds);
    QApplication::processEvents();
    for (const DiskForecastRow& row : rows) {
        m_rows->appendRow({Cell(row.description), Cell(Options::DateText(row.startTime)),
                           Cell(Options::DateText(row.endTime)),
                           Cell(QString::number(row.remainingMbytes), Qt::AlignRight)});
    }
    m_gridCaption->setText(tr("Scheduled Recordings and Remaining Disk Space After Recording"));
}

void frmDiskStatus::SetColumnWidths()
{
    TDBGrid1->setColumnWidth(0, Twips::ToPixels(ReadSetting("DiskFormCol0Width", 2700)));
    // Until the user has set their widths, the date columns are wide enough for the
    // locale's dates and times.
    for (int column : {1, 2}) {
        const char* name = column == 1 ? "DiskFormCol1Width" : "DiskFormCol2Width";
        const int width = ReadSetting(name, -1);
        if (width >= 0) {
            TDBGrid1->setColumnWidth(column, Twips::ToPixels(width));
        } else {
            TDBGrid1->resizeColumnToContents(column);
            TDBGrid1->setColumnWidth(column,
                                     qMax(TDBGrid1->columnWidth(column), Twips::ToPixels(1800)));
        }
    }
    // A first opening also makes room for the Mbytes column.
    if (ReadSetting("DiskFormWidth", -1) < 0) {
        const QMargins margins = layout()->contentsMargins();
        int needed = margins.left() + margins.right() + 2 * TDBGrid1->frameWidth() +
                     TDBGrid1->verticalHeader()->width() +
                     style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 110;
        for (int column = 0; column < 3; ++column)
            needed += TDBGrid1->columnWidth(column);
        resize(qMax(width(), needed), height());
    }
}

int frmDiskStatus::exec()
{
    if (!m_loaded)
        return QDialog::Rejected;
    return QDialog::exec();
}

int frmDiskStatus::ReadSetting(const char* name, int defaultValue) const
{
    bool ok = false;
    const int value =
        m_registry.GetSetting(kSection, QLatin1String(name), QString()).trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}

void frmDiskStatus::RestoreGeometry(QWidget* owner)
{
    const QPoint corner = FormPlacement::OffsetFromMainForm(owner, 100);
    const int top = ReadSetting("DiskFormTop", Twips::FromPixels(corner.y()));
    const int left = ReadSetting("DiskFormLeft", Twips::FromPixels(corner.x()));
    move(Twips::ToPixels(left), Twips::ToPixels(top));
    resize(Twips::ToPixels(ReadSetting("DiskFormWidth", 7500)),
           Twips::ToPixels(ReadSetting("DiskFormHeight", 5000)));
}

void frmDiskStatus::SaveSettings()
{
    if (windowState() & (Qt::WindowMinimized | Qt::WindowMaximized))
        return;
    const auto save = [this](const char* name, int pixels) {
        m_registry.SaveSetting(kSection, QLatin1String(name),
                               QString::number(Twips::FromPixels(pixels)));
    };
    save("DiskFormTop", y());
    save("DiskFormLeft", x());
    save("DiskFormWidth", width());
    save("DiskFormHeight", height());
    save("DiskFormCol0Width", TDBGrid1->columnWidth(0));
    save("DiskFormCol1Width", TDBGrid1->columnWidth(1));
    save("DiskFormCol2Width", TDBGrid1->columnWidth(2));
}

void frmDiskStatus::done(int result)
{
    if (m_loaded)
        SaveSettings();
    QDialog::done(result);
}
