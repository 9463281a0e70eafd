#include "shell/Icons.h"

#include <QApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <functional>

namespace Icons {
namespace {

// Each picture is drawn on a grid of 32 units, in the palette's text colour where it is a
// plain sign, so that it reads on light and dark themes; colour marks only what colour
// means (record is red, a warning yellow). Drawn at the size asked for, it stays sharp at
// any scaling.
using Draw = std::function<void(QPainter&, const QColor& ink)>;

class DrawnIconEngine : public QIconEngine {
public:
    explicit DrawnIconEngine(Draw draw)
        : m_draw(std::move(draw))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QApplication::palette();
        const QColor ink = palette.color(
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::WindowText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 32.0, rect.height() / 32.0);
        if (mode == QIcon::Disabled)
            painter->setOpacity(0.45);
        m_draw(*painter, ink);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new DrawnIconEngine(m_draw); }

private:
    Draw m_draw;
};

QIcon Drawn(Draw draw)
{
    return QIcon(new DrawnIconEngine(std::move(draw)));
}

QPen Line(const QColor& ink, double width = 2.5)
{
    return QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void Fill(QPainter& p, const QColor& colour)
{
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
}

void Outline(QPainter& p, const QColor& ink, double width = 2.5)
{
    p.setPen(Line(ink, width));
    p.setBrush(Qt::NoBrush);
}

void Polygon(QPainter& p, std::initializer_list<QPointF> points)
{
    p.drawPolygon(QPolygonF(QList<QPointF>(points)));
}

const QHash<QString, Draw>& Pictures()
{
    static const QHash<QString, Draw> pictures{
        {QStringLiteral("record"),
         [](QPainter& p, const QColor&) {
             Fill(p, QColor(230, 60, 60));
             p.drawEllipse(QPointF(16, 16), 10, 10);
         }},
        {QStringLiteral("pause1"),
         [](QPainter& p, const QColor& ink) {
             Fill(p, ink);
             p.drawRect(QRectF(8, 6, 6, 20));
             p.drawRect(QRectF(18, 6, 6, 20));
         }},
        {QStringLiteral("pause2"),
         [](QPainter& p, const QColor&) {
             Fill(p, QColor(230, 140, 0));
             p.drawRect(QRectF(8, 6, 6, 20));
             p.drawRect(QRectF(18, 6, 6, 20));
         }},
        {QStringLiteral("stop"),
         [](QPainter& p, const QColor& ink) {
             Fill(p, ink);
             p.drawRoundedRect(QRectF(7, 7, 18, 18), 2, 2);
         }},
        {QStringLiteral("play"),
         [](QPainter& p, const QColor&) {
             Fill(p, QColor(60, 190, 90));
             Polygon(p, {{9, 5}, {27, 16}, {9, 27}});
         }},
        {QStringLiteral("mixer"),
         [](QPainter& p, const QColor& ink) {
             Fill(p, ink);
             Polygon(p, {{4, 12}, {10, 12}, {17, 5}, {17, 27}, {10, 20}, {4, 20}});
             Outline(p, ink);
             p.drawArc(QRectF(13, 9, 10, 14), -60 * 16, 120 * 16);
             p.drawArc(QRectF(12, 4, 17, 24), -60 * 16, 120 * 16);
         }},
        {QStringLiteral("disk"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             p.drawRoundedRect(QRectF(4, 9, 24, 14), 3, 3);
             Fill(p, ink);
             p.drawEllipse(QPointF(23, 16), 2, 2);
         }},
        {QStringLiteral("help"),
         [](QPainter& p, const QColor&) {
             Fill(p, QColor(50, 120, 220));
             p.drawEllipse(QPointF(16, 16), 13, 13);
             p.setPen(Qt::white);
             QFont font = p.font();
             font.setBold(true);
             font.setPixelSize(20);
             p.setFont(font);
             p.drawText(QRectF(3, 3, 26, 26), Qt::AlignCenter, QStringLiteral("?"));
         }},
        {QStringLiteral("error"),
         [](QPainter& p, const QColor& ink) {
             p.setPen(Line(ink, 1.5));
             p.setBrush(QColor(245, 196, 0));
             Polygon(p, {{16, 3}, {30, 28}, {2, 28}});
             Fill(p, QColor(20, 20, 30));
             p.drawRect(QRectF(14.5, 11, 3, 9));
             p.drawRect(QRectF(14.5, 22, 3, 3));
         }},
        {QStringLiteral("add"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink, 3.5);
             p.drawLine(QPointF(16, 6), QPointF(16, 26));
             p.drawLine(QPointF(6, 16), QPointF(26, 16));
         }},
        {QStringLiteral("edit"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             Polygon(p, {{7, 25}, {8, 19}, {21, 6}, {26, 11}, {13, 24}});
             p.drawLine(QPointF(18, 9), QPointF(23, 14));
         }},
        {QStringLiteral("remove"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             p.drawLine(QPointF(6, 9), QPointF(26, 9));
             p.drawLine(QPointF(13, 9), QPointF(14, 5));
             p.drawLine(QPointF(14, 5), QPointF(18, 5));
             p.drawLine(QPointF(18, 5), QPointF(19, 9));
             Polygon(p, {{9, 9}, {10.5, 27}, {21.5, 27}, {23, 9}});
             p.drawLine(QPointF(14, 14), QPointF(14, 22));
             p.drawLine(QPointF(18, 14), QPointF(18, 22));
         }},
        {QStringLiteral("clone"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             p.drawRoundedRect(QRectF(5, 5, 15, 17), 2, 2);
             p.drawRoundedRect(QRectF(12, 11, 15, 17), 2, 2);
         }},
        {QStringLiteral("enable"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink, 3.5);
             p.drawPolyline(QPolygonF({{6, 17}, {13, 24}, {26, 8}}));
         }},
        {QStringLiteral("details"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             p.drawEllipse(QPointF(16, 16), 12, 12);
             Fill(p, ink);
             p.drawEllipse(QPointF(16, 10), 2, 2);
             p.drawRoundedRect(QRectF(14.5, 14, 3, 10), 1, 1);
         }},
        {QStringLiteral("open"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             Polygon(p, {{4, 8}, {12, 8}, {15, 11}, {27, 11}, {27, 25}, {4, 25}});
             p.drawLine(QPointF(4, 15), QPointF(27, 15));
         }},
        {QStringLiteral("save"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             Polygon(p, {{5, 5}, {23, 5}, {27, 9}, {27, 27}, {5, 27}});
             p.drawRect(QRectF(10, 5, 11, 7));
             p.drawRect(QRectF(9, 18, 14, 9));
         }},
        {QStringLiteral("clear"),
         [](QPainter& p, const QColor& ink) {
             Outline(p, ink);
             p.drawEllipse(QPointF(16, 16), 12, 12);
             p.drawLine(QPointF(11, 11), QPointF(21, 21));
             p.drawLine(QPointF(11, 21), QPointF(21, 11));
         }},
    };
    return pictures;
}

} // namespace

QIcon Named(const QString& name)
{
    const QString key = name == u"recording" ? QStringLiteral("record") : name;
    const auto found = Pictures().constFind(key);
    return found == Pictures().constEnd() ? QIcon() : Drawn(*found);
}

QIcon Application()
{
    return QIcon(QStringLiteral(":/nightreel.svg"));
}

} // namespace Icons
