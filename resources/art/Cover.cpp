// The cover: night giving way to dawn over the hills, a lark rising, the well on the hill,
// and the title on the dark meadow below, clear of the menu that opens over the middle.
#include "Art.h"

#include <QDir>
#include <QTransform>

namespace Art {

namespace {
constexpr double W = 1200, H = 1800;
constexpr double horizon = 1190;
const QColor edge(0x13, 0x20, 0x36); // also the background colour around the cover

QString fillPath(const QPainterPath &path, const QString &fill, double opacity = 1)
{
    QString s = QStringLiteral("<path d=\"%1\" fill=\"%2\"").arg(pathData(path), fill);
    if (opacity < 1)
        s += QStringLiteral(" fill-opacity=\"%1\"").arg(num(opacity * 100).toDouble() / 100);
    return s + QStringLiteral("/>\n");
}

// A ridge line closed down to `bottom`: far enough to pass under the next hill's lowest dip.
// Closed any lower, the renderer fills rows the nearer hills cover again.
QPainterPath ridge(uint64_t seed, double base, double amplitude, double waves, double bottom = H + 10)
{
    QList<QPointF> pts;
    Random r(seed);
    const double p1 = r.range(0, 2 * pi), p2 = r.range(0, 2 * pi);
    for (int i = -1; i <= 25; ++i) {
        const double x = i * W / 24;
        const double t = x / W;
        const double y = base - amplitude * (0.6 * std::sin(t * waves * pi + p1)
                                             + 0.4 * std::sin(t * waves * 2.3 * pi + p2));
        pts.append({x, y});
    }
    QPainterPath path = smoothThrough(pts);
    path.lineTo(W + 60, bottom);
    path.lineTo(-60, bottom);
    path.closeSubpath();
    return path;
}

double ridgeY(const QPainterPath &path, double x)
{
    // The ridge is the upper edge: the topmost crossing of a vertical line.
    QPainterPath probe;
    probe.addRect(QRectF(x - 0.5, 0, 1, H));
    return path.intersected(probe).boundingRect().top();
}

QPainterPath well()
{
    // Drawn around the foot of the drum at (0, 0), about 150 wide and 200 high.
    QPainterPath p;
    p.setFillRule(Qt::WindingFill);
    // Drum of stone, its rim an ellipse.
    p.addRect(QRectF(-52, -58, 104, 58));
    p.addEllipse(QRectF(-56, -68, 112, 20));
    // Posts.
    p.addRect(QRectF(-46, -150, 8, 90));
    p.addRect(QRectF(38, -150, 8, 90));
    // Roof with eaves.
    QPainterPath roof;
    roof.moveTo(-72, -138);
    roof.lineTo(0, -196);
    roof.lineTo(72, -138);
    roof.lineTo(62, -134);
    roof.lineTo(0, -180);
    roof.lineTo(-62, -134);
    roof.closeSubpath();
    p.addPath(roof);
    QPainterPath gable;
    gable.moveTo(-56, -140);
    gable.lineTo(0, -184);
    gable.lineTo(56, -140);
    gable.closeSubpath();
    p.addPath(gable);
    // Windlass and crank.
    p.addRect(QRectF(-44, -116, 88, 7));
    p.addRect(QRectF(46, -115, 16, 4));
    p.addRect(QRectF(59, -115, 4, 18));
    // Rope and bucket.
    p.addRect(QRectF(-1, -110, 2, 26));
    QPainterPath bucket;
    bucket.moveTo(-10, -86);
    bucket.lineTo(10, -86);
    bucket.lineTo(8, -70);
    bucket.lineTo(-8, -70);
    bucket.closeSubpath();
    p.addPath(bucket);
    return p.simplified();
}

QPainterPath grassBlade(double x, double bottom, double top, double lean, double width)
{
    QPainterPath p;
    p.moveTo(x - width / 2, bottom);
    p.cubicTo(x - width / 2, bottom - (bottom - top) * 0.5, x + lean * 0.4, top + (bottom - top) * 0.2,
              x + lean, top);
    p.cubicTo(x + lean * 0.4 + width * 0.3, top + (bottom - top) * 0.2, x + width / 2,
              bottom - (bottom - top) * 0.5, x + width / 2, bottom);
    p.closeSubpath();
    return p;
}

QString gold(Svg &svg, const QString &id, double top, double bottom)
{
    return svg.linearGradient(id, 0, top, 0, bottom,
                              {{0, QColor(0xf8, 0xe8, 0xbe)}, {0.55, QColor(0xe8, 0xc8, 0x86)},
                               {1, QColor(0xc9, 0x9d, 0x55)}});
}
}

bool writeCover(const QString &directory)
{
    Svg svg(W, H);
    Random r(1801);

    // Sky: deep night at the top to a warm dawn at the horizon.
    const QString sky = svg.linearGradient(
        QStringLiteral("sky"), 0, 0, 0, horizon,
        {{0, edge}, {0.3, QColor(0x1c, 0x2f, 0x55)}, {0.55, QColor(0x3a, 0x49, 0x78)},
         {0.78, QColor(0x74, 0x68, 0x92)}, {1, QColor(0xb4, 0x88, 0x9a)}});
    // The sky and its glow stop below the far hills' lowest dip (horizon + 24), where the hills
    // cover them; nothing above the glow's circle is drawn for it, as its last stop is clear.
    const double skyBottom = horizon + 40;
    const QPointF glowCentre(640, horizon + 20);
    const double glowRadius = 760;
    svg.add(QStringLiteral("<rect width=\"%1\" height=\"%2\" fill=\"%3\"/>\n").arg(num(W), num(skyBottom), sky));
    const QString glow = svg.radialGradient(
        QStringLiteral("glow"), glowCentre.x(), glowCentre.y(), glowRadius,
        {{0, withAlpha(QColor(0xff, 0xf3, 0xcc), 1)}, {0.18, withAlpha(QColor(0xfc, 0xda, 0xa4), 0.9)},
         {0.45, withAlpha(QColor(0xf0, 0xa8, 0x90), 0.55)}, {0.75, withAlpha(QColor(0xb0, 0x84, 0xa0), 0.18)},
         {1, withAlpha(QColor(0xb0, 0x84, 0xa0), 0)}});
    const double glowTop = glowCentre.y() - glowRadius;
    svg.add(QStringLiteral("<rect y=\"%1\" width=\"%2\" height=\"%3\" fill=\"%4\"/>\n")
                .arg(num(glowTop), num(W), num(skyBottom - glowTop), glow));

    // Stars, thinning as the sky brightens.
    for (int i = 0; i < 300; ++i) {
        const double x = r.range(0, W);
        const double y = 820 * std::pow(r.uniform(), 1.5);
        const double fade = 1 - y / 900;
        const double rad = r.range(0.7, 2.2) * (r.chance(0.08) ? 1.6 : 1);
        const QColor c = r.chance(0.3) ? QColor(0xff, 0xe9, 0xc4) : QColor(0xe8, 0xef, 0xff);
        svg.add(QStringLiteral("<circle cx=\"%1\" cy=\"%2\" r=\"%3\" fill=\"%4\" fill-opacity=\"%5\"/>\n")
                    .arg(num(x), num(y), num(rad), hex(c),
                         QString::number(fade * r.range(0.35, 0.95), 'f', 2)));
    }
    // A few bright stars with four long points; the morning star the brightest.
    const QList<QPointF> bright = {{262, 622}, {960, 360}, {470, 120}, {880, 190}, {130, 150}};
    for (qsizetype i = 0; i < bright.size(); ++i) {
        const double s = i == 0 ? 30 : r.range(12, 18);
        const QPointF c = bright[i];
        QPainterPath star;
        star.moveTo(c.x(), c.y() - s);
        star.quadTo(c.x(), c.y(), c.x() + s * 0.8, c.y());
        star.quadTo(c.x(), c.y(), c.x(), c.y() + s);
        star.quadTo(c.x(), c.y(), c.x() - s * 0.8, c.y());
        star.quadTo(c.x(), c.y(), c.x(), c.y() - s);
        const QString halo = svg.radialGradient(
            QStringLiteral("halo%1").arg(i), c.x(), c.y(), s * 1.4,
            {{0, withAlpha(QColor(0xff, 0xf4, 0xdc), 0.55)}, {1, withAlpha(QColor(0xff, 0xf4, 0xdc), 0)}});
        svg.add(QStringLiteral("<circle cx=\"%1\" cy=\"%2\" r=\"%3\" fill=\"%4\"/>\n")
                    .arg(num(c.x()), num(c.y()), num(s * 1.4), halo));
        svg.add(fillPath(star, QStringLiteral("#fff8e8"), 0.95));
    }

    // The old moon, a thin crescent with a soft halo.
    {
        const QPointF m(300, 330);
        const double rad = 54;
        const QString halo = svg.radialGradient(
            QStringLiteral("moonhalo"), m.x(), m.y(), rad * 3.2,
            {{0, withAlpha(QColor(0xf6, 0xec, 0xd4), 0.28)}, {0.4, withAlpha(QColor(0xc8, 0xd2, 0xea), 0.1)},
             {1, withAlpha(QColor(0xc8, 0xd2, 0xea), 0)}});
        svg.add(QStringLiteral("<circle cx=\"%1\" cy=\"%2\" r=\"%3\" fill=\"%4\"/>\n")
                    .arg(num(m.x()), num(m.y()), num(rad * 3.2), halo));
        QPainterPath disc, bite;
        disc.addEllipse(m, rad, rad);
        bite.addEllipse(m + QPointF(-24, -12), rad * 0.96, rad * 0.96);
        const QString moon = svg.linearGradient(QStringLiteral("moon"), m.x(), m.y() - rad, m.x() + rad, m.y() + rad,
                                                {{0, QColor(0xff, 0xf8, 0xe6)}, {1, QColor(0xf0, 0xd9, 0xa8)}});
        svg.add(fillPath(disc.subtracted(bite), moon));
    }

    // Long dawn clouds, lit from below.
    for (int i = 0; i < 9; ++i) {
        const double y = r.range(900, 1120);
        const double x = r.range(-100, W - 200);
        const double len = r.range(260, 620);
        const double th = r.range(6, 16);
        QPainterPath cloud;
        cloud.moveTo(x, y);
        cloud.cubicTo(x + len * 0.3, y - th * 1.6, x + len * 0.7, y - th, x + len, y);
        cloud.cubicTo(x + len * 0.7, y + th * 0.5, x + len * 0.3, y + th * 0.7, x, y);
        const double warmth = (y - 900) / 220;
        svg.add(fillPath(cloud, hex(mix(QColor(0xb7, 0x8e, 0xb0), QColor(0xff, 0xd6, 0xa8), warmth)),
                         r.range(0.35, 0.6)));
    }

    // The rising sun behind the far hills.
    svg.add(QStringLiteral("<circle cx=\"640\" cy=\"%1\" r=\"64\" fill=\"#fff4d4\"/>\n").arg(num(horizon - 6)));

    // Hills: far and misty, the well's hill, then the dark meadow. Each ridge stays within its
    // base line give or take its amplitude, and is closed just under the next one's lowest dip.
    const double midBase = horizon + 70, midAmplitude = 46;
    const double nearBase = horizon + 190, nearAmplitude = 40;
    const QPainterPath far = ridge(11, horizon - 10, 34, 2.2, midBase + midAmplitude + 15);
    svg.add(fillPath(far, svg.linearGradient(QStringLiteral("far"), 0, horizon - 60, 0, horizon + 80,
                                              {{0, QColor(0x9a, 0x86, 0xa6)}, {1, QColor(0x6e, 0x6c, 0x92)}})));
    svg.add(QStringLiteral("<rect y=\"%1\" width=\"%2\" height=\"120\" fill=\"%3\"/>\n")
                .arg(num(horizon - 10), num(W),
                     svg.linearGradient(QStringLiteral("mist"), 0, horizon - 10, 0, horizon + 110,
                                        {{0, withAlpha(QColor(0xf7, 0xdc, 0xc6), 0)},
                                         {0.5, withAlpha(QColor(0xf7, 0xdc, 0xc6), 0.45)},
                                         {1, withAlpha(QColor(0xf7, 0xdc, 0xc6), 0)}})));
    const QPainterPath mid = ridge(23, midBase, midAmplitude, 1.6, nearBase + nearAmplitude + 15);
    svg.add(fillPath(mid, svg.linearGradient(QStringLiteral("mid"), 0, horizon, 0, horizon + 240,
                                              {{0, QColor(0x3c, 0x45, 0x6c)}, {1, QColor(0x24, 0x31, 0x52)}})));
    const double wellX = 352;
    const double wellY = ridgeY(mid, wellX) + 14;
    svg.add(fillPath(well() * QTransform::fromScale(0.95, 0.95).translate(wellX / 0.95, wellY / 0.95),
                     QStringLiteral("#222c4a")));
    const QPainterPath near = ridge(37, nearBase, nearAmplitude, 1.2);
    svg.add(fillPath(near, svg.linearGradient(QStringLiteral("near"), 0, horizon + 140, 0, H,
                                               {{0, QColor(0x1e, 0x2b, 0x47)}, {0.45, edge}, {1, edge}})));

    // Meadow grasses in silhouette, framing the left and right. Each blade is a path of its
    // own: one path of all of them crosses hundreds of edges on every scanline and takes the
    // renderer seven times as long to fill.
    {
        QString blades;
        const auto addBlade = [&blades](const QPainterPath &blade) {
            blades += QStringLiteral("<path d=\"%1\"/>\n").arg(pathData(blade));
        };
        for (int side = 0; side < 2; ++side) {
            for (int i = 0; i < 46; ++i) {
                const double t = r.uniform();
                const double x = side == 0 ? -20 + 280 * t * t : W + 20 - 280 * t * t;
                const double top = r.range(1010, 1260) + 260 * t;
                const double lean = r.range(-40, 40) + (side == 0 ? 18 : -18);
                addBlade(grassBlade(x, H + 5, top, lean, r.range(3, 7)));
                if (r.chance(0.35)) {
                    // Seed head: small grains hanging along the tip.
                    QPainterPath head;
                    for (int g = 0; g < 7; ++g) {
                        const double gy = top + g * 9;
                        const double gx = x + lean * (1 - g * 0.05) + (g % 2 ? 5 : -5);
                        head.addEllipse(QPointF(gx, gy), 2.6, 5.5);
                    }
                    addBlade(head);
                }
            }
        }
        svg.add(QStringLiteral("<g fill=\"%1\">\n%2</g>\n").arg(hex(QColor(0x12, 0x1d, 0x31)), blades));
    }

    // Two larks: one rising close by, one far up.
    {
        const QPainterPath bird = lark();
        svg.add(fillPath(bird * QTransform(1.35, 0, 0, 1.35, 735, 760).rotate(-8), QStringLiteral("#1d2440")));
        svg.add(fillPath(bird * QTransform(0.42, 0, 0, 0.42, 560, 560), QStringLiteral("#2a3050"), 0.85));
    }

    // Side shading into the background colour, so the cover sits in a wider window seamlessly.
    const double shade = 150;
    svg.add(QStringLiteral("<rect width=\"%1\" height=\"%2\" fill=\"%3\"/>\n")
                .arg(num(shade), num(H),
                     svg.linearGradient(QStringLiteral("left"), 0, 0, shade, 0,
                                        {{0, edge}, {0.12, withAlpha(edge, 0.75)},
                                         {0.5, withAlpha(edge, 0.3)}, {1, withAlpha(edge, 0)}})));
    svg.add(QStringLiteral("<rect x=\"%1\" width=\"%2\" height=\"%3\" fill=\"%4\"/>\n")
                .arg(num(W - shade), num(shade), num(H),
                     svg.linearGradient(QStringLiteral("right"), W - shade, 0, W, 0,
                                        {{0, withAlpha(edge, 0)}, {0.5, withAlpha(edge, 0.3)},
                                         {0.88, withAlpha(edge, 0.75)}, {1, edge}})));

    // The title, in the lower fifth, below where the menu reaches.
    const QString family = QStringLiteral("EB Garamond 12");
    const QString ink = gold(svg, QStringLiteral("gold"), 1420, 1700);
    svg.add(fillPath(textPath(QStringLiteral("THE"), family, 46, W / 2, 1478, 16), ink));
    svg.add(fillPath(textPath(QStringLiteral("Larkwells"), family, 168, W / 2, 1612, 2), ink));
    svg.add(fillPath(textPath(QStringLiteral("BOOK"), family, 46, W / 2, 1692, 16), ink));
    // Fine rules and a lozenge either side of the small words.
    QPainterPath rules;
    for (const double y : {1462.0, 1676.0}) {
        rules.addRect(QRectF(W / 2 - 250, y - 1, 160, 2));
        rules.addRect(QRectF(W / 2 + 90, y - 1, 160, 2));
        for (const double x : {W / 2 - 262, W / 2 + 262}) {
            QPainterPath lozenge;
            lozenge.moveTo(x, y - 7);
            lozenge.lineTo(x + 5, y);
            lozenge.lineTo(x, y + 7);
            lozenge.lineTo(x - 5, y);
            lozenge.closeSubpath();
            rules.addPath(lozenge);
        }
    }
    svg.add(fillPath(rules, ink, 0.85));

    return writeFile(QDir(directory).filePath(QStringLiteral("Cover.svg")), svg.document());
}

} // namespace Art
