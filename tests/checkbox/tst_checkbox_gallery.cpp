#include "M13Checkbox.h"
#include "M13CheckboxController.h"
#include "CheckboxPixels.h"
#include "TestSupport.h"

#include <QDir>
#include <QPainter>
#include <QQuickWindow>
#include <QtTest>

using namespace Qt::StringLiterals;

// Renders every box, mark, state and effect to PNGs for a person to look at, and checks the
// renders for the things a look cannot be trusted to notice: the tint where it belongs and
// effects that really move and end where the box at rest is.
class TestCheckboxGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void states();
    void motion_data();
    void motion();

private:
    static QString outputPath(const QString &name);
    QImage grab(QQuickWindow &window, const QRectF &area);
};

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

void TestCheckboxGallery::initTestCase()
{
    importLarkwellsModule();
}

QString TestCheckboxGallery::outputPath(const QString &name)
{
    const QString dir = qEnvironmentVariable("LARKWELLS_GALLERY_DIR", QDir::currentPath());
    QDir().mkpath(dir);
    return QDir(dir).absoluteFilePath(name);
}

QImage TestCheckboxGallery::grab(QQuickWindow &window, const QRectF &area)
{
    const QImage image = window.grabWindow();
    const qreal ratio = window.effectiveDevicePixelRatio();
    return image.copy(QRectF(area.topLeft() * ratio, area.size() * ratio).toRect());
}

void TestCheckboxGallery::states()
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

    // The keyboard focus ring, on an unchecked square box, where nothing else is of the tint.
    const QRectF focusedCell(0, 4 * Cell, Cell, Cell);
    const QPointF focusedCentre = focusedCell.center();
    auto *focused = qobject_cast<M13Checkbox *>(window.contentItem()->childAt(focusedCentre.x(), focusedCentre.y()));
    QVERIFY(focused);
    focused->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(focused->hasVisualFocus());
    const QImage ring = grab(window, focusedCell);
    QVERIFY(ring.save(outputPath(u"checkbox-focused.png"_s)));
    QVERIFY(accentPixels(ring) > 40);
    focused->setFocus(false);
    QCOMPARE(accentPixels(grab(window, focusedCell)), 0);

    for (const Placed &p : std::as_const(placed)) {
        const int tint = accentPixels(grab(window, p.cell));
        if (p.state == CheckState::Unchecked)
            QCOMPARE(tint, 0);
        else
            QVERIFY2(tint > 20, qPrintable(u"no tint in a shown box at %1,%2"_s.arg(p.cell.x()).arg(p.cell.y())));
    }
}

void TestCheckboxGallery::motion_data()
{
    QTest::addColumn<QString>("animation");
    for (const auto &animation : M13Checkbox::Animation::all())
        QTest::newRow(qPrintable(animation.text())) << animation.text();
}

void TestCheckboxGallery::motion()
{
    QFETCH(QString, animation);
    const QList<qreal> moments{0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1};
    struct Change { M13Checkbox::BoxType boxType; CheckState from; CheckState to; };
    const QList<Change> changes{{M13Checkbox::BoxType::Circle, CheckState::Unchecked, CheckState::Checked},
                                {M13Checkbox::BoxType::Square, CheckState::Unchecked, CheckState::Checked},
                                {M13Checkbox::BoxType::Circle, CheckState::Checked, CheckState::Mixed},
                                {M13Checkbox::BoxType::Square, CheckState::Checked, CheckState::Unchecked}};

    // A row per change: the frame at each moment side by side, then the new state set at once.
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(Cell * (moments.size() + 1), Cell * changes.size());
    for (int row = 0; row < changes.size(); ++row) {
        for (int column = 0; column <= moments.size(); ++column) {
            M13Checkbox *box = makeBox(window, QPointF(column * Cell, row * Cell));
            box->setIBStateChangeAnimation(animation);
            box->setBoxType(changes[row].boxType);
            box->setAnimationDuration(1000); // held still by seeking, never by waiting
            box->setCheckState(changes[row].from);
            if (column == moments.size()) {
                box->setCheckState(changes[row].to);
                continue;
            }
            box->setCheckState(changes[row].to, true);
            QVERIFY(box->controller()->transition());
            box->controller()->transition()->seek(moments[column]);
        }
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QImage all = window.grabWindow();
    const QString path = outputPath(u"checkbox-motion-%1.png"_s.arg(animation));
    QVERIFY(all.save(path));
    qInfo("motion: %s", qPrintable(path));

    const qreal last = moments.size() - 1;
    for (int row = 0; row < changes.size(); ++row) {
        const auto frame = [&](qreal column) {
            return grab(window, QRectF(column * Cell, row * Cell, Cell, Cell));
        };
        const QImage start = frame(0);
        const QImage middle = frame(last / 2);
        const QImage end = frame(last);
        QVERIFY2(middle != start && middle != end, "the effect does not move");
        QCOMPARE(end, frame(moments.size())); // the last frame is the box at rest
        if (changes[row].from == CheckState::Unchecked)
            QCOMPARE(accentPixels(start), 0);
    }
}

QTEST_MAIN(TestCheckboxGallery)
#include "tst_checkbox_gallery.moc"
