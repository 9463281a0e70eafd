#include "shell/Icons.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace Icons {
namespace {

QIcon Drawn(const std::function<void(QPainter&)>& draw)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return QIcon(pixmap);
}

QIcon Standard(QStyle::StandardPixmap pixmap)
{
    return QApplication::style()->standardIcon(pixmap);
}

} // namespace

QIcon Named(const QString& name)
{
    if (name == u"record" || name == u"recording")
        return Drawn([](QPainter& p) {
            p.setBrush(QColor(200, 0, 0));
            p.setPen(Qt::NoPen);
            p.drawEllipse(6, 6, 20, 20);
        });
    if (name == u"pause1" || name == u"pause2")
        return Drawn([pressed = name == u"pause2"](QPainter& p) {
            p.setPen(Qt::NoPen);
            p.setBrush(pressed ? QColor(200, 120, 0) : QColor(60, 60, 60));
            p.drawRect(8, 6, 6, 20);
            p.drawRect(18, 6, 6, 20);
        });
    if (name == u"mixer")
        return Standard(QStyle::SP_MediaVolume);
    if (name == u"stop")
        return Standard(QStyle::SP_MediaStop);
    if (name == u"play")
        return Standard(QStyle::SP_MediaPlay);
    if (name == u"disk")
        return Standard(QStyle::SP_DriveHDIcon);
    if (name == u"help")
        return Drawn([](QPainter& p) {
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(30, 90, 180));
            p.drawEllipse(4, 4, 24, 24);
            p.setPen(Qt::white);
            QFont font = p.font();
            font.setBold(true);
            font.setPixelSize(18);
            p.setFont(font);
            p.drawText(QRect(4, 4, 24, 24), Qt::AlignCenter, QStringLiteral("?"));
        });
    if (name == u"error")
        return Standard(QStyle::SP_MessageBoxWarning);
    if (name == u"add")
        return Standard(QStyle::SP_FileDialogNewFolder);
    if (name == u"edit")
        return Standard(QStyle::SP_FileDialogDetailedView);
    if (name == u"remove")
        return Standard(QStyle::SP_TrashIcon);
    if (name == u"clone")
        return Standard(QStyle::SP_FileLinkIcon);
    if (name == u"enable")
        return Standard(QStyle::SP_DialogApplyButton);
    if (name == u"details")
        return Standard(QStyle::SP_FileDialogInfoView);
    if (name == u"open")
        return Standard(QStyle::SP_DialogOpenButton);
    if (name == u"save")
        return Standard(QStyle::SP_DialogSaveButton);
    if (name == u"clear")
        return Standard(QStyle::SP_DialogResetButton);
    return Standard(QStyle::SP_FileIcon);
}

} // namespace Icons
