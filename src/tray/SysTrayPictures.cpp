#include "tray/SysTrayPictures.h"

#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <cmath>
#include <numbers>

namespace SysTrayPictures {
namespace {

// Everything is drawn on a grid of 16 units and scaled: at 16 pixels a unit is a pixel.
const QColor kOutlineDark(20, 20, 30);

// The outer edge of a picture: dark on a light palette, light on a dark one, where the
// panel is most likely dark as well and a dark edge would melt into it.
bool DarkPalette()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

QColor Edge(const QColor& onLight)
{
    return DarkPalette() ? QColor(232, 232, 238) : onLight;
}

void Reel(QPainter& p, const QColor& fill, const QColor& rim, const QColor& holes)
{
    p.setPen(QPen(Edge(rim), 1.0));
    p.setBrush(fill);
    p.drawEllipse(QPointF(8, 8), 7.0, 7.0);
    p.setPen(Qt::NoPen);
    p.setBrush(holes);
    p.drawEllipse(QPointF(8, 8), 1.3, 1.3);
    for (int k = 0; k < 3; ++k) {
        const double a = (-90.0 + 120.0 * k) * std::numbers::pi / 180.0;
        p.drawEllipse(QPointF(8 + 4.2 * std::cos(a), 8 + 4.2 * std::sin(a)), 1.7, 1.7);
    }
}

void RedDisc(QPainter& p, const QColor& fill, const QColor& rim)
{
    p.setPen(QPen(Edge(rim), 1.0));
    p.setBrush(fill);
    p.drawEllipse(QPointF(8, 8), 7.0, 7.0);
}

// The red disc with a white sector that has turned (frame - 1) sixteenths of a circle.
void RecordFrame(QPainter& p, int frame)
{
    RedDisc(p, QColor(214, 40, 40), QColor(110, 12, 12));
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    // A quarter of the circle: at 16 pixels a narrower one reads as a speck.
    const int start = int((90.0 - 22.5 * (frame - 1)) * 16);
    p.drawPie(QRectF(2.0, 2.0, 12.0, 12.0), start, -80 * 16);
}

// A blue square with a circular arrow that has turned (frame - 1) fifths of a circle.
void ConvertFrame(QPainter& p, int frame)
{
    p.setPen(QPen(Edge(QColor(10, 50, 105)), 1.0));
    p.setBrush(QColor(25, 105, 200));
    p.drawRoundedRect(QRectF(1.0, 1.0, 14.0, 14.0), 2.5, 2.5);
    p.save();
    p.translate(8, 8);
    p.rotate(72.0 * (frame - 1));
    QPen arc(Qt::white, 1.9);
    arc.setCapStyle(Qt::FlatCap);
    p.setPen(arc);
    p.setBrush(Qt::NoBrush);
    // From twelve o'clock clockwise round to nine; the head points on.
    p.drawArc(QRectF(-4.3, -4.3, 8.6, 8.6), 90 * 16, -270 * 16);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    const QPointF head[] = {{-4.3, -3.2}, {-6.9, 0.8}, {-1.7, 0.8}};
    p.drawPolygon(head, 3);
    p.restore();
}

void PauseFrame(QPainter& p, bool bright)
{
    if (bright)
        RedDisc(p, QColor(214, 40, 40), QColor(110, 12, 12));
    else
        RedDisc(p, QColor(244, 190, 190), QColor(150, 70, 70));
    p.setPen(Qt::NoPen);
    p.setBrush(bright ? QColor(Qt::white) : QColor(150, 70, 70));
    p.drawRect(QRectF(4.6, 4.2, 2.5, 7.6));
    p.drawRect(QRectF(8.9, 4.2, 2.5, 7.6));
}

// The small play sign of the pictures that show playing as well: bottom right, with a
// light edge that parts it from the picture below.
void PlayBadge(QPainter& p)
{
    const QPointF badge[] = {{8.0, 7.6}, {15.6, 11.8}, {8.0, 16.0}};
    p.setPen(QPen(QColor(255, 255, 255), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(QColor(40, 190, 80));
    p.drawPolygon(badge, 3);
    p.setPen(QPen(QColor(10, 80, 30), 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolygon(badge, 3);
}

void General(QPainter& p, int index)
{
    switch (index) {
    case SysTrayPicture::Normal:
        Reel(p, QColor(32, 58, 110), QColor(10, 22, 48), QColor(222, 232, 248));
        break;
    case SysTrayPicture::Error: {
        const QPointF sign[] = {{8.0, 0.9}, {15.3, 14.6}, {0.7, 14.6}};
        p.setPen(QPen(Edge(QColor(90, 65, 0)), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(QColor(245, 196, 0));
        p.drawPolygon(sign, 3);
        p.setPen(Qt::NoPen);
        p.setBrush(kOutlineDark);
        p.drawRect(QRectF(7.1, 5.0, 1.8, 5.2));
        p.drawRect(QRectF(7.1, 11.3, 1.8, 1.8));
        break;
    }
    case SysTrayPicture::Play: {
        p.setPen(QPen(Edge(QColor(10, 80, 30)), 1.0));
        p.setBrush(QColor(35, 160, 65));
        p.drawEllipse(QPointF(8, 8), 7.0, 7.0);
        p.setPen(Qt::NoPen);
        p.setBrush(Qt::white);
        const QPointF play[] = {{5.8, 4.2}, {12.2, 8.0}, {5.8, 11.8}};
        p.drawPolygon(play, 3);
        break;
    }
    default: {
        Reel(p, QColor(140, 140, 140), QColor(70, 70, 70), QColor(225, 225, 225));
        QPen halo(QColor(255, 255, 255), 3.4, Qt::SolidLine, Qt::RoundCap);
        p.setPen(halo);
        p.drawLine(QPointF(3.0, 13.0), QPointF(13.0, 3.0));
        p.setPen(QPen(QColor(200, 30, 30), 2.0, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(3.0, 13.0), QPointF(13.0, 3.0));
        break;
    }
    }
}

void Draw(QPainter& p, const SysTrayPicture& picture)
{
    switch (picture.list) {
    case SysTrayList::General:
        General(p, picture.index);
        break;
    case SysTrayList::Record:
        RecordFrame(p, picture.index);
        break;
    case SysTrayList::RecordAndPlay:
        RecordFrame(p, picture.index);
        PlayBadge(p);
        break;
    case SysTrayList::Convert:
        ConvertFrame(p, picture.index);
        break;
    case SysTrayList::ConvertAndPlay:
        ConvertFrame(p, picture.index);
        PlayBadge(p);
        break;
    case SysTrayList::Pause:
        PauseFrame(p, picture.index % 2 == 1);
        if (picture.index >= 3)
            PlayBadge(p);
        break;
    }
}

} // namespace

QPixmap Pixmap(const SysTrayPicture& picture, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 16.0, size / 16.0);
    Draw(p, picture);
    return pixmap;
}

QIcon Icon(const SysTrayPicture& picture)
{
    static QHash<int, QIcon> drawn;
    const int key = (int(picture.list) * 100 + picture.index) * 2 + (DarkPalette() ? 1 : 0);
    auto it = drawn.find(key);
    if (it == drawn.end()) {
        QIcon icon;
        for (int size : {16, 22, 24, 32, 48, 64})
            icon.addPixmap(Pixmap(picture, size));
        it = drawn.insert(key, icon);
    }
    return *it;
}

} // namespace SysTrayPictures
