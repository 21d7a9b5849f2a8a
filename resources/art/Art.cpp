#include "Art.h"

#include <QFont>
#include <QSaveFile>
#include <QTransform>

namespace Art {

double latticeValue(uint64_t seed, int x, int y)
{
    uint64_t h = seed * 0xD6E8FEB86659FD93ULL ^ (uint64_t(uint32_t(x)) * 0x9E3779B97F4A7C15ULL)
                 ^ (uint64_t(uint32_t(y)) * 0xC2B2AE3D27D4EB4FULL);
    h ^= h >> 32;
    h *= 0xD6E8FEB86659FD93ULL;
    h ^= h >> 32;
    return double(h >> 11) * (1.0 / 9007199254740992.0);
}

double noise(uint64_t seed, double x, double y)
{
    const double fx = std::floor(x), fy = std::floor(y);
    const int ix = int(fx), iy = int(fy);
    double tx = x - fx, ty = y - fy;
    tx = tx * tx * (3 - 2 * tx);
    ty = ty * ty * (3 - 2 * ty);
    const double a = latticeValue(seed, ix, iy), b = latticeValue(seed, ix + 1, iy);
    const double c = latticeValue(seed, ix, iy + 1), d = latticeValue(seed, ix + 1, iy + 1);
    return (a + (b - a) * tx) + ((c + (d - c) * tx) - (a + (b - a) * tx)) * ty;
}

double fractal(uint64_t seed, double x, double y, int octaves)
{
    double sum = 0, amplitude = 0.5, total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += amplitude * noise(seed + uint64_t(i) * 101, x, y);
        total += amplitude;
        x *= 2.03;
        y *= 2.03;
        amplitude *= 0.5;
    }
    return sum / total;
}

static double linear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(QRgb rgb)
{
    return 0.2126 * linear(qRed(rgb)) + 0.7152 * linear(qGreen(rgb)) + 0.0722 * linear(qBlue(rgb));
}

QColor mix(const QColor &a, const QColor &b, double t)
{
    return QColor::fromRgbF(float(a.redF() + (b.redF() - a.redF()) * t),
                            float(a.greenF() + (b.greenF() - a.greenF()) * t),
                            float(a.blueF() + (b.blueF() - a.blueF()) * t),
                            float(a.alphaF() + (b.alphaF() - a.alphaF()) * t));
}

QColor withAlpha(QColor c, double alpha)
{
    c.setAlphaF(float(alpha));
    return c;
}

QString num(double v)
{
    QString s = QString::number(std::round(v * 10) / 10, 'f', 1);
    if (s.endsWith(QLatin1String(".0")))
        s.chop(2);
    if (s == QLatin1String("-0"))
        s = QStringLiteral("0");
    return s;
}

QString hex(const QColor &c)
{
    return c.name(QColor::HexRgb);
}

QString pathData(const QPainterPath &path)
{
    QString d;
    d.reserve(path.elementCount() * 12);
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            d += u'M' + num(e.x) + u',' + num(e.y);
            break;
        case QPainterPath::LineToElement:
            d += u'L' + num(e.x) + u',' + num(e.y);
            break;
        case QPainterPath::CurveToElement: {
            const QPainterPath::Element c2 = path.elementAt(i + 1), end = path.elementAt(i + 2);
            d += u'C' + num(e.x) + u',' + num(e.y) + u' ' + num(c2.x) + u',' + num(c2.y) + u' '
                 + num(end.x) + u',' + num(end.y);
            i += 2;
            break;
        }
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return d;
}

QPainterPath textPath(const QString &text, const QString &family, double pixelSize, double cx,
                      double baseline, double letterSpacing, int weight, bool italic)
{
    QFont font(family);
    font.setPixelSize(int(std::round(pixelSize)));
    font.setWeight(QFont::Weight(weight));
    font.setItalic(italic);
    font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF box = path.boundingRect();
    return path.translated(cx - box.center().x(), baseline);
}

QPainterPath smoothThrough(const QList<QPointF> &points)
{
    QPainterPath path;
    if (points.isEmpty())
        return path;
    path.moveTo(points.first());
    for (qsizetype i = 0; i + 1 < points.size(); ++i) {
        const QPointF p0 = points.value(i - 1, points[i]), p1 = points[i], p2 = points[i + 1];
        const QPointF p3 = points.value(i + 2, p2);
        path.cubicTo(p1 + (p2 - p0) / 6, p2 - (p3 - p1) / 6, p2);
    }
    return path;
}

Svg::Svg(double width, double height) : m_width(width), m_height(height) {}

static QString stopsMarkup(const QList<std::pair<double, QColor>> &stops)
{
    QString s;
    for (const auto &[offset, colour] : stops) {
        s += QStringLiteral("<stop offset=\"%1\" stop-color=\"%2\"").arg(QString::number(offset, 'g', 4), hex(colour));
        if (colour.alphaF() < 1)
            s += QStringLiteral(" stop-opacity=\"%1\"").arg(QString::number(colour.alphaF(), 'g', 3));
        s += QStringLiteral("/>");
    }
    return s;
}

QString Svg::linearGradient(const QString &id, double x1, double y1, double x2, double y2,
                            const QList<std::pair<double, QColor>> &stops)
{
    m_defs += QStringLiteral("<linearGradient id=\"%1\" gradientUnits=\"userSpaceOnUse\" x1=\"%2\" "
                             "y1=\"%3\" x2=\"%4\" y2=\"%5\">")
                  .arg(id, num(x1), num(y1), num(x2), num(y2))
              + stopsMarkup(stops) + QStringLiteral("</linearGradient>\n");
    return QStringLiteral("url(#%1)").arg(id);
}

QString Svg::radialGradient(const QString &id, double cx, double cy, double r,
                            const QList<std::pair<double, QColor>> &stops)
{
    m_defs += QStringLiteral("<radialGradient id=\"%1\" gradientUnits=\"userSpaceOnUse\" cx=\"%2\" "
                             "cy=\"%3\" r=\"%4\">")
                  .arg(id, num(cx), num(cy), num(r))
              + stopsMarkup(stops) + QStringLiteral("</radialGradient>\n");
    return QStringLiteral("url(#%1)").arg(id);
}

QByteArray Svg::document() const
{
    QString s = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<svg xmlns=\"http://www.w3.org/2000/svg\" "
                               "xmlns:xlink=\"http://www.w3.org/1999/xlink\" version=\"1.2\" "
                               "baseProfile=\"tiny\" width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\">\n")
                    .arg(num(m_width), num(m_height));
    if (!m_defs.isEmpty())
        s += QStringLiteral("<defs>\n") + m_defs + QStringLiteral("</defs>\n");
    s += m_body;
    s += QStringLiteral("</svg>\n");
    return s.toUtf8();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(bytes);
    return file.commit();
}

QPainterPath lark()
{
    QPainterPath body;
    body.addEllipse(QPointF(0, 0), 46, 17);
    QPainterPath bird = body * QTransform().translate(110, 92).rotate(-28);
    QPainterPath head;
    head.addEllipse(QPointF(150, 66), 13, 12);
    bird = bird.united(head);
    QPainterPath parts;
    parts.moveTo(159, 60); // beak
    parts.lineTo(174, 64);
    parts.lineTo(160, 70);
    parts.closeSubpath();
    parts.moveTo(143, 58); // crest
    parts.lineTo(131, 43);
    parts.lineTo(151, 55);
    parts.closeSubpath();
    parts.moveTo(80, 103); // tail, spread and slightly notched
    parts.lineTo(40, 118);
    parts.lineTo(50, 127);
    parts.lineTo(42, 138);
    parts.lineTo(86, 117);
    parts.closeSubpath();
    // Near wing: broad, raised, its trailing edge in rounded flight feathers.
    parts.moveTo(130, 82);
    parts.cubicTo(126, 52, 102, 24, 64, 6);
    const QList<QPointF> trailing = {{70, 30}, {78, 47}, {88, 63}, {100, 80}, {104, 96}};
    QPointF last(64, 6);
    for (const QPointF &pt : trailing) {
        const QPointF mid = (last + pt) / 2;
        const QPointF out(-(pt.y() - last.y()) * 0.28, (pt.x() - last.x()) * 0.28);
        parts.quadTo(mid + out, pt);
        last = pt;
    }
    parts.closeSubpath();
    // Far wing, foreshortened behind the head.
    parts.moveTo(122, 78);
    parts.cubicTo(124, 52, 134, 30, 150, 14);
    parts.cubicTo(160, 30, 154, 58, 142, 80);
    parts.closeSubpath();
    parts.setFillRule(Qt::WindingFill);
    for (const QPolygonF &poly : parts.toSubpathPolygons()) {
        QPainterPath piece;
        piece.addPolygon(poly);
        piece.closeSubpath();
        bird = bird.united(piece);
    }
    return bird.simplified();
}

} // namespace Art
