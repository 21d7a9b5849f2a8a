// The list set: 35 light, rhythmic bands, each behind every row of a list. Wide (8:1), so a
// phone's 6:1 row keeps the full height and a tablet's 12:1 row the middle two thirds: every
// motif sits about the middle line and repeats along it.
#include "Art.h"

#include <QDir>
#include <QTransform>
#include <functional>

namespace Art {

namespace {
constexpr double W = 1600, H = 200, cy = H / 2;

struct Palette
{
    QColor paper, paper2, a, b, c;
};

const Palette sky{QColor(0xf2, 0xf7, 0xfc), QColor(0xe8, 0xf1, 0xfa), QColor(0xa8, 0xc8, 0xe6), QColor(0xc9, 0xdc, 0xef), QColor(0xf3, 0xd9, 0xa6)};
const Palette meadow{QColor(0xf5, 0xf8, 0xee), QColor(0xea, 0xf1, 0xe0), QColor(0xa9, 0xc6, 0x98), QColor(0xcd, 0xdd, 0xbb), QColor(0xf0, 0xcf, 0x8e)};
const Palette blush{QColor(0xfd, 0xf3, 0xf2), QColor(0xf8, 0xe6, 0xe6), QColor(0xec, 0xb4, 0xba), QColor(0xf4, 0xd2, 0xd4), QColor(0xb8, 0xcf, 0xa8)};
const Palette lilac{QColor(0xf6, 0xf3, 0xfb), QColor(0xec, 0xe6, 0xf6), QColor(0xc2, 0xb2, 0xe0), QColor(0xdc, 0xd2, 0xee), QColor(0xf2, 0xd8, 0xa8)};
const Palette honey{QColor(0xfd, 0xf8, 0xea), QColor(0xf8, 0xee, 0xd4), QColor(0xe9, 0xc7, 0x80), QColor(0xf2, 0xdf, 0xb0), QColor(0xc8, 0xd6, 0xa4)};
const Palette apricot{QColor(0xfe, 0xf5, 0xee), QColor(0xfa, 0xe8, 0xda), QColor(0xf1, 0xb8, 0x94), QColor(0xf7, 0xd6, 0xbe), QColor(0xa9, 0xc8, 0xc4)};
const Palette mint{QColor(0xf0, 0xf9, 0xf5), QColor(0xe2, 0xf2, 0xea), QColor(0x9c, 0xd2, 0xbc), QColor(0xc6, 0xe6, 0xd8), QColor(0xf2, 0xc6, 0xc0)};
const Palette dusk{QColor(0xf1, 0xf1, 0xf8), QColor(0xe5, 0xe6, 0xf2), QColor(0xa9, 0xb0, 0xd6), QColor(0xcd, 0xd1, 0xe9), QColor(0xf1, 0xdd, 0xa6)};
const Palette sea{QColor(0xef, 0xf8, 0xf9), QColor(0xdf, 0xf0, 0xf3), QColor(0x8f, 0xc6, 0xcf), QColor(0xbe, 0xe0, 0xe5), QColor(0xf3, 0xe2, 0xc0)};
const Palette stone{QColor(0xf6, 0xf5, 0xf2), QColor(0xec, 0xea, 0xe5), QColor(0xbc, 0xb8, 0xae), QColor(0xda, 0xd6, 0xcd), QColor(0xd9, 0xb8, 0x9e)};

// One band being drawn: the document, its palette and its own random stream.
struct Band
{
    Svg svg{W, H};
    Palette pal;
    Random r;
    int gradients = 0;

    Band(const Palette &p, uint64_t seed) : pal(p), r(seed) {}

    void fill(const QPainterPath &path, const QColor &colour, double opacity = 1)
    {
        QString s = QStringLiteral("<path d=\"%1\" fill=\"%2\"").arg(pathData(path), hex(colour));
        if (opacity < 1)
            s += QStringLiteral(" fill-opacity=\"%1\"").arg(QString::number(opacity, 'f', 2));
        svg.add(s + QStringLiteral("/>\n"));
    }
    void stroke(const QPainterPath &path, const QColor &colour, double width, double opacity = 1)
    {
        QString s = QStringLiteral("<path d=\"%1\" fill=\"none\" stroke=\"%2\" stroke-width=\"%3\" "
                                   "stroke-linecap=\"round\" stroke-linejoin=\"round\"")
                        .arg(pathData(path), hex(colour), num(width));
        if (opacity < 1)
            s += QStringLiteral(" stroke-opacity=\"%1\"").arg(QString::number(opacity, 'f', 2));
        svg.add(s + QStringLiteral("/>\n"));
    }
    QString gradient(double x1, double y1, double x2, double y2, const QList<std::pair<double, QColor>> &stops)
    {
        return svg.linearGradient(QStringLiteral("g%1").arg(gradients++), x1, y1, x2, y2, stops);
    }
    void paper()
    {
        svg.add(QStringLiteral("<rect width=\"%1\" height=\"%2\" fill=\"%3\"/>\n")
                    .arg(num(W), num(H), gradient(0, 0, W, H, {{0, pal.paper}, {0.5, pal.paper2}, {1, pal.paper}})));
    }
};

QPainterPath leaf(double length, double width)
{
    QPainterPath p;
    p.moveTo(0, 0);
    p.cubicTo(length * 0.25, -width, length * 0.7, -width * 0.8, length, 0);
    p.cubicTo(length * 0.7, width * 0.8, length * 0.25, width, 0, 0);
    return p;
}

QPainterPath circle(double x, double y, double r)
{
    QPainterPath p;
    p.addEllipse(QPointF(x, y), r, r);
    return p;
}

QPainterPath star(QPointF at, double outer, double inner, int points, double turn = -pi / 2)
{
    QPainterPath p;
    for (int k = 0; k < points * 2; ++k) {
        const double a = turn + k * pi / points, rr = k % 2 ? inner : outer;
        const QPointF pt = at + QPointF(std::cos(a), std::sin(a)) * rr;
        k == 0 ? p.moveTo(pt) : p.lineTo(pt);
    }
    p.closeSubpath();
    return p;
}

QPainterPath wave(double y, double amplitude, double period, double phase, double x0 = -20, double x1 = W + 20)
{
    QList<QPointF> pts;
    for (double x = x0; x <= x1 + period / 8; x += period / 8)
        pts.append({x, y + amplitude * std::sin((x / period) * 2 * pi + phase)});
    return smoothThrough(pts);
}

QPainterPath at(const QPainterPath &p, double x, double y, double angle = 0, double scale = 1)
{
    return p * QTransform().translate(x, y).rotateRadians(angle).scale(scale, scale);
}

QPainterPath flower(double x, double y, double size, int petals, double width = 0.42)
{
    QPainterPath p;
    for (int k = 0; k < petals; ++k)
        p.addPath(at(leaf(size, size * width), x, y, k * 2 * pi / petals));
    return p;
}

using Motif = std::function<void(Band &)>;

const QList<std::pair<Palette, Motif>> &motifs()
{
    static const QList<std::pair<Palette, Motif>> list = {
        // Waves rolling under one another.
        {sea, [](Band &b) {
             b.paper();
             for (int k = 0; k < 3; ++k) {
                 QPainterPath w = wave(70 + k * 30, 12, 200, k * 1.3);
                 b.stroke(w, k == 1 ? b.pal.a : b.pal.b, 6 - k);
             }
             QPainterPath foam = wave(150, 10, 200, 2.4);
             foam.lineTo(W + 20, H + 5);
             foam.lineTo(-20, H + 5);
             foam.closeSubpath();
             b.fill(foam, b.pal.b, 0.55);
         }},
        // Dots in an offset grid.
        {blush, [](Band &b) {
             b.paper();
             QPainterPath big, small;
             for (int row = 0; row < 5; ++row)
                 for (double x = (row % 2) * 30; x < W + 30; x += 60)
                     (row % 2 ? small : big).addPath(circle(x, 20 + row * 40, row % 2 ? 5 : 9));
             b.fill(big, b.pal.a, 0.7);
             b.fill(small, b.pal.b);
         }},
        // A vine with alternate leaves.
        {meadow, [](Band &b) {
             b.paper();
             const QPainterPath stem = wave(cy, 22, 260, 0);
             b.stroke(stem, b.pal.a, 3);
             QPainterPath leaves, buds;
             for (int k = 0; k < 48; ++k) {
                 const double t = (k + 0.5) / 48;
                 const QPointF p = stem.pointAtPercent(t);
                 const double a = -stem.angleAtPercent(t) * pi / 180 + (k % 2 ? 0.9 : -0.9);
                 leaves.addPath(at(leaf(34, 11), p.x(), p.y(), a));
                 if (k % 4 == 1)
                     buds.addPath(circle(p.x() + 18 * std::cos(a + pi), p.y() + 18 * std::sin(a + pi), 5));
             }
             b.fill(leaves, b.pal.a, 0.8);
             b.fill(buds, b.pal.c);
         }},
        // Candy stripes on the slant.
        {apricot, [](Band &b) {
             b.paper();
             QPainterPath wide, thin;
             for (double x = -200; x < W + 200; x += 80) {
                 QPolygonF band({{x, H}, {x + 120, 0}, {x + 150, 0}, {x + 30, H}});
                 wide.addPolygon(band);
                 wide.closeSubpath();
                 QPolygonF line({{x + 46, H}, {x + 166, 0}, {x + 172, 0}, {x + 52, H}});
                 thin.addPolygon(line);
                 thin.closeSubpath();
             }
             b.fill(wide, b.pal.b, 0.75);
             b.fill(thin, b.pal.a, 0.7);
         }},
        // Lace scallops along both edges, pearls between.
        {lilac, [](Band &b) {
             b.paper();
             QPainterPath arcs, pearls;
             for (double x = 0; x < W + 40; x += 40) {
                 arcs.addPath(circle(x, 22, 20));
                 arcs.addPath(circle(x + 20, H - 22, 20));
                 pearls.addPath(circle(x + 20, cy, 4));
             }
             b.stroke(arcs, b.pal.a, 2.5, 0.8);
             b.fill(pearls, b.pal.a, 0.8);
             b.stroke(wave(cy, 0, 100, 0), b.pal.b, 1.5);
         }},
        // Chevrons marching along.
        {honey, [](Band &b) {
             b.paper();
             for (int k = 0; k < 4; ++k) {
                 QPainterPath z;
                 const double y = 40 + k * 40;
                 z.moveTo(-40, y - 16);
                 for (int i = 0; i * 40 < W + 80; ++i)
                     z.lineTo(i * 40, i % 2 ? y - 16 : y + 16);
                 b.stroke(z, k % 2 ? b.pal.b : b.pal.a, k % 2 ? 4 : 6, 0.85);
             }
         }},
        // A field of small stars for the evening.
        {dusk, [](Band &b) {
             b.paper();
             QPainterPath big, small;
             for (int k = 0; k < 70; ++k) {
                 const double x = (k + b.r.range(0.1, 0.9)) * W / 70, y = b.r.range(22, H - 22);
                 if (k % 5 == 0)
                     big.addPath(star({x, y}, 14, 6, 5, b.r.range(-0.3, 0.3)));
                 else
                     small.addPath(star({x, y}, 5, 1.6, 4));
             }
             b.fill(big, b.pal.c);
             b.fill(small, b.pal.a, 0.8);
         }},
        // The moon through its phases.
        {dusk, [](Band &b) {
             b.paper();
             QPainterPath moons, rims;
             for (int k = 0; k < 16; ++k) {
                 const double x = 50 + k * 100, rad = 26;
                 rims.addPath(circle(x, cy, rad));
                 // Phase k of 8: the lit half, widened or narrowed by the terminator's ellipse.
                 const int phase = k % 8;
                 if (phase == 0)
                     continue;
                 const bool waxing = phase <= 4;
                 QPainterPath half;
                 half.moveTo(x, cy - rad);
                 half.arcTo(QRectF(x - rad, cy - rad, 2 * rad, 2 * rad), 90, waxing ? -180 : 180);
                 half.closeSubpath();
                 const double rx = rad * std::abs(std::cos(phase * pi / 4));
                 QPainterPath terminator;
                 terminator.addEllipse(QPointF(x, cy), std::max(rx, 0.01), rad);
                 const bool gibbous = phase == 3 || phase == 4 || phase == 5;
                 moons.addPath(phase == 2 || phase == 6 ? half : gibbous ? half.united(terminator) : half.subtracted(terminator));
             }
             b.stroke(rims, b.pal.a, 1.5, 0.7);
             b.fill(moons, b.pal.c);
             b.stroke(wave(cy, 0, 100, 0, -20, W + 20), b.pal.b, 1, 0.6);
         }},
        // Little suns with rays.
        {honey, [](Band &b) {
             b.paper();
             QPainterPath discs, rays;
             for (double x = 60; x < W; x += 120) {
                 discs.addPath(circle(x, cy, 18));
                 for (int k = 0; k < 12; ++k) {
                     const double a = k * pi / 6;
                     rays.moveTo(x + std::cos(a) * 26, cy + std::sin(a) * 26);
                     rays.lineTo(x + std::cos(a) * (k % 2 ? 36 : 44), cy + std::sin(a) * (k % 2 ? 36 : 44));
                 }
                 discs.addPath(circle(x + 60, cy, 4));
             }
             b.fill(discs, b.pal.a);
             b.stroke(rays, b.pal.a, 3);
         }},
        // Larks flying along a rising and falling line.
        {sky, [](Band &b) {
             b.paper();
             QPainterPath birds;
             const QPainterPath bird = lark();
             for (int k = 0; k < 14; ++k) {
                 const double x = 40 + k * 115, y = cy - 34 + 22 * std::sin(k * 0.9);
                 birds.addPath(bird * QTransform().translate(x, y).scale(0.42, 0.42));
             }
             b.fill(birds, b.pal.a, 0.85);
             b.stroke(wave(H - 24, 6, 300, 0), b.pal.b, 2);
             b.stroke(wave(24, 6, 300, 1.5), b.pal.b, 2);
         }},
        // Wheat ears leaning left and right.
        {honey, [](Band &b) {
             b.paper();
             QPainterPath grains, stems;
             for (int k = 0; k < 22; ++k) {
                 // All bowing one way, as in a breeze; the ears ride the middle of the row.
                 const double x = k * 76, lean = 0.42 + 0.06 * std::sin(k * 1.7);
                 const QTransform t = QTransform().translate(x, H + 4).rotateRadians(lean);
                 QPainterPath stem;
                 stem.moveTo(0, 0);
                 stem.lineTo(0, -150);
                 stems.addPath(stem * t);
                 for (int g = 0; g < 6; ++g) {
                     const double y = -76 - g * 14;
                     grains.addPath(at(leaf(19, 5), -2, y, -pi / 2 - 0.6) * t);
                     grains.addPath(at(leaf(19, 5), 2, y, -pi / 2 + 0.6) * t);
                 }
                 QPainterPath awn;
                 for (int g = 3; g < 6; ++g) {
                     const double y = -76 - g * 14;
                     for (int side = -1; side <= 1; side += 2) {
                         const QPointF from(side * 14, y - 10);
                         awn.moveTo(from);
                         awn.lineTo(from + QPointF(side * 7, -20));
                     }
                 }
                 stems.addPath(awn * t);
             }
             b.stroke(stems, b.pal.a, 1.4, 0.8);
             b.fill(grains, b.pal.a, 0.85);
         }},
        // Four-petalled flowers with dots between.
        {mint, [](Band &b) {
             b.paper();
             QPainterPath petals, hearts, dots;
             for (double x = 50; x < W; x += 100) {
                 petals.addPath(flower(x, cy, 30, 4, 0.5) * QTransform());
                 hearts.addPath(circle(x, cy, 6));
                 dots.addPath(circle(x + 50, cy - 30, 4));
                 dots.addPath(circle(x + 50, cy + 30, 4));
             }
             b.fill(petals, b.pal.a, 0.75);
             b.fill(hearts, b.pal.c);
             b.fill(dots, b.pal.b);
         }},
        // Falling rain in slanting rows.
        {sky, [](Band &b) {
             b.paper();
             QPainterPath drops;
             for (int row = 0; row < 4; ++row)
                 for (double x = row * 22; x < W + 40; x += 88) {
                     QPainterPath d;
                     d.moveTo(0, -14);
                     d.cubicTo(6, -2, 8, 4, 0, 9);
                     d.cubicTo(-8, 4, -6, -2, 0, -14);
                     drops.addPath(d * QTransform().translate(x, 30 + row * 46).rotateRadians(0.25));
                 }
             b.fill(drops, b.pal.a, 0.75);
         }},
        // A row of soft clouds.
        {sky, [](Band &b) {
             b.svg.add(QStringLiteral("<rect width=\"%1\" height=\"%2\" fill=\"%3\"/>\n")
                           .arg(num(W), num(H), b.gradient(0, 0, 0, H, {{0, QColor(0xe4, 0xef, 0xfa)}, {1, QColor(0xf7, 0xf2, 0xea)}})));
             QPainterPath clouds;
             for (double x = 60; x < W + 100; x += 230) {
                 const double y = cy + (int(x / 230) % 2 ? 18 : -10);
                 QPainterPath c = circle(x, y, 26).united(circle(x + 30, y - 16, 30)).united(circle(x + 64, y - 4, 24));
                 QPainterPath base;
                 base.addRoundedRect(QRectF(x - 20, y, 110, 22), 11, 11);
                 clouds.addPath(c.united(base));
             }
             b.fill(clouds, QColor(0xff, 0xff, 0xff), 0.9);
             b.stroke(clouds, b.pal.a, 2, 0.6);
         }},
        // Fish scales.
        {sea, [](Band &b) {
             b.paper();
             QPainterPath scales;
             for (int row = 0; row < 6; ++row)
                 for (double x = (row % 2) * 25; x < W + 50; x += 50) {
                     QPainterPath arc;
                     arc.arcMoveTo(QRectF(x - 25, row * 36 - 10, 50, 50), 180);
                     arc.arcTo(QRectF(x - 25, row * 36 - 10, 50, 50), 180, 180);
                     scales.addPath(arc);
                 }
             b.stroke(scales, b.pal.a, 2.2, 0.7);
         }},
        // Ticking: groups of fine stripes.
        {stone, [](Band &b) {
             b.paper();
             QPainterPath thick, thin;
             for (double x = 0; x < W; x += 64) {
                 thick.addRect(QRectF(x, 0, 10, H));
                 thin.addRect(QRectF(x + 20, 0, 2, H));
                 thin.addRect(QRectF(x + 28, 0, 2, H));
             }
             b.fill(thick, b.pal.b, 0.8);
             b.fill(thin, b.pal.a, 0.6);
         }},
        // Gingham.
        {blush, [](Band &b) {
             b.paper();
             QPainterPath across, down;
             for (double y = 10; y < H; y += 50)
                 across.addRect(QRectF(0, y, W, 25));
             for (double x = 0; x < W; x += 50)
                 down.addRect(QRectF(x, 0, 25, H));
             b.fill(across, b.pal.b, 0.5);
             b.fill(down, b.pal.b, 0.5);
         }},
        // Dashes and dots, like a message tapped out.
        {stone, [](Band &b) {
             b.paper();
             QPainterPath marks;
             for (int row = 0; row < 3; ++row) {
                 double x = b.r.range(0, 30);
                 while (x < W) {
                     const bool dash = b.r.chance(0.5);
                     QPainterPath m;
                     m.addRoundedRect(QRectF(x, 58 + row * 38, dash ? 36 : 12, 12), 6, 6);
                     marks.addPath(m);
                     x += (dash ? 36 : 12) + (b.r.chance(0.2) ? 36 : 14);
                 }
             }
             b.fill(marks, b.pal.a, 0.7);
         }},
        // A lattice of diamonds with a fine cross-thread.
        {lilac, [](Band &b) {
             b.paper();
             QPainterPath diamonds, threads;
             for (double x = 0; x < W + 100; x += 100) {
                 QPolygonF d({{x, cy - 60}, {x + 50, cy}, {x, cy + 60}, {x - 50, cy}});
                 diamonds.addPolygon(d);
                 diamonds.closeSubpath();
                 threads.moveTo(x - 50, cy - 60);
                 threads.lineTo(x + 50, cy + 60);
                 threads.moveTo(x + 50, cy - 60);
                 threads.lineTo(x - 50, cy + 60);
             }
             b.fill(diamonds, b.pal.b, 0.7);
             b.stroke(threads, b.pal.a, 1.5, 0.8);
         }},
        // Fern fronds lying along the row.
        {meadow, [](Band &b) {
             b.paper();
             QPainterPath pinnae, ribs;
             for (int f = 0; f < 4; ++f) {
                 const double x0 = f * 400 + 10;
                 QPainterPath rib;
                 rib.moveTo(x0, cy + 20);
                 rib.cubicTo(x0 + 120, cy - 20, x0 + 260, cy - 10, x0 + 380, cy - 30);
                 ribs.addPath(rib);
                 for (int k = 1; k < 22; ++k) {
                     const double t = k / 22.0;
                     const QPointF p = rib.pointAtPercent(t);
                     const double a = -rib.angleAtPercent(t) * pi / 180;
                     const double len = 46 * std::sin(pi * (1 - t) * 0.9 + 0.1);
                     pinnae.addPath(at(leaf(len, len * 0.25), p.x(), p.y(), a - 1.1));
                     pinnae.addPath(at(leaf(len, len * 0.25), p.x(), p.y(), a + 1.1));
                 }
             }
             b.fill(pinnae, b.pal.a, 0.75);
             b.stroke(ribs, b.pal.a, 2);
         }},
        // Daisies in a row, big and small.
        {meadow, [](Band &b) {
             b.paper();
             QPainterPath petals, hearts;
             for (double x = 40; x < W; x += 90) {
                 const bool big = int(x / 90) % 2 == 0;
                 const double y = big ? cy : cy + 28;
                 petals.addPath(flower(x, y, big ? 38 : 24, 12, 0.16));
                 hearts.addPath(circle(x, y, big ? 8 : 5));
             }
             b.fill(petals, QColor(0xff, 0xff, 0xff), 0.95);
             b.stroke(petals, b.pal.a, 1.5, 0.8);
             b.fill(hearts, b.pal.c);
         }},
        // Bubbles rising.
        {sea, [](Band &b) {
             b.paper();
             QPainterPath rings, shines;
             for (int k = 0; k < 60; ++k) {
                 const double x = b.r.range(0, W), y = b.r.range(20, H - 20), rr = b.r.range(5, 22);
                 rings.addPath(circle(x, y, rr));
                 shines.addPath(circle(x - rr * 0.35, y - rr * 0.35, rr * 0.18));
             }
             b.stroke(rings, b.pal.a, 2, 0.7);
             b.fill(shines, b.pal.a, 0.6);
         }},
        // Bunting on a string.
        {apricot, [](Band &b) {
             b.paper();
             const QPainterPath string = wave(62, 8, 320, pi / 2);
             b.stroke(string, b.pal.a, 2);
             QPainterPath one, two;
             for (int k = 0; k < 32; ++k) {
                 const double x = 25 + k * 50;
                 const double y = 62 + 8 * std::sin((x / 320) * 2 * pi + pi / 2);
                 QPolygonF flag({{x - 18, y}, {x + 18, y}, {x, y + 62}});
                 (k % 2 ? one : two).addPolygon(flag);
             }
             b.fill(one, b.pal.a, 0.75);
             b.fill(two, b.pal.c, 0.75);
         }},
        // Rope: two strands twisting.
        {stone, [](Band &b) {
             b.paper();
             b.stroke(wave(cy, 14, 60, 0), b.pal.a, 8, 0.7);
             b.stroke(wave(cy, 14, 60, pi), b.pal.b, 8, 0.9);
             b.stroke(wave(cy - 46, 0, 60, 0), b.pal.b, 2);
             b.stroke(wave(cy + 46, 0, 60, 0), b.pal.b, 2);
         }},
        // Bellflowers nodding from a line.
        {lilac, [](Band &b) {
             b.paper();
             b.stroke(wave(60, 8, 400, 0), b.pal.a, 2.5);
             QPainterPath bells, stalks;
             for (double x = 40; x < W; x += 80) {
                 const double y = 60 + 8 * std::sin(x / 400 * 2 * pi);
                 const double drop = int(x / 80) % 2 ? 28 : 46;
                 stalks.moveTo(x, y);
                 stalks.quadTo(x + 12, y + drop * 0.5, x + 4, y + drop);
                 QPainterPath bell;
                 bell.moveTo(-13, 26);
                 bell.cubicTo(-13, 4, -8, 0, 0, 0);
                 bell.cubicTo(8, 0, 13, 4, 13, 26);
                 bell.lineTo(7, 21);
                 bell.lineTo(0, 27);
                 bell.lineTo(-7, 21);
                 bell.closeSubpath();
                 bells.addPath(bell.translated(x + 4, y + drop));
             }
             b.stroke(stalks, b.pal.a, 2);
             b.fill(bells, b.pal.a, 0.75);
         }},
        // Rolling hills under a small sun.
        {meadow, [](Band &b) {
             b.paper();
             for (int k = 0; k < 3; ++k) {
                 QPainterPath hill = wave(110 + k * 24, 18 - k * 3, 420 - k * 90, k * 2.0);
                 hill.lineTo(W + 20, H + 5);
                 hill.lineTo(-20, H + 5);
                 hill.closeSubpath();
                 b.fill(hill, k == 2 ? b.pal.a : b.pal.b, 0.45 + k * 0.15);
             }
             b.fill(circle(320, 70, 22).united(circle(1120, 64, 22)), b.pal.c, 0.9);
         }},
        // Feathers drifting.
        {stone, [](Band &b) {
             b.paper();
             QPainterPath vanes, shafts;
             for (int k = 0; k < 16; ++k) {
                 const double x = 50 + k * 100, a = -0.6 + (k % 3) * 0.3;
                 const QTransform t = QTransform().translate(x, cy + 55).rotateRadians(a - pi / 2);
                 vanes.addPath(leaf(120, 22) * t);
                 QPainterPath shaft;
                 shaft.moveTo(-10, 0);
                 shaft.lineTo(118, 0);
                 shafts.addPath(shaft * t);
             }
             b.fill(vanes, b.pal.b, 0.9);
             b.stroke(shafts, b.pal.a, 2.5);
         }},
        // Snowflakes.
        {sky, [](Band &b) {
             b.paper();
             QPainterPath flakes;
             for (int k = 0; k < 24; ++k) {
                 const double x = 35 + k * 66 + b.r.range(-10, 10), y = b.r.range(40, H - 40), s = b.r.range(14, 26);
                 for (int arm = 0; arm < 6; ++arm) {
                     const double a = arm * pi / 3;
                     const QPointF dir(std::cos(a), std::sin(a)), side(-dir.y(), dir.x());
                     const QPointF c(x, y);
                     flakes.moveTo(c);
                     flakes.lineTo(c + dir * s);
                     flakes.moveTo(c + dir * s * 0.55 + side * s * 0.25);
                     flakes.lineTo(c + dir * s * 0.75);
                     flakes.lineTo(c + dir * s * 0.55 - side * s * 0.25);
                 }
             }
             b.stroke(flakes, b.pal.a, 2.2, 0.85);
         }},
        // Berry sprigs.
        {blush, [](Band &b) {
             b.paper();
             QPainterPath berries, leaves, twigs;
             for (double x = 60; x < W; x += 150) {
                 const double flip = int(x / 150) % 2 ? 1 : -1;
                 twigs.moveTo(x - 50, cy + 20 * flip);
                 twigs.quadTo(x, cy - 10 * flip, x + 50, cy + 10 * flip);
                 leaves.addPath(at(leaf(40, 12), x - 30, cy + 10 * flip, -0.4 * flip));
                 leaves.addPath(at(leaf(36, 11), x + 20, cy, pi + 0.5 * flip));
                 for (int k = 0; k < 5; ++k)
                     berries.addPath(circle(x + std::cos(k * 1.3) * 14, cy - 20 * flip + std::sin(k * 1.3) * 12, 8));
             }
             b.stroke(twigs, b.pal.c, 2.5);
             b.fill(leaves, b.pal.c, 0.8);
             b.fill(berries, b.pal.a, 0.85);
         }},
        // Rainbow arches.
        {apricot, [](Band &b) {
             b.paper();
             const QColor bands[4] = {b.pal.a, b.pal.c, QColor(0xc6, 0xd9, 0xa6), QColor(0xb8, 0xcd, 0xe8)};
             for (int k = 0; k < 4; ++k) {
                 QPainterPath arcs;
                 for (double x = 100; x < W + 200; x += 200) {
                     const double rr = 70 - k * 13;
                     arcs.arcMoveTo(QRectF(x - rr, cy + 40 - rr, rr * 2, rr * 2), 180);
                     arcs.arcTo(QRectF(x - rr, cy + 40 - rr, rr * 2, rr * 2), 180, -180);
                 }
                 b.stroke(arcs, bands[k], 10, 0.75);
             }
         }},
        // Fans, in the manner of the twenties.
        {honey, [](Band &b) {
             b.paper();
             QPainterPath fans, ribs;
             for (double x = 0; x < W + 100; x += 100) {
                 const double y = cy + 50;
                 QPainterPath fan;
                 fan.moveTo(x, y);
                 fan.arcTo(QRectF(x - 50, y - 50, 100, 100), 0, 180);
                 fan.closeSubpath();
                 fans.addPath(fan);
                 for (int k = 1; k < 6; ++k) {
                     const double a = k * pi / 6;
                     ribs.moveTo(x, y);
                     ribs.lineTo(x + std::cos(a) * 48, y - std::sin(a) * 48);
                 }
                 ribs.addPath(circle(x, y - 75, 6));
             }
             b.fill(fans, b.pal.b, 0.8);
             b.stroke(fans, b.pal.a, 2);
             b.stroke(ribs, b.pal.a, 1.6, 0.8);
         }},
        // Butterflies on a breeze.
        {mint, [](Band &b) {
             b.paper();
             QPainterPath wings, bodies;
             for (int k = 0; k < 13; ++k) {
                 const double x = 60 + k * 125, y = cy + 26 * std::sin(k * 1.1);
                 const QTransform t = QTransform().translate(x, y).rotateRadians(0.3 * std::sin(k * 2.0));
                 QPainterPath w;
                 w.addEllipse(QPointF(-14, -10), 14, 11);
                 w.addEllipse(QPointF(14, -10), 14, 11);
                 w.addEllipse(QPointF(-10, 9), 9, 8);
                 w.addEllipse(QPointF(10, 9), 9, 8);
                 wings.addPath(w * t);
                 QPainterPath body;
                 body.addRoundedRect(QRectF(-2.5, -16, 5, 32), 2.5, 2.5);
                 bodies.addPath(body * t);
             }
             b.fill(wings, b.pal.a, 0.7);
             b.fill(bodies, b.pal.a);
         }},
        // Sun and moon by turns, morning and night.
        {dusk, [](Band &b) {
             b.paper();
             QPainterPath suns, moons, rays;
             for (int k = 0; k < 11; ++k) {
                 const double x = 70 + k * 150;
                 if (k % 2 == 0) {
                     suns.addPath(circle(x, cy, 20));
                     for (int j = 0; j < 8; ++j) {
                         const double a = j * pi / 4;
                         rays.moveTo(x + std::cos(a) * 28, cy + std::sin(a) * 28);
                         rays.lineTo(x + std::cos(a) * 38, cy + std::sin(a) * 38);
                     }
                 } else {
                     moons.addPath(circle(x, cy, 24).subtracted(circle(x + 12, cy - 8, 21)));
                 }
             }
             b.fill(suns, b.pal.c);
             b.stroke(rays, b.pal.c, 3);
             b.fill(moons, b.pal.a);
         }},
        // A stave with the lark's song.
        {sky, [](Band &b) {
             b.paper();
             QPainterPath staff, heads, stems;
             for (int k = 0; k < 5; ++k) {
                 staff.moveTo(0, 56 + k * 22);
                 staff.lineTo(W, 56 + k * 22);
             }
             for (double x = 60; x < W; x += 70) {
                 const int step = int(4 + 3 * std::sin(x / 110) + b.r.range(-1, 1));
                 const double y = 56 + 88 - step * 11;
                 heads.addEllipse(QPointF(x, y), 10, 7.5);
                 stems.moveTo(x + 9, y);
                 stems.lineTo(x + 9, y - 56);
             }
             b.stroke(staff, b.pal.b, 1.6);
             b.fill(heads * QTransform(), b.pal.a, 0.85);
             b.stroke(stems, b.pal.a, 2.2, 0.85);
         }},
        // Ripples of rain on a pond.
        {sea, [](Band &b) {
             b.paper();
             QPainterPath rings;
             for (int k = 0; k < 14; ++k) {
                 const double x = (k + b.r.range(0.2, 0.8)) * W / 14, y = b.r.range(60, H - 60);
                 for (int j = 1; j <= 3; ++j)
                     rings.addEllipse(QPointF(x, y), j * 16.0, j * 8.0);
             }
             b.stroke(rings, b.pal.a, 2, 0.6);
         }},
    };
    return list;
}
}

bool writeBands(const QString &directory)
{
    const auto &list = motifs();
    for (qsizetype i = 0; i < list.size(); ++i) {
        Band band(list[i].first, 3601 + uint64_t(i) * 13);
        list[i].second(band);
        if (!writeFile(QDir(directory).filePath(QStringLiteral("AM-%1.svg").arg(36 + i)), band.svg.document()))
            return false;
    }
    return list.size() == 35;
}

} // namespace Art
