// The reader set: 35 sheets of paper, each a different make (laid, wove, linen, cold-pressed,
// handmade), tint, edge, watermark and margin plant. Painted pixel by pixel, then the marks and
// plants in watercolour on top. All of it stays light enough to read black text over.
#include "Art.h"

#include <QDir>
#include <QImageWriter>
#include <QPainter>
#include <QTransform>
#include <vector>

namespace Art {

namespace {
constexpr int W = 1200, H = 1800;

enum class Texture { Wove, Laid, Linen, ColdPress, Handmade };
enum class Edge { None, Deckle, Vignette };
enum class Mark { None, Lark, Well, Sun, Moon, Star, Wreath, Monogram };
enum class Plant { None, Fern, Sprig, Wildflowers, Grasses, Ivy, Blossom, Lavender, Seedheads, Willow };
enum class Place { BottomLeft, BottomRight, TopLeft, TopRight, Bottom, Top };
enum class Sky { None, Rays, Stars };

struct Tint
{
    QColor top, bottom, glow;
};

struct Sheet
{
    Tint tint;
    Texture texture;
    Edge edge;
    Mark mark;
    Plant plant;
    Place place;
    QColor ink; // the plant's watercolour
    Sky sky;
};

// Morning tints are warm; evening ones cool and dusky.
const Tint cream{QColor(0xfa, 0xf4, 0xe4), QColor(0xf3, 0xe9, 0xd0), QColor(0xff, 0xfb, 0xf0)};
const Tint ivory{QColor(0xfb, 0xf9, 0xf1), QColor(0xf2, 0xee, 0xe0), QColor(0xff, 0xfe, 0xf8)};
const Tint peach{QColor(0xfc, 0xef, 0xe2), QColor(0xf5, 0xe2, 0xd0), QColor(0xff, 0xf7, 0xea)};
const Tint primrose{QColor(0xfb, 0xf6, 0xdc), QColor(0xf2, 0xeb, 0xc6), QColor(0xff, 0xfc, 0xea)};
const Tint rose{QColor(0xfb, 0xef, 0xec), QColor(0xf2, 0xe0, 0xdc), QColor(0xff, 0xf8, 0xf4)};
const Tint sage{QColor(0xf3, 0xf5, 0xe9), QColor(0xe6, 0xeb, 0xd8), QColor(0xfc, 0xfd, 0xf4)};
const Tint mint{QColor(0xef, 0xf6, 0xf1), QColor(0xe1, 0xed, 0xe5), QColor(0xfa, 0xff, 0xfb)};
const Tint dawnBlue{QColor(0xef, 0xf4, 0xfa), QColor(0xf6, 0xec, 0xe2), QColor(0xff, 0xf6, 0xe8)};
const Tint lavender{QColor(0xf1, 0xed, 0xf6), QColor(0xe4, 0xdf, 0xef), QColor(0xfb, 0xf8, 0xff)};
const Tint dusk{QColor(0xe6, 0xe3, 0xf0), QColor(0xf1, 0xe4, 0xe8), QColor(0xfb, 0xef, 0xee)};
const Tint slate{QColor(0xec, 0xef, 0xf4), QColor(0xdd, 0xe3, 0xec), QColor(0xf8, 0xfa, 0xfe)};
const Tint moonlit{QColor(0xe4, 0xe8, 0xf0), QColor(0xef, 0xef, 0xed), QColor(0xfa, 0xfb, 0xff)};
const Tint oat{QColor(0xf3, 0xed, 0xe0), QColor(0xe9, 0xe0, 0xcd), QColor(0xfb, 0xf7, 0xee)};
const Tint linen{QColor(0xf1, 0xef, 0xea), QColor(0xe6, 0xe3, 0xdc), QColor(0xfb, 0xfa, 0xf6)};

const QColor fernGreen(0x7f, 0xa3, 0x7c), olive(0x9a, 0xa2, 0x6a), blossomPink(0xe0, 0x9a, 0xa8),
    lavenderInk(0x9d, 0x8c, 0xc4), duskBlue(0x82, 0x96, 0xbe), ochre(0xc8, 0xa2, 0x5e),
    rust(0xc4, 0x8a, 0x6e), teal(0x6f, 0xa6, 0xa4), plum(0xa8, 0x82, 0xa8), grey(0x98, 0x9c, 0xa8);

// Hand-picked, so that sheets of one tint differ in make, edge, mark and plant.
const std::vector<Sheet> &sheets()
{
    using T = Texture;
    using E = Edge;
    using M = Mark;
    using P = Plant;
    using L = Place;
    static const std::vector<Sheet> list = {
        {cream, T::Laid, E::Deckle, M::Lark, P::Fern, L::BottomLeft, fernGreen, Sky::None},
        {peach, T::Wove, E::None, M::None, P::Blossom, L::TopRight, blossomPink, Sky::Rays},
        {lavender, T::ColdPress, E::Vignette, M::Moon, P::Seedheads, L::BottomRight, grey, Sky::Stars},
        {primrose, T::Handmade, E::Deckle, M::None, P::Wildflowers, L::Bottom, ochre, Sky::None},
        {sage, T::Linen, E::None, M::Wreath, P::Sprig, L::TopLeft, olive, Sky::None},
        {slate, T::Laid, E::Vignette, M::Star, P::Willow, L::TopRight, duskBlue, Sky::Stars},
        {ivory, T::Wove, E::Deckle, M::Well, P::Ivy, L::Top, fernGreen, Sky::None},
        {rose, T::ColdPress, E::None, M::None, P::Blossom, L::BottomLeft, blossomPink, Sky::None},
        {dawnBlue, T::Laid, E::None, M::Sun, P::Grasses, L::Bottom, olive, Sky::Rays},
        {dusk, T::Handmade, E::Vignette, M::None, P::Lavender, L::BottomRight, lavenderInk, Sky::Stars},
        {oat, T::Laid, E::Deckle, M::Monogram, P::None, L::Bottom, rust, Sky::None},
        {mint, T::Wove, E::None, M::None, P::Fern, L::TopRight, teal, Sky::None},
        {cream, T::ColdPress, E::Deckle, M::None, P::Wildflowers, L::BottomLeft, rust, Sky::Rays},
        {moonlit, T::Wove, E::Vignette, M::Moon, P::Willow, L::TopLeft, grey, Sky::Stars},
        {linen, T::Linen, E::Deckle, M::Lark, P::Grasses, L::BottomRight, ochre, Sky::None},
        {peach, T::Laid, E::None, M::None, P::Sprig, L::BottomRight, rust, Sky::None},
        {lavender, T::Wove, E::None, M::Star, P::Lavender, L::Bottom, lavenderInk, Sky::None},
        {primrose, T::Wove, E::Vignette, M::Sun, P::Seedheads, L::TopLeft, ochre, Sky::Rays},
        {sage, T::Handmade, E::Deckle, M::None, P::Ivy, L::Top, olive, Sky::None},
        {slate, T::ColdPress, E::None, M::Well, P::None, L::Bottom, duskBlue, Sky::Stars},
        {ivory, T::Laid, E::None, M::Wreath, P::Blossom, L::Top, plum, Sky::None},
        {rose, T::Linen, E::Vignette, M::None, P::Wildflowers, L::BottomRight, plum, Sky::None},
        {dawnBlue, T::Wove, E::Deckle, M::Lark, P::Willow, L::TopRight, teal, Sky::None},
        {dusk, T::Laid, E::None, M::Moon, P::Grasses, L::BottomLeft, plum, Sky::Stars},
        {oat, T::Handmade, E::None, M::None, P::Fern, L::Bottom, olive, Sky::None},
        {mint, T::ColdPress, E::Deckle, M::Star, P::Sprig, L::TopLeft, teal, Sky::None},
        {cream, T::Linen, E::Vignette, M::Monogram, P::Lavender, L::BottomLeft, lavenderInk, Sky::None},
        {moonlit, T::Laid, E::Deckle, M::None, P::Seedheads, L::Bottom, grey, Sky::Stars},
        {linen, T::Wove, E::None, M::Sun, P::Ivy, L::TopLeft, fernGreen, Sky::Rays},
        {peach, T::Handmade, E::Vignette, M::Wreath, P::None, L::Bottom, blossomPink, Sky::Rays},
        {lavender, T::Laid, E::None, M::Lark, P::Blossom, L::BottomRight, plum, Sky::None},
        {primrose, T::Linen, E::Deckle, M::None, P::Grasses, L::Top, ochre, Sky::None},
        {sage, T::Wove, E::Vignette, M::Well, P::Wildflowers, L::Bottom, fernGreen, Sky::None},
        {slate, T::Handmade, E::Deckle, M::Monogram, P::Fern, L::BottomRight, grey, Sky::Stars},
        {rose, T::Laid, E::Vignette, M::Star, P::Willow, L::Top, rust, Sky::None},
    };
    return list;
}

// The sheet in floating point, so thin washes add up without rounding steps.
struct Canvas
{
    std::vector<float> r, g, b;
    Canvas() : r(size_t(W) * H), g(size_t(W) * H), b(size_t(W) * H) {}
};

// A three-pass box blur of a premultiplied layer: soft watercolour edges, watermark glow.
void blur(QImage &image, int radius)
{
    if (radius < 1)
        return;
    const int w = image.width(), h = image.height();
    std::vector<int> sums((size_t(std::max(w, h)) + 1) * 4);
    auto pass = [&](bool horizontal) {
        const int n = horizontal ? w : h, count = horizontal ? h : w;
        for (int k = 0; k < count; ++k) {
            auto px = [&](int i) -> QRgb & {
                return horizontal ? reinterpret_cast<QRgb *>(image.scanLine(k))[i]
                                  : reinterpret_cast<QRgb *>(image.scanLine(i))[k];
            };
            // Running sums of each channel; the window shrinks at the ends.
            for (int i = 0; i < n; ++i) {
                const QRgb c = px(i);
                const int v[4] = {qAlpha(c), qRed(c), qGreen(c), qBlue(c)};
                for (int ch = 0; ch < 4; ++ch)
                    sums[size_t(i + 1) * 4 + ch] = sums[size_t(i) * 4 + ch] + v[ch];
            }
            for (int i = 0; i < n; ++i) {
                const int lo = std::max(i - radius, 0), hi = std::min(i + radius, n - 1) + 1;
                int v[4];
                for (int ch = 0; ch < 4; ++ch)
                    v[ch] = (sums[size_t(hi) * 4 + ch] - sums[size_t(lo) * 4 + ch]) / (hi - lo);
                px(i) = qRgba(v[1], v[2], v[3], v[0]);
            }
        }
    };
    for (int i = 0; i < 3; ++i) {
        pass(true);
        pass(false);
    }
}

QImage layer()
{
    QImage image(W, H, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// ---- the sheet itself -------------------------------------------------------------------------

void paintPaper(Canvas &c, const Sheet &s, uint64_t seed)
{
    Random r(seed);
    const double gx = r.range(0.15, 0.85) * W, gy = (r.chance(0.5) ? 0.1 : 0.9) * H;
    const double chainOffset = r.range(0, 150), chainPitch = r.range(128, 160);
    const double deckleDepth = r.range(16, 24);
    // How far each edge's rag reaches in, along its length.
    std::vector<double> rag[4];
    for (int e = 0; e < 4; ++e) {
        const int n = e < 2 ? H : W;
        rag[e].resize(size_t(n));
        for (int k = 0; k < n; ++k)
            rag[e][size_t(k)] = deckleDepth * (0.35 + 0.9 * fractal(seed + 19 + uint64_t(e), k / 26.0, 0.5, 3));
    }
    for (int y = 0; y < H; ++y) {
        const double ty = double(y) / H;
        for (int x = 0; x < W; ++x) {
            const size_t i = size_t(y) * W + x;
            QColor base = mix(s.tint.top, s.tint.bottom, ty);
            double R = base.redF(), G = base.greenF(), B = base.blueF();
            // Soft light from one end of the page.
            const double d2 = ((x - gx) * (x - gx) + (y - gy) * (y - gy)) / (900.0 * 900.0);
            const double glow = 0.75 * std::exp(-d2 * 1.6);
            R += (s.tint.glow.redF() - R) * glow;
            G += (s.tint.glow.greenF() - G) * glow;
            B += (s.tint.glow.blueF() - B) * glow;
            // Cloudy formation of the pulp.
            double shade = 1 + 0.035 * (fractal(seed, x / 260.0, y / 260.0, 4) - 0.5);
            switch (s.texture) {
            case Texture::Laid: {
                const double wobble = 3 * noise(seed + 7, x / 400.0, y / 90.0);
                shade -= 0.009 * (0.5 + 0.5 * std::sin((y + wobble) * 2 * pi / 7.5));
                double d = std::fmod(x + chainOffset + 4 * noise(seed + 9, x / 50.0, y / 300.0), chainPitch);
                d = std::min(d, chainPitch - d);
                shade -= 0.016 * std::exp(-d * d / 18) - 0.006 * std::exp(-d * d / 400);
                break;
            }
            case Texture::Linen: {
                const double warp = std::sin(x * 2 * pi / 5.2 + 2 * noise(seed + 3, x / 60.0, y / 8.0));
                const double weft = std::sin(y * 2 * pi / 5.2 + 2 * noise(seed + 4, x / 8.0, y / 60.0));
                shade += 0.011 * warp * weft + 0.006 * (noise(seed + 5, x / 3.0, y / 40.0) - 0.5);
                break;
            }
            case Texture::ColdPress: {
                // Light from the upper left across little hills of pulp.
                const double h0 = fractal(seed + 11, x / 9.0, y / 9.0, 2);
                const double hx = fractal(seed + 11, (x + 1.5) / 9.0, y / 9.0, 2);
                const double hy = fractal(seed + 11, x / 9.0, (y + 1.5) / 9.0, 2);
                shade += 0.09 * ((h0 - hx) + (h0 - hy));
                break;
            }
            case Texture::Handmade:
                shade += 0.03 * (fractal(seed + 13, x / 40.0, y / 40.0, 3) - 0.5);
                break;
            case Texture::Wove:
                shade += 0.012 * (fractal(seed + 15, x / 18.0, y / 18.0, 2) - 0.5);
                break;
            }
            // Fine grain, which also hides any banding of the tints.
            shade += 0.012 * (latticeValue(seed + 17, x, y) - 0.5);
            if (s.edge == Edge::Vignette) {
                const double vx = (x - W / 2.0) / (W / 2.0), vy = (y - H / 2.0) / (H / 2.0);
                const double v = vx * vx * 0.8 + vy * vy * 0.6;
                shade -= 0.05 * v * v;
            }
            if (s.edge == Edge::Deckle) {
                // The ragged edge of a handmade sheet lying on a darker card.
                const double edges[4] = {double(x), double(W - 1 - x), double(y), double(H - 1 - y)};
                double inside = 1e9, shadow = 0;
                for (int e = 0; e < 4; ++e) {
                    const double t = edges[e] - rag[e][size_t(e < 2 ? y : x)];
                    inside = std::min(inside, t);
                }
                if (inside < 0) {
                    shadow = 1 - 0.05 * std::exp(inside / 5);
                    const double card = 0.9;
                    R = R * card * shadow;
                    G = G * card * shadow;
                    B = B * card * shadow * 1.01;
                    shade = 1 + 0.01 * (latticeValue(seed + 23, x, y) - 0.5);
                } else if (inside < 7) {
                    // Thin, translucent rim of the sheet.
                    shade += 0.012 * (1 - inside / 7);
                }
                if (inside >= 0 && inside < 1.2) {
                    // Antialias the edge against the card.
                    const double a = inside / 1.2;
                    shade = shade * a + (1 - a) * 0.93;
                }
            }
            c.r[i] = float(R * shade);
            c.g[i] = float(G * shade);
            c.b[i] = float(B * shade);
        }
    }
}

// Lays a premultiplied layer over the canvas at the given strength.
void composite(Canvas &c, const QImage &layer, double strength)
{
    for (int y = 0; y < H; ++y) {
        const QRgb *line = reinterpret_cast<const QRgb *>(layer.constScanLine(y));
        for (int x = 0; x < W; ++x) {
            const QRgb p = line[x];
            const double a = qAlpha(p) / 255.0 * strength;
            if (a <= 0)
                continue;
            const size_t i = size_t(y) * W + x;
            const double s = strength / 255.0;
            c.r[i] = float(c.r[i] * (1 - a) + qRed(p) * s);
            c.g[i] = float(c.g[i] * (1 - a) + qGreen(p) * s);
            c.b[i] = float(c.b[i] * (1 - a) + qBlue(p) * s);
        }
    }
}

QPainterPath leafShape(double length, double width);

// Fibres in the pulp, and for handmade sheets flecks of petal and seed.
void drawFibres(Canvas &c, const Sheet &s, uint64_t seed)
{
    Random r(seed + 37);
    QImage img = layer();
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const bool handmade = s.texture == Texture::Handmade;
    const int count = handmade ? 2600 : s.texture == Texture::Linen ? 0 : 700;
    for (int k = 0; k < count; ++k) {
        const QPointF at(r.range(0, W), r.range(0, H));
        const double a = r.range(0, 2 * pi), len = r.range(8, handmade ? 40 : 24);
        QPainterPath fibre;
        fibre.moveTo(at);
        fibre.quadTo(at + QPointF(std::cos(a + 0.5), std::sin(a + 0.5)) * len * 0.5,
                     at + QPointF(std::cos(a), std::sin(a)) * len);
        const bool light = r.chance(0.5);
        p.strokePath(fibre, QPen(light ? QColor(255, 255, 255, 150) : QColor(120, 100, 80, 55), r.range(0.6, 1.3)));
    }
    if (handmade) {
        for (int k = 0; k < 90; ++k) {
            const QPointF at(r.range(0, W), r.range(0, H));
            const double size = r.range(3, 9);
            QPainterPath fleck = leafShape(size, size * r.range(0.3, 0.6))
                                 * QTransform().translate(at.x(), at.y()).rotateRadians(r.range(0, 2 * pi));
            p.fillPath(fleck, withAlpha(r.chance(0.6) ? s.ink : QColor(0x9a, 0x80, 0x60), 0.5));
        }
    }
    p.end();
    composite(c, img, 0.5);
}

// ---- marks -------------------------------------------------------------------------------------

QPainterPath markPath(Mark mark, uint64_t seed)
{
    // Drawn about (0, 0), some 440 across.
    QPainterPath p;
    p.setFillRule(Qt::WindingFill);
    switch (mark) {
    case Mark::None:
        break;
    case Mark::Lark:
        p = lark() * QTransform::fromTranslate(-106, -72) * QTransform::fromScale(2.3, 2.3);
        break;
    case Mark::Well: {
        QPainterPath ring;
        ring.addEllipse(QPointF(0, 0), 220, 220);
        QPainterPath hole;
        hole.addEllipse(QPointF(0, 0), 206, 206);
        p = ring.subtracted(hole);
        QPainterPath well;
        well.addRect(QRectF(-90, 30, 180, 100));
        well.addEllipse(QRectF(-98, 12, 196, 36));
        well.addRect(QRectF(-80, -120, 14, 150));
        well.addRect(QRectF(66, -120, 14, 150));
        well.addRect(QRectF(-74, -76, 148, 12));
        QPainterPath roof;
        roof.moveTo(-124, -104);
        roof.lineTo(0, -190);
        roof.lineTo(124, -104);
        roof.closeSubpath();
        well.addPath(roof);
        // Courses of stone left as lighter lines in the drum.
        QPainterPath courses;
        for (int k = 0; k < 3; ++k)
            courses.addRect(QRectF(-90, 62 + k * 26, 180, 4));
        p = p.united(well.simplified().subtracted(courses));
        break;
    }
    case Mark::Sun: {
        p.addEllipse(QPointF(0, 0), 92, 92);
        for (int k = 0; k < 16; ++k) {
            const double a = k * pi / 8, len = k % 2 ? 170 : 215;
            QPainterPath ray;
            ray.moveTo(std::cos(a - 0.07) * 112, std::sin(a - 0.07) * 112);
            ray.lineTo(std::cos(a) * len, std::sin(a) * len);
            ray.lineTo(std::cos(a + 0.07) * 112, std::sin(a + 0.07) * 112);
            ray.closeSubpath();
            p.addPath(ray);
        }
        break;
    }
    case Mark::Moon: {
        QPainterPath disc, bite;
        disc.addEllipse(QPointF(0, 0), 170, 170);
        bite.addEllipse(QPointF(70, -40), 150, 150);
        p = disc.subtracted(bite);
        QPainterPath star;
        for (int k = 0; k < 10; ++k) {
            const double a = -pi / 2 + k * pi / 5, rr = k % 2 ? 18 : 46;
            const QPointF pt(95 + std::cos(a) * rr, 20 + std::sin(a) * rr);
            k == 0 ? star.moveTo(pt) : star.lineTo(pt);
        }
        star.closeSubpath();
        p.addPath(star);
        break;
    }
    case Mark::Star: {
        for (int k = 0; k < 16; ++k) {
            const double a = -pi / 2 + k * pi / 8, rr = k % 2 ? 70 : (k % 4 ? 150 : 210);
            const QPointF pt(std::cos(a) * rr, std::sin(a) * rr);
            k == 0 ? p.moveTo(pt) : p.lineTo(pt);
        }
        p.closeSubpath();
        QPainterPath centre;
        centre.addEllipse(QPointF(0, 0), 28, 28);
        p = p.subtracted(centre);
        break;
    }
    case Mark::Wreath: {
        Random r(seed);
        for (int side = -1; side <= 1; side += 2) {
            for (int k = 0; k < 11; ++k) {
                const double a = pi / 2 + side * (0.25 + k * 0.24);
                const QPointF at(std::cos(a) * 180, std::sin(a) * 180);
                QPainterPath leaf;
                leaf.moveTo(0, 0);
                leaf.cubicTo(14, -16, 44, -16, 58, 0);
                leaf.cubicTo(44, 16, 14, 16, 0, 0);
                const double out = (k % 2 ? 0.55 : -0.55) + r.range(-0.1, 0.1);
                p.addPath(leaf * QTransform().translate(at.x(), at.y()).rotateRadians(a + side * pi / 2 + out));
            }
        }
        QPainterPath stem;
        stem.addEllipse(QPointF(0, 0), 182, 182);
        QPainterPath inner;
        inner.addEllipse(QPointF(0, 0), 176, 176);
        QPainterPath gap;
        gap.addRect(QRectF(-60, -220, 120, 60));
        p.addPath(stem.subtracted(inner).subtracted(gap));
        break;
    }
    case Mark::Monogram:
        p = textPath(QStringLiteral("L"), QStringLiteral("EB Garamond 12"), 380, 0, 120, 0, 400, true);
        p.addPath([] {
            QPainterPath frame, inner;
            frame.addEllipse(QPointF(0, 0), 190, 230);
            inner.addEllipse(QPointF(0, 0), 180, 220);
            return frame.subtracted(inner);
        }());
        break;
    }
    return p;
}

void drawMark(Canvas &c, const Sheet &s, uint64_t seed)
{
    if (s.mark == Mark::None)
        return;
    // A watermark is thinner paper: a touch darker in reflected light, with a soft rim.
    QImage img = layer();
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(W / 2.0, H * 0.47);
    p.fillPath(markPath(s.mark, seed), mix(s.tint.bottom, QColor(0x70, 0x68, 0x60), 0.5));
    p.end();
    blur(img, 2);
    composite(c, img, 0.07);
}

// ---- plants, in watercolour ------------------------------------------------------------------

struct Brush
{
    QPainterPath wash;    // filled in colour
    QPainterPath lines;   // drawn with a fine pen
    QPainterPath accents; // flower heads in the second colour
};

QPainterPath leafShape(double length, double width)
{
    QPainterPath leaf;
    leaf.moveTo(0, 0);
    leaf.cubicTo(length * 0.25, -width, length * 0.7, -width * 0.8, length, 0);
    leaf.cubicTo(length * 0.7, width * 0.8, length * 0.25, width, 0, 0);
    return leaf;
}

// A stem as a curve from `from`, heading `angle` (radians, 0 = right), bending by `bend`.
QPainterPath stemCurve(QPointF from, double angle, double length, double bend)
{
    QPainterPath p;
    p.moveTo(from);
    const QPointF dir(std::cos(angle), std::sin(angle));
    const QPointF side(-dir.y(), dir.x());
    const QPointF c1 = from + dir * length * 0.35 + side * bend * 0.3;
    const QPointF c2 = from + dir * length * 0.7 + side * bend * 0.9;
    const QPointF end = from + dir * length + side * bend * 1.3;
    p.cubicTo(c1, c2, end);
    return p;
}

void fern(Brush &b, Random &r, QPointF base, double angle, double length)
{
    const QPainterPath rachis = stemCurve(base, angle, length, r.range(-0.25, 0.25) * length);
    b.lines.addPath(rachis);
    const int pairs = 20;
    for (int k = 1; k < pairs; ++k) {
        const double t = double(k) / pairs;
        const QPointF at = rachis.pointAtPercent(t);
        const double a = -rachis.angleAtPercent(t) * pi / 180;
        const double size = length * 0.19 * std::sin(pi * std::pow(1 - t, 0.8) * 0.95 + 0.08) * r.range(0.88, 1.08);
        // Pinnae sweep forward more towards the tip, and droop a little.
        const double spread = 1.25 - 0.55 * t;
        for (int side = -1; side <= 1; side += 2) {
            const QTransform tr = QTransform().translate(at.x(), at.y()).rotateRadians(a + side * spread);
            QPainterPath pinna;
            pinna.moveTo(0, 0);
            pinna.cubicTo(size * 0.3, -size * 0.2, size * 0.75, -size * 0.14 + side * size * 0.06, size, side * size * 0.1);
            pinna.cubicTo(size * 0.75, size * 0.16 + side * size * 0.06, size * 0.3, size * 0.2, 0, 0);
            b.wash.addPath(pinna * tr);
        }
    }
}

void sprig(Brush &b, Random &r, QPointF base, double angle, double length)
{
    const QPainterPath stem = stemCurve(base, angle, length, r.range(-0.3, 0.3) * length);
    b.lines.addPath(stem);
    for (int k = 1; k <= 7; ++k) {
        const double t = k / 7.5;
        const QPointF at = stem.pointAtPercent(t);
        const double a = -stem.angleAtPercent(t) * pi / 180;
        const double size = length * (0.2 - t * 0.09);
        const int side = k % 2 ? 1 : -1;
        b.wash.addPath(leafShape(size, size * 0.36)
                       * QTransform().translate(at.x(), at.y()).rotateRadians(a + side * 0.7));
    }
    const QPointF tip = stem.pointAtPercent(1);
    b.wash.addPath(leafShape(length * 0.12, length * 0.04)
                   * QTransform().translate(tip.x(), tip.y()).rotateRadians(-stem.angleAtPercent(1) * pi / 180));
}

void flowerHead(Brush &b, Random &r, QPointF at, double size, int kind)
{
    const int petals = kind == 0 ? 12 : 5;
    const double turn = r.range(0, pi);
    for (int k = 0; k < petals; ++k) {
        const double a = turn + k * 2 * pi / petals;
        const double len = kind == 0 ? size : size * 0.8, wid = kind == 0 ? size * 0.14 : size * 0.42;
        b.accents.addPath(leafShape(len, wid) * QTransform().translate(at.x(), at.y()).rotateRadians(a));
    }
    b.lines.addEllipse(at, size * 0.16, size * 0.16);
}

void wildflowers(Brush &b, Random &r, QPointF base, double angle, double length)
{
    for (int k = 0; k < 7; ++k) {
        const double len = length * r.range(0.5, 1.0);
        const QPainterPath stem = stemCurve(base + QPointF(r.range(-60, 60), 0), angle + r.range(-0.35, 0.35), len,
                                            r.range(-0.15, 0.15) * len);
        b.lines.addPath(stem);
        for (int l = 0; l < 2; ++l) {
            const double t = r.range(0.2, 0.6);
            const QPointF at = stem.pointAtPercent(t);
            b.wash.addPath(leafShape(len * 0.16, len * 0.03)
                           * QTransform().translate(at.x(), at.y())
                                 .rotateRadians(-stem.angleAtPercent(t) * pi / 180 + (l ? 0.6 : -0.6)));
        }
        flowerHead(b, r, stem.pointAtPercent(1), r.range(22, 36), k % 2);
    }
}

void grasses(Brush &b, Random &r, QPointF base, double angle, double length)
{
    for (int k = 0; k < 16; ++k) {
        const double len = length * r.range(0.45, 1.0);
        const QPointF from = base + QPointF(r.range(-90, 90), 0);
        const double a = angle + r.range(-0.3, 0.3);
        const QPainterPath blade = stemCurve(from, a, len, r.range(-0.25, 0.25) * len);
        b.lines.addPath(blade);
        if (k % 3 == 0) {
            // An oat-like head: spikelets hanging off the upper stem.
            for (int s = 0; s < 8; ++s) {
                const double t = 0.7 + s * 0.037;
                const QPointF at = blade.pointAtPercent(t);
                const double da = -blade.angleAtPercent(t) * pi / 180 + (s % 2 ? 0.5 : -0.5);
                b.wash.addPath(leafShape(16, 5) * QTransform().translate(at.x(), at.y()).rotateRadians(da));
            }
        } else {
            b.wash.addPath(leafShape(len * 0.5, 4)
                           * QTransform().translate(from.x(), from.y()).rotateRadians(a + r.range(-0.3, 0.3)));
        }
    }
}

void ivy(Brush &b, Random &r, QPointF base, double angle, double length)
{
    const QPainterPath vine = stemCurve(base, angle, length, r.range(0.1, 0.2) * length);
    b.lines.addPath(vine);
    for (int k = 1; k < 12; ++k) {
        const double t = k / 12.0;
        const QPointF at = vine.pointAtPercent(t);
        const double hang = pi / 2 + r.range(-0.5, 0.5);
        const double size = r.range(26, 42);
        const QPointF leafAt = at + QPointF(std::cos(hang), std::sin(hang)) * size * 0.7;
        b.lines.moveTo(at);
        b.lines.lineTo(leafAt);
        // Three-lobed leaf.
        for (int lobe = -1; lobe <= 1; ++lobe)
            b.wash.addPath(leafShape(size * (lobe ? 0.75 : 1), size * 0.4)
                           * QTransform().translate(leafAt.x(), leafAt.y()).rotateRadians(hang + lobe * 0.9));
    }
}

void blossom(Brush &b, Random &r, QPointF base, double angle, double length)
{
    const QPainterPath branch = stemCurve(base, angle, length, r.range(-0.2, 0.2) * length);
    b.lines.addPath(branch);
    for (int k = 0; k < 3; ++k) {
        const double t = r.range(0.25, 0.7);
        b.lines.addPath(stemCurve(branch.pointAtPercent(t), -branch.angleAtPercent(t) * pi / 180 + (k % 2 ? 0.6 : -0.6),
                                  length * 0.3, r.range(-20, 20)));
    }
    for (int k = 0; k < 9; ++k) {
        const QPointF at = branch.pointAtPercent(r.range(0.15, 1)) + QPointF(r.range(-40, 40), r.range(-40, 40));
        if (k % 3 == 2)
            b.accents.addEllipse(at, 8, 11);
        else
            flowerHead(b, r, at, r.range(20, 30), 1);
        b.wash.addPath(leafShape(34, 11) * QTransform().translate(at.x(), at.y()).rotateRadians(r.range(0, 2 * pi)));
    }
}

void lavenderSprigs(Brush &b, Random &r, QPointF base, double angle, double length)
{
    for (int k = 0; k < 9; ++k) {
        const double len = length * r.range(0.6, 1.0);
        const QPainterPath stem = stemCurve(base + QPointF(r.range(-40, 40), 0), angle + r.range(-0.35, 0.35), len,
                                            r.range(-0.12, 0.12) * len);
        b.lines.addPath(stem);
        for (int f = 0; f < 14; ++f) {
            const double t = 0.62 + f * 0.027;
            const QPointF at = stem.pointAtPercent(std::min(t, 1.0));
            const double sz = 5.5 + 3 * std::sin(pi * f / 14);
            b.accents.addEllipse(at + QPointF(f % 2 ? sz : -sz, 0), sz, sz * 1.3);
        }
        const double t = r.range(0.1, 0.4);
        const QPointF at = stem.pointAtPercent(t);
        b.wash.addPath(leafShape(len * 0.2, 5) * QTransform().translate(at.x(), at.y())
                                                    .rotateRadians(-stem.angleAtPercent(t) * pi / 180 + 0.5));
    }
}

void seedheads(Brush &b, Random &r, QPointF base, double angle, double length)
{
    for (int k = 0; k < 4; ++k) {
        const double len = length * r.range(0.55, 1.0);
        const QPainterPath stem = stemCurve(base + QPointF(r.range(-70, 70), 0), angle + r.range(-0.3, 0.3), len,
                                            r.range(-0.15, 0.15) * len);
        b.lines.addPath(stem);
        const QPointF head = stem.pointAtPercent(1);
        const double rad = r.range(42, 62);
        // A dandelion clock: fine rays, each with a tuft.
        for (int s = 0; s < 40; ++s) {
            const double a = s * 2 * pi / 40 + r.range(-0.05, 0.05);
            const QPointF tip = head + QPointF(std::cos(a), std::sin(a)) * rad;
            b.lines.moveTo(head);
            b.lines.lineTo(tip);
            b.accents.addEllipse(tip, 2.4, 2.4);
        }
        b.wash.addEllipse(head, 7, 7);
    }
    // Seeds adrift.
    for (int k = 0; k < 6; ++k) {
        const QPointF at = base + QPointF(r.range(-150, 250), -length * r.range(0.9, 1.5));
        b.lines.moveTo(at);
        b.lines.lineTo(at + QPointF(0, 16));
        for (int s = -2; s <= 2; ++s) {
            b.lines.moveTo(at);
            b.lines.lineTo(at + QPointF(s * 5, -9));
        }
    }
}

void willow(Brush &b, Random &r, QPointF base, double angle, double length)
{
    Q_UNUSED(angle);
    // Fronds hanging from the top edge.
    for (int k = 0; k < 6; ++k) {
        const QPointF from = base + QPointF(r.range(-200, 200), -10);
        const double len = length * r.range(0.5, 1.0);
        const QPainterPath frond = stemCurve(from, pi / 2 + r.range(-0.25, 0.25), len, r.range(-40, 40));
        b.lines.addPath(frond);
        for (int l = 1; l < 14; ++l) {
            const double t = l / 14.0;
            const QPointF at = frond.pointAtPercent(t);
            const double a = -frond.angleAtPercent(t) * pi / 180 + (l % 2 ? 0.45 : -0.45);
            b.wash.addPath(leafShape(r.range(40, 60), 6) * QTransform().translate(at.x(), at.y()).rotateRadians(a));
        }
    }
}

void drawPlant(Canvas &c, const Sheet &s, uint64_t seed)
{
    if (s.plant == Plant::None)
        return;
    Random r(seed + 29);
    Brush b;
    // Where the plant grows from, which way it heads, and how far.
    QPointF base;
    double angle = -pi / 2, length = 640;
    switch (s.place) {
    case Place::BottomLeft:
        base = {170, H + 10};
        angle = -pi / 2 + 0.2;
        break;
    case Place::BottomRight:
        base = {W - 170, H + 10};
        angle = -pi / 2 - 0.2;
        break;
    case Place::TopLeft:
        base = {110, -10};
        angle = 0.95;
        break;
    case Place::TopRight:
        base = {W - 110, -10};
        angle = pi - 0.95;
        break;
    case Place::Bottom:
        base = {W / 2.0, H + 10};
        length = 440;
        break;
    case Place::Top:
        base = {W / 2.0, -10};
        angle = pi / 2;
        length = 420;
        break;
    }
    const bool wide = s.place == Place::Bottom || s.place == Place::Top;
    const int clumps = wide ? 3 : 1;
    for (int k = 0; k < clumps; ++k) {
        QPointF at = base;
        double a = angle;
        if (wide) {
            at.rx() = W * (0.14 + 0.36 * k) + r.range(-40, 40);
            a += (k - 1) * 0.25;
        }
        // Growing from above, along the top edge, plants turn to hang.
        const bool hanging = s.place == Place::Top || s.place == Place::TopLeft || s.place == Place::TopRight;
        switch (s.plant) {
        case Plant::None:
            break;
        case Plant::Fern:
            fern(b, r, at, a, length);
            if (!wide)
                fern(b, r, at + QPointF(at.x() < W / 2 ? 110 : -110, 0),
                     a + (at.x() < W / 2 ? -0.5 : 0.5) * (hanging ? -1 : 1), length * 0.7);
            break;
        case Plant::Sprig:
            sprig(b, r, at, a, length * 0.8);
            sprig(b, r, at, a + (at.x() < W / 2 ? 0.4 : -0.4), length * 0.6);
            break;
        case Plant::Wildflowers:
            wildflowers(b, r, at, a, length * 0.8);
            break;
        case Plant::Grasses:
            grasses(b, r, at, a, length);
            break;
        case Plant::Ivy:
            ivy(b, r, hanging ? QPointF(at.x() - 200, -5) : at, hanging ? 0.12 : a, length * (hanging ? 1.3 : 1));
            break;
        case Plant::Blossom:
            blossom(b, r, at, a, length * 0.8);
            break;
        case Plant::Lavender:
            lavenderSprigs(b, r, at, a, length * 0.8);
            break;
        case Plant::Seedheads:
            if (hanging)
                seedheads(b, r, QPointF(at.x() + 120, H + 10), -pi / 2 - 0.15, length * 0.8);
            else
                seedheads(b, r, at, a, length * 0.9);
            break;
        case Plant::Willow:
            willow(b, r, hanging ? at : QPointF(at.x(), -10), a, length);
            break;
        }
    }
    // Wash: one flat tint so overlapping leaves do not pile up, with darker pooled edges.
    QImage wash = layer();
    QPainter p(&wash);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor leafColour = s.ink;
    const QColor flowerColour = s.plant == Plant::Blossom || s.plant == Plant::Lavender || s.plant == Plant::Wildflowers
                                    ? s.ink
                                    : mix(s.ink, QColor(0x80, 0x80, 0x80), 0.2);
    const QColor stemColour = s.plant == Plant::Blossom ? QColor(0x9a, 0x80, 0x70) : fernGreen;
    const QColor washColour = s.plant == Plant::Blossom || s.plant == Plant::Lavender || s.plant == Plant::Wildflowers
                                  ? mix(fernGreen, s.ink, 0.25)
                                  : leafColour;
    p.fillPath(b.wash, washColour);
    p.strokePath(b.wash, QPen(mix(washColour, QColor(0x30, 0x40, 0x30), 0.35), 2.2));
    p.fillPath(b.accents, flowerColour);
    p.strokePath(b.accents, QPen(mix(flowerColour, QColor(0x40, 0x30, 0x40), 0.3), 1.6));
    p.strokePath(b.lines, QPen(mix(stemColour, s.ink, 0.4), 2.6, Qt::SolidLine, Qt::RoundCap));
    p.end();
    blur(wash, 1);
    composite(c, wash, 0.36);
}

// ---- the sky: rays of morning or stars of evening ------------------------------------------

void drawSky(Canvas &c, const Sheet &s, uint64_t seed)
{
    if (s.sky == Sky::None)
        return;
    Random r(seed + 31);
    QImage img = layer();
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    if (s.sky == Sky::Rays) {
        const QPointF from(r.chance(0.5) ? -100 : W + 100, -150);
        for (int k = 0; k < 9; ++k) {
            const double a = (from.x() < 0 ? 0.35 : pi - 0.35 - 0.9) + k * 0.11 + r.range(-0.03, 0.03);
            const double spread = r.range(0.02, 0.05);
            QPainterPath ray;
            ray.moveTo(from);
            ray.lineTo(from + QPointF(std::cos(a), std::sin(a)) * 2400);
            ray.lineTo(from + QPointF(std::cos(a + spread), std::sin(a + spread)) * 2400);
            ray.closeSubpath();
            QRadialGradient fade(from, 1900);
            fade.setColorAt(0, QColor(255, 255, 250, 255));
            fade.setColorAt(1, QColor(255, 255, 250, 0));
            p.fillPath(ray, fade);
        }
        p.end();
        blur(img, 6);
        composite(c, img, 0.35);
        return;
    }
    for (int k = 0; k < 46; ++k) {
        const QPointF at(r.range(30, W - 30), 420 * std::pow(r.uniform(), 1.3) + 30);
        const double size = r.chance(0.2) ? r.range(12, 20) : r.range(4, 8);
        QPainterPath star;
        star.moveTo(at.x(), at.y() - size);
        star.quadTo(at, QPointF(at.x() + size * 0.7, at.y()));
        star.quadTo(at, QPointF(at.x(), at.y() + size));
        star.quadTo(at, QPointF(at.x() - size * 0.7, at.y()));
        star.quadTo(at, QPointF(at.x(), at.y() - size));
        p.fillPath(star, mix(s.tint.bottom, QColor(0x5a, 0x64, 0x90), 0.7));
    }
    p.end();
    composite(c, img, 0.4);
}

QImage finish(const Canvas &c)
{
    QImage image(W, H, QImage::Format_RGB32);
    for (int y = 0; y < H; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < W; ++x) {
            const size_t i = size_t(y) * W + x;
            auto q = [](float v) { return std::clamp(int(std::lround(v * 255)), 0, 255); };
            line[x] = qRgb(q(c.r[i]), q(c.g[i]), q(c.b[i]));
        }
    }
    return image;
}
}

QImage paper(int index)
{
    const Sheet &s = sheets().at(size_t(index));
    const uint64_t seed = 7001 + uint64_t(index) * 37;
    Canvas c;
    paintPaper(c, s, seed);
    drawFibres(c, s, seed);
    drawSky(c, s, seed);
    drawMark(c, s, seed);
    drawPlant(c, s, seed);
    return finish(c);
}

bool writePapers(const QString &directory)
{
    for (int i = 0; i < int(sheets().size()); ++i) {
        QImageWriter writer(QDir(directory).filePath(QStringLiteral("Page%1.jpg").arg(i + 1)), "jpg");
        writer.setQuality(88);
        writer.setOptimizedWrite(true);
        // Baseline, not progressive: a progressive file is decoded whole at every size asked for,
        // which makes a thumbnail five times slower and needs a full-size buffer meanwhile.
        if (!writer.write(paper(i)))
            return false;
    }
    return true;
}

} // namespace Art
