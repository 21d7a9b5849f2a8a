#include "Appearance.h"
#include "Art.h"
#include "Contrast.h"
#include "Bundle.h"
#include "TestSupport.h"
#include "Wallpapers.h"

#include <QHash>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
double luminance(const QColor &color)
{
    return Art::luminance(color.rgb());
}

// The luminance that all but the darkest 5 % of the paper's pixels reach: dark text is read
// against the darker parts of the paper. Each paper is measured once for all text colours.
double darkPercentile(const QString &name)
{
    static QHash<QString, double> measured;
    if (const auto it = measured.constFind(name); it != measured.cend())
        return *it;
    const QImage picture(u":"_s + Bundle::main().imageUrl(name).path());
    if (picture.isNull())
        return -1;
    const QImage image = picture.scaled(200, 200, Qt::IgnoreAspectRatio).convertToFormat(QImage::Format_RGB32);
    std::vector<double> values;
    values.reserve(size_t(image.width()) * size_t(image.height()));
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            values.push_back(luminance(QColor(image.pixel(x, y))));
    const auto nth = values.begin() + std::ptrdiff_t(values.size() / 20);
    std::nth_element(values.begin(), nth, values.end());
    return measured[name] = *nth;
}
}

// Body text on the reader's papers, and the favourite box's empty circle on a list cell.
class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bodyTextOnEveryReaderWallpaper_data();
    void bodyTextOnEveryReaderWallpaper();
    void emptyCheckCircleOnTheCell();
};

void TestContrast::bodyTextOnEveryReaderWallpaper_data()
{
    QTest::addColumn<qint64>("code");
    QTest::newRow("black") << qint64(0);
    QTest::newRow("magenta") << qint64(1);
    QTest::newRow("red") << qint64(2);
    QTest::newRow("blue") << qint64(3);
}

void TestContrast::bodyTextOnEveryReaderWallpaper()
{
    QFETCH(qint64, code);
    const std::optional<QColor> text = textColorFor(code);
    QVERIFY(text);
    double worst = 21;
    QString worstName;
    for (const QString &name : Wallpapers::ViewerWallpaper()) {
        const double paper = darkPercentile(name);
        QVERIFY2(paper >= 0, qPrintable(name));
        const double ratio = contrast(luminance(*text), paper);
        if (ratio < worst)
            std::tie(worst, worstName) = std::tuple(ratio, name);
    }
    qInfo("%s: lowest contrast %.2f:1 (on %s)", QTest::currentDataTag(), worst, qPrintable(worstName));
    QVERIFY2(worst >= 4.5, qPrintable(u"%1:1 on %2"_s.arg(worst, 0, 'f', 2).arg(worstName)));
}

void TestContrast::emptyCheckCircleOnTheCell()
{
    importLarkwellsModule();
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Larkwells\nItem { property color cell: Theme.cellColor\n"
                      "FavoriteBox { objectName: \"box\" } }", QUrl(u"qrc:/test/Box.qml"_s));
    std::unique_ptr<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    auto *box = findItem(qobject_cast<QQuickItem *>(root.get()), u"FavoriteCheckBox"_s);
    QVERIFY(box);
    const QColor circle = box->property("secondaryTintColor").value<QColor>();
    const double ratio = contrast(luminance(circle), luminance(root->property("cell").value<QColor>()));
    qInfo("empty circle: %.2f:1", ratio);
    QVERIFY(ratio >= 3);
}

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
