#include "M13Checkbox.h"
#include "M13CheckboxController.h"
#include "M13CheckboxPathGenerator.h"
#include "TestSupport.h"

#include <QAccessible>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using CheckState = M13Checkbox::CheckState;
using BoxType = M13Checkbox::BoxType;
using MarkType = M13Checkbox::MarkType;

namespace {

// A window with one 40 × 40 check box at (60, 60), made by QML as the pages make it, on screen.
struct Scene
{
    QQmlEngine engine;
    std::unique_ptr<QQuickWindow> window;
    M13Checkbox *box = nullptr;

    explicit Scene(const QString &boxProperties = {})
        : window(qmlWindow(engine, uR"(Window {
                width: 200; height: 200; visible: true
                M13Checkbox { x: 60; y: 60; width: 40; height: 40; Accessible.name: "Favorite"; %1 }
            })"_s.arg(boxProperties)))
    {
        if (window)
            box = window->findChild<M13Checkbox *>();
    }
    QPoint at(QPointF boxPoint) const { return box->mapToScene(boxPoint).toPoint(); }
};

// Pixels clearly of the accent blue (the default tint and the focus ring), as opposed to the grey
// outline or white.
int accentPixels(const QImage &image)
{
    return countPixels(image, [](QRgb p) { return qBlue(p) - qRed(p) > 60; });
}

QImage render(const M13CheckboxController &controller)
{
    QImage image(48, 48, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    controller.paint(&painter);
    return image;
}

bool sameDistinctPoint(QPointF a, QPointF b)
{
    return QLineF(a, b).length() < 0.05;
}

} // namespace

class TestCheckbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void boxGeometry_data()
    {
        QTest::addColumn<BoxType>("boxType");
        QTest::addColumn<qreal>("lineWidth");
        QTest::addColumn<qreal>("cornerRadius");
        QTest::newRow("circle") << BoxType::Circle << 2.0 << 5.0;
        QTest::newRow("square, sharp corners") << BoxType::Square << 2.0 << 0.0;
        QTest::newRow("square, rounded corners") << BoxType::Square << 2.0 << 4.0;
        QTest::newRow("square, thick line") << BoxType::Square << 6.0 << 2.0;
    }

    void boxGeometry()
    {
        QFETCH(BoxType, boxType);
        QFETCH(qreal, lineWidth);
        QFETCH(qreal, cornerRadius);

        M13CheckboxCheckPathGenerator generator;
        generator.setSize(30);
        generator.setBoxType(boxType);
        generator.setBoxLineWidth(lineWidth);
        generator.setCornerRadius(cornerRadius);
        const QPainterPath drawn = generator.boxPath().toPainterPath();

        // Drawn from the top middle clockwise on screen: a quarter of the way round is the right side.
        const qreal edge = lineWidth / 2;
        QVERIFY(sameDistinctPoint(drawn.pointAtPercent(0), QPointF(15, edge)));
        QVERIFY(sameDistinctPoint(drawn.pointAtPercent(0.25), QPointF(30 - edge, 15)));
        QVERIFY(sameDistinctPoint(drawn.pointAtPercent(0.5), QPointF(15, 30 - edge)));
        QCOMPARE(drawn.boundingRect(), QRectF(edge, edge, 30 - lineWidth, 30 - lineWidth));
        // Once round, the corners bent by their radius (a circle is all corner; arcs are drawn as curves).
        const qreal side = 30 - lineWidth;
        const qreal radius = boxType == BoxType::Circle ? side / 2 : cornerRadius;
        const qreal perimeter = 4 * (side - 2 * radius) + 2 * M_PI * radius;
        QVERIFY2(std::abs(drawn.length() - perimeter) < 0.3, qPrintable(QString::number(drawn.length())));
    }

    // Every animation's text reads back as itself, and swapping it in keeps what the box showed.
    void animationText()
    {
        M13Checkbox box;
        box.setSize({40, 40});
        box.setCheckState(CheckState::Mixed);
        box.setTintColor(Qt::darkGreen);
        box.setMarkType(MarkType::Radio);
        box.setBoxType(BoxType::Square);
        box.setEnableMorphing(false);
        const QList<M13Checkbox::Animation> all = M13Checkbox::Animation::all();
        QCOMPARE(QSet(all.begin(), all.end()).size(), 13); // five kinds in two styles; stroke, fill, spiral
        for (const M13Checkbox::Animation &animation : all) {
            const QString text = animation.text();
            const auto parsed = M13Checkbox::Animation::fromText(text);
            QVERIFY2(parsed && *parsed == animation, qPrintable(text));
            box.setIBStateChangeAnimation(text);
            // The controller named by the kind, a styled one drawing in the text's style.
            const QString kind = QString(text).remove(QRegularExpression(u"(?<=.)(Stroke|Fill)$"_s));
            QCOMPARE(QString::fromLatin1(box.controller()->metaObject()->className()), u"M13Checkbox%1Controller"_s.arg(kind));
            if (auto *styled = qobject_cast<M13CheckboxStyledController *>(box.controller()))
                QCOMPARE(styled->style(), text.endsWith(u"Fill"_s) ? M13Checkbox::AnimationStyle::Fill : M13Checkbox::AnimationStyle::Stroke);
            QCOMPARE(box.checkState(), CheckState::Mixed);
            QCOMPARE(box.tintColor(), QColor(Qt::darkGreen));
            QCOMPARE(box.markType(), MarkType::Radio);
            QCOMPARE(box.boxType(), BoxType::Square);
            QCOMPARE(box.controller()->pathGenerator().size(), 40.0);
            QVERIFY(!box.enableMorphing());
            QVERIFY(box.controller()->markLayer().isVisible());
        }
    }

    void pointer_data()
    {
        QTest::addColumn<bool>("touch");
        QTest::addColumn<CheckState>("initial");
        QTest::addColumn<QPointF>("press");
        QTest::addColumn<QPointF>("release");
        QTest::addColumn<CheckState>("expected");
        QTest::addColumn<int>("valueChanges");

        const QPointF inside(20, 20);
        const QPointF outside(70, 20);
        for (const bool touch : {false, true}) {
            const char *how = touch ? "touch" : "mouse";
            QTest::addRow("%s: unchecked toggles on", how) << touch << CheckState::Unchecked << inside << inside << CheckState::Checked << 1;
            QTest::addRow("%s: checked toggles off", how) << touch << CheckState::Checked << inside << QPointF(2, 38) << CheckState::Unchecked << 1;
            QTest::addRow("%s: mixed toggles off", how) << touch << CheckState::Mixed << inside << inside << CheckState::Unchecked << 1;
            QTest::addRow("%s: lifted outside", how) << touch << CheckState::Unchecked << inside << outside << CheckState::Unchecked << 0;
            QTest::addRow("%s: lifted just past the edge", how) << touch << CheckState::Checked << inside << QPointF(20, 41) << CheckState::Checked << 0;
        }
    }

    void pointer()
    {
        QFETCH(bool, touch);
        QFETCH(CheckState, initial);
        QFETCH(QPointF, press);
        QFETCH(QPointF, release);
        QFETCH(CheckState, expected);
        QFETCH(int, valueChanges);

        Scene scene;
        QVERIFY(scene.box);
        scene.box->setCheckState(initial);
        QSignalSpy values(scene.box, &M13Checkbox::valueChanged);
        // One touch screen for the whole run: Qt keeps every device registered until exit.
        static QPointingDevice *const touchScreen = QTest::createTouchDevice();

        // Down, a wander outside and back, then up wherever the row says.
        QQuickWindow *window = scene.window.get();
        const auto send = [&](QEventPoint::State state, QPointF boxPoint) {
            const QPoint p = scene.at(boxPoint);
            if (touch) {
                auto sequence = QTest::touchEvent(window, touchScreen);
                state == QEventPoint::Pressed ? sequence.press(0, p) : state == QEventPoint::Updated ? sequence.move(0, p) : sequence.release(0, p);
            } else if (state == QEventPoint::Pressed) {
                QTest::mousePress(window, Qt::LeftButton, {}, p);
            } else if (state == QEventPoint::Updated) {
                QTest::mouseMove(window, p);
            } else {
                QTest::mouseRelease(window, Qt::LeftButton, {}, p);
            }
        };
        const QImage released = window->grabWindow();
        send(QEventPoint::Pressed, press);
        QVERIFY(scene.box->isSelected());
        QVERIFY(window->grabWindow() != released); // a halo and a slight give under the finger
        for (const QPointF &p : {press, QPointF(90, 90), release})
            send(QEventPoint::Updated, p);
        QVERIFY(scene.box->isSelected());
        send(QEventPoint::Released, release);
        QVERIFY(!scene.box->isSelected());
        QCOMPARE(scene.box->checkState(), expected);
        QCOMPARE(values.size(), valueChanges);
        if (valueChanges == 0)
            QCOMPARE(window->grabWindow(), released); // the pressed look undone
    }

    void setFromCode_data()
    {
        QTest::addColumn<QString>("animation");
        QTest::addColumn<MarkType>("mark");
        QTest::addColumn<BoxType>("boxType");
        QTest::addColumn<bool>("morphing");
        QTest::addColumn<bool>("animated");
        QTest::addColumn<CheckState>("from");
        QTest::addColumn<CheckState>("to");
        int n = 0; // each mark on each box, across the animations
        for (const auto &animation : M13Checkbox::Animation::all()) {
            const auto mark = MarkType(n % 4);
            const auto box = BoxType(n++ / 4 % 2);
            const QByteArray text = animation.text().toUtf8() + ' ' + QMetaEnum::fromType<MarkType>().valueToKey(int(mark))
                + ' ' + QMetaEnum::fromType<BoxType>().valueToKey(int(box));
            QTest::addRow("%s, on", text.constData()) << animation.text() << mark << box << true << true << CheckState::Unchecked << CheckState::Checked;
            QTest::addRow("%s, to mixed", text.constData()) << animation.text() << mark << box << true << true << CheckState::Checked << CheckState::Mixed;
            QTest::addRow("%s, to mixed, not morphing", text.constData()) << animation.text() << mark << box << false << true << CheckState::Checked << CheckState::Mixed;
            QTest::addRow("%s, off, not morphing", text.constData()) << animation.text() << mark << box << false << true << CheckState::Mixed << CheckState::Unchecked;
        }
        QTest::newRow("at once") << u"Stroke"_s << MarkType::Checkmark << BoxType::Circle << true << false << CheckState::Unchecked << CheckState::Mixed;
        QTest::newRow("same state, animated") << u"Stroke"_s << MarkType::Checkmark << BoxType::Circle << true << true << CheckState::Checked << CheckState::Checked;
        QTest::newRow("same state, not morphing") << u"Spiral"_s << MarkType::Checkmark << BoxType::Circle << false << true << CheckState::Mixed << CheckState::Mixed;
    }

    void setFromCode()
    {
        QFETCH(QString, animation);
        QFETCH(MarkType, mark);
        QFETCH(BoxType, boxType);
        QFETCH(bool, morphing);
        QFETCH(bool, animated);
        QFETCH(CheckState, from);
        QFETCH(CheckState, to);

        M13Checkbox box;
        box.setSize({40, 40});
        box.setMarkType(mark);
        box.setBoxType(boxType);
        box.setIBStateChangeAnimation(animation);
        box.setEnableMorphing(morphing);
        box.setAnimationDuration(0.05);
        box.setCheckState(from);
        QSignalSpy values(&box, &M13Checkbox::valueChanged);
        QSignalSpy states(&box, &M13Checkbox::checkStateChanged);

        box.setCheckState(to, animated);
        QCOMPARE(box.checkState(), to); // at once, whatever the layers are still doing
        QCOMPARE(states.size(), from == to ? 0 : 1);
        if (from == to)
            QVERIFY(!box.controller()->isAnimating());
        QTRY_VERIFY(!box.controller()->isAnimating());

        // Wherever the animation went, it ends looking exactly like the state set at once.
        const QImage animatedEnd = render(*box.controller());
        QCOMPARE(accentPixels(animatedEnd) > 20, to != CheckState::Unchecked); // tinted only when shown
        box.controller()->resetLayers();
        QCOMPARE(animatedEnd, render(*box.controller()));
        QCOMPARE(values.size(), 0);
    }

    void morphingDecidesTheWay_data()
    {
        QTest::addColumn<QString>("animation");
        QTest::addColumn<bool>("morphing");
        for (const auto &animation : M13Checkbox::Animation::all()) {
            QTest::newRow(qPrintable(animation.text() + u", morphing"_s)) << animation.text() << true;
            QTest::newRow(qPrintable(animation.text() + u", not morphing"_s)) << animation.text() << false;
        }
    }

    void morphingDecidesTheWay()
    {
        QFETCH(QString, animation);
        QFETCH(bool, morphing);

        M13Checkbox box;
        box.setSize({40, 40});
        box.setIBStateChangeAnimation(animation);
        box.setEnableMorphing(morphing);
        box.setAnimationDuration(1000); // held still by seeking, never by waiting
        box.setCheckState(CheckState::Checked);
        box.setCheckState(CheckState::Mixed, true);

        // The effect moves; where its first animation ends: the bar itself when morphing, no mark at
        // all otherwise.
        QVERIFY(box.controller()->transition());
        const QImage start = render(*box.controller());
        box.controller()->transition()->seek(0.5);
        QVERIFY(render(*box.controller()) != start);
        box.controller()->transition()->seek(1);
        const M13CheckboxLayer &mark = box.controller()->markLayer();
        QCOMPARE(mark.isVisible(), morphing);
        if (morphing)
            QCOMPARE(mark.path, box.controller()->pathGenerator().markPath(CheckState::Mixed));
        QVERIFY(box.controller()->selectedBoxLayer().isVisible());
    }

    void accessibility_data()
    {
        QTest::addColumn<QString>("boxProperties");
        QTest::addColumn<CheckState>("initial");
        QTest::addColumn<QString>("action");
        QTest::addColumn<CheckState>("expected");

        const QString toggle = QAccessibleActionInterface::toggleAction();
        const QString press = QAccessibleActionInterface::pressAction();
        QTest::newRow("toggle on") << QString() << CheckState::Unchecked << toggle << CheckState::Checked;
        QTest::newRow("press off") << QString() << CheckState::Checked << press << CheckState::Unchecked;
        QTest::newRow("toggle mixed") << QString() << CheckState::Mixed << toggle << CheckState::Unchecked;
        // A box the user cannot see or use refuses a screen reader's actions.
        QTest::newRow("disabled") << u"enabled: false"_s << CheckState::Unchecked << press << CheckState::Unchecked;
        QTest::newRow("hidden") << u"visible: false"_s << CheckState::Unchecked << toggle << CheckState::Unchecked;
    }

    void accessibility()
    {
        QFETCH(QString, boxProperties);
        QFETCH(CheckState, initial);
        QFETCH(QString, action);
        QFETCH(CheckState, expected);

        Scene scene(boxProperties);
        QVERIFY(scene.box);
        scene.box->setCheckState(initial);
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(scene.box);
        QVERIFY(face);
        QCOMPARE(face->role(), QAccessible::CheckBox);
        QCOMPARE(face->text(QAccessible::Name), u"Favorite"_s);
        QVERIFY(face->state().checkable);
        QCOMPARE(bool(face->state().checked), initial == CheckState::Checked);
        QCOMPARE(bool(face->state().checkStateMixed), initial == CheckState::Mixed);

        QSignalSpy values(scene.box, &M13Checkbox::valueChanged);
        QVERIFY(face->actionInterface());
        if (boxProperties.isEmpty())
            QVERIFY(face->actionInterface()->actionNames().contains(action));
        face->actionInterface()->doAction(action);
        QCOMPARE(scene.box->checkState(), expected);
        QCOMPARE(values.size(), expected == initial ? 0 : 1);
        QCOMPARE(bool(face->state().checked), expected == CheckState::Checked);
    }

    void keyboard_data()
    {
        QTest::addColumn<CheckState>("initial");
        QTest::addColumn<int>("repeats");
        QTest::addColumn<bool>("leaveWhileHeld");
        QTest::addColumn<CheckState>("expected");
        QTest::addColumn<int>("valueChanges");

        QTest::newRow("mixed toggles off") << CheckState::Mixed << 0 << false << CheckState::Unchecked << 1;
        QTest::newRow("held down, toggles once") << CheckState::Unchecked << 3 << false << CheckState::Checked << 1;
        QTest::newRow("focus moved away while held") << CheckState::Checked << 0 << true << CheckState::Checked << 0;
    }

    void keyboard()
    {
        QFETCH(CheckState, initial);
        QFETCH(int, repeats);
        QFETCH(bool, leaveWhileHeld);
        QFETCH(CheckState, expected);
        QFETCH(int, valueChanges);

        Scene scene;
        QVERIFY(scene.box);
        QQuickWindow *window = scene.window.get();
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        scene.box->setCheckState(initial);
        QSignalSpy values(scene.box, &M13Checkbox::valueChanged);

        // Reached with Tab, it says so to a screen reader and shows a ring round the box.
        const QRect area(scene.at({-10, -10}), QSize(60, 60));
        const int accentBefore = accentPixels(window->grabWindow().copy(area));
        QTest::keyClick(window, Qt::Key_Tab);
        QVERIFY(scene.box->hasActiveFocus());
        QVERIFY(scene.box->hasVisualFocus());
        QVERIFY(QAccessible::queryAccessibleInterface(scene.box)->state().focused);
        QVERIFY(accentPixels(window->grabWindow().copy(area)) > accentBefore + 40);

        QTest::keyPress(window, Qt::Key_Space);
        QVERIFY(scene.box->isSelected());
        for (int i = 0; i < repeats; ++i) {
            QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
            QCoreApplication::sendEvent(window, &again);
        }
        if (leaveWhileHeld)
            scene.box->setFocus(false);
        QTest::keyRelease(window, Qt::Key_Space);
        QVERIFY(!scene.box->isSelected());
        QCOMPARE(scene.box->checkState(), expected);
        QCOMPARE(values.size(), valueChanges);
        QCOMPARE(scene.box->hasVisualFocus(), !leaveWhileHeld);
    }
};

QTEST_MAIN(TestCheckbox)
#include "tst_checkbox.moc"
