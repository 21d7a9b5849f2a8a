#pragma once

#include "PageSeeding.h"

#include <QObject>
#include <QQmlEngine>
#include <QSize>
#include <QUrl>

// The home screen: the book's cover and a drop-down menu leading to every other screen. On the
// first launch it fills the page table before the cover is shown.
class CoverViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    // The menu is open while its buttons (TodayButton first) are shown.
    Q_PROPERTY(bool menuOpen READ menuOpen NOTIFY menuOpenChanged)
    Q_PROPERTY(bool ImportExportButtonHidden READ ImportExportButtonHidden NOTIFY menuOpenChanged)
    Q_PROPERTY(QUrl img READ img CONSTANT)
    // What the cover shows: the picture kept in the data folder once it is drawn there.
    Q_PROPERTY(QUrl coverSource READ coverSource NOTIFY coverSourceChanged)

public:
    explicit CoverViewController(QObject *parent = nullptr);

    bool menuOpen() const { return m_menuOpen; }
    bool ImportExportButtonHidden() const { return m_ImportExportButtonHidden; }
    QUrl img() const;
    QUrl coverSource() const { return m_coverSource; }
    // The size in pixels the cover is drawn at in a window of this size.
    Q_INVOKABLE QSize coverPixelSize(qreal windowWidth, qreal windowHeight, qreal scale) const;
    // Makes sure the cover of this size in pixels is kept or being drawn, on another thread, so
    // that a first launch draws while it seeds; viewDidLoad shows it when drawn.
    Q_INVOKABLE void prepareCover(QSize pixelSize, qreal scale);
    // Shows the cover drawn at a larger size, for a window grown past the one it was drawn for,
    // and keeps it for the next launch.
    Q_INVOKABLE void redrawCover(QSize pixelSize, qreal scale);

    Q_INVOKABLE void viewDidLoad();
    Q_INVOKABLE void viewWillAppear();
    // The cover is on screen: the store opens now, so a store that will not load stops the app
    // at start-up, naming the cover, without holding back the first frame.
    Q_INVOKABLE void viewDidAppear();
    Q_INVOKABLE void viewWillDisappear();
    // The control button: opens or closes the menu.
    Q_INVOKABLE void HandleSelection();
    Q_INVOKABLE void GoodMorningButtonClicked();
    Q_INVOKABLE void GoodNightButtonClicked();
    Q_INVOKABLE void FavoriteButtonClicked();
    Q_INVOKABLE void TodayButtonClicked();
    // The rate-and-share screen opens through its own transition; nothing to do here.
    Q_INVOKABLE void RateShareButtonClicked() {}

Q_SIGNALS:
    void menuOpenChanged();
    void coverSourceChanged();

private:
    void openList(const QString &selectedList);
    void flipMenu();
    void showCover();

    PageSeeding m_seeding;
    bool m_menuOpen = false;
    bool m_ImportExportButtonHidden = true;
    QUrl m_coverSource;
    QString m_coverPath;
};
