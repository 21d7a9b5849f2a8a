#pragma once

// Shared tools of the picture generator: a repeatable random source, smooth noise, colour
// helpers and a small SVG writer. Everything is seeded, so every build draws the same pictures.

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QString>
#include <QStringList>
#include <cmath>
#include <cstdint>

namespace Art {

constexpr double pi = 3.14159265358979323846;

// SplitMix64: the same numbers on every compiler, unlike the standard distributions.
class Random
{
public:
    explicit Random(uint64_t seed) : m_state(seed * 0x9E3779B97F4A7C15ULL + 0x632BE59BD9B4E019ULL) {}
    uint64_t next()
    {
        uint64_t z = (m_state += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }
    double uniform() { return double(next() >> 11) * (1.0 / 9007199254740992.0); }
    double range(double lo, double hi) { return lo + (hi - lo) * uniform(); }
    int below(int n) { return int(next() % uint64_t(n)); }
    bool chance(double p) { return uniform() < p; }

private:
    uint64_t m_state;
};

// A hash of lattice coordinates in 0..1, the basis of the value noise.
double latticeValue(uint64_t seed, int x, int y);
// Smooth value noise in 0..1 with the given cell size in pixels.
double noise(uint64_t seed, double x, double y);
// Fractal noise: octaves of value noise, roughly 0..1.
double fractal(uint64_t seed, double x, double y, int octaves);

// WCAG relative luminance of an sRGB colour.
double luminance(QRgb rgb);
QColor mix(const QColor &a, const QColor &b, double t);
QColor withAlpha(QColor c, double alpha);

// The SVG "d" attribute of a painter path, coordinates rounded to a tenth.
QString pathData(const QPainterPath &path);
// Outline of a line of text in the given font, with its baseline centred on (cx, baseline).
QPainterPath textPath(const QString &text, const QString &family, double pixelSize, double cx,
                      double baseline, double letterSpacing = 0, int weight = 400, bool italic = false);

// A smooth curve through the points (Catmull-Rom turned into cubic Béziers).
QPainterPath smoothThrough(const QList<QPointF> &points);

// Numbers for SVG attributes: short, with no trailing zeros.
QString num(double v);
QString hex(const QColor &c);

// Collects the elements of one SVG document.
class Svg
{
public:
    Svg(double width, double height);
    void defs(const QString &markup) { m_defs += markup; }
    void add(const QString &markup) { m_body += markup; }
    QString linearGradient(const QString &id, double x1, double y1, double x2, double y2,
                           const QList<std::pair<double, QColor>> &stops);
    QString radialGradient(const QString &id, double cx, double cy, double r,
                           const QList<std::pair<double, QColor>> &stops);
    QByteArray document() const;

private:
    double m_width;
    double m_height;
    QString m_defs;
    QString m_body;
};

bool writeFile(const QString &path, const QByteArray &bytes);

// The three families of pictures and the icon rasters, each written into `directory`.
bool writePapers(const QString &directory);  // Page1 … Page35
QImage paper(int index);                     // one of them, index 0 … 34
bool writeBands(const QString &directory);   // AM-36 … AM-70
bool writeCover(const QString &directory);   // Cover
bool writeIcons(const QString &svgFile, const QString &directory, const QList<int> &sizes);
// A picture file scaled to fill `size`, cropped about its centre, as the app shows it.
QImage renderFilled(const QString &file, QSize size);
bool writeContactSheet(const QString &bundleDirectory, const QString &outFile);

// The skylark, wings raised, facing right, in a 200 × 200 box; shared by cover and bands.
QPainterPath lark();

} // namespace Art
