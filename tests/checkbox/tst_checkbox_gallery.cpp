#include "M13Checkbox.h"
#include "M13CheckboxController.h"
#include "CheckboxPixels.h"
#include "TestSupport.h"

#include <QDir>
#include <QPainter>
#include <QQuickWindow>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int Cell = 64;
constexpr int BoxSize = 40;

using CheckState = M13Checkbox::CheckState;

M13Checkbox *makeBox(QQuickWindow &window, QPointF cellOrigin)
{
    auto *box = new M13Checkbox(window.contentItem());
    box->setSize({BoxSize, BoxSize});
    box->setPosition(cellOrigin + QPointF((Cell - BoxSize) / 2.0, (Cell - BoxSize) / 2.0));
    return box;
}

} // namespace

// Renders every box, mark and state to PNGs for a person to look at, and checks the renders for
// what a look cannot be trusted to notice: the tint where it belongs, the pressed look undone.
class TestCheckboxGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        importLarkwellsModule();
    }

    void states()
    {
        // Rows: each box with each mark; columns: the three states drawn with strokes, then filled.
        const QList<M13Checkbox::BoxType> boxes{M13Checkbox::BoxType::Circle, M13Checkbox::BoxType::Square};
        const QList<M13Checkbox::MarkType> marks{M13Checkbox::MarkType::Checkmark, M13Checkbox::MarkType::Radio,
                                                 M13Checkbox::MarkType::AddRemove, M13Checkbox::MarkType::Disclosure};
        const QList<CheckState> states{CheckState::Unchecked, CheckState::Checked, CheckState::Mixed};
        const QList<M13Checkbox::Animation> styles{M13Checkbox::Animation::stroke(), M13Checkbox::Animation::fill()};

        QQuickWindow window;
        window.setColor(Qt::white);
        window.resize(Cell * 6, Cell * 8);
        struct Placed { QRectF cell; CheckState state; };
        QList<Placed> placed;
        int row = 0;
        for (const auto boxType : boxes) {
            for (const auto markType : marks) {
                int column = 0;
                for (const auto &style : styles) {
                    for (const auto state : states) {
                        const QPointF origin(column * Cell, row * Cell);
                        M13Checkbox *box = makeBox(window, origin);
                        box->setStateChangeAnimation(style);
                        box->setBoxType(boxType);
                        box->setMarkType(markType);
                        box->setCheckState(state);
                        placed.append({QRectF(origin, QSizeF(Cell, Cell)), state});
                        ++column;
                    }
                }
                ++row;
            }
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        const QImage all = window.grabWindow();
        const QString path = outputPath(u"checkbox-gallery.png"_s);
        QVERIFY(all.save(path));
        qInfo("gallery: %s", qPrintable(path));

        // The pressed look: a halo and a slight give under the finger.
        const QRectF pressedCell(Cell, 0, Cell, Cell);
        const QImage released = grab(window, pressedCell);
        QTest::mousePress(&window, Qt::LeftButton, {}, pressedCell.center().toPoint());
        const QImage pressed = grab(window, pressedCell);
        QTest::mouseRelease(&window, Qt::LeftButton, {}, QPoint(5 * Cell + 1, 7 * Cell + 1));
        const QString pressedPath = outputPath(u"checkbox-pressed.png"_s);
        QVERIFY(pressed.save(pressedPath));
        QVERIFY(pressed != released);
        QCOMPARE(grab(window, pressedCell), released);

        for (const Placed &p : std::as_const(placed)) {
            const int tint = accentPixels(grab(window, p.cell));
            if (p.state == CheckState::Unchecked)
                QCOMPARE(tint, 0);
            else
                QVERIFY2(tint > 20, qPrintable(u"no tint in a shown box at %1,%2"_s.arg(p.cell.x()).arg(p.cell.y())));
        }
    }

private:
    static QString outputPath(const QString &name)
    {
        const QString dir = qEnvironmentVariable("LARKWELLS_GALLERY_DIR", QDir::currentPath());
        QDir().mkpath(dir);
        return QDir(dir).absoluteFilePath(name);
    }

    QImage grab(QQuickWindow &window, const QRectF &area)
    {
        const QImage image = window.grabWindow();
        const qreal ratio = window.effectiveDevicePixelRatio();
        return image.copy(QRectF(area.topLeft() * ratio, area.size() * ratio).toRect());
    }
};

QTEST_MAIN(TestCheckboxGallery)
#include "tst_checkbox_gallery.moc"
