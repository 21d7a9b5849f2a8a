#pragma once

#include "PoemPrayerListModel.h"

#include <QDate>
#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <functional>

Q_MOC_INCLUDE("PoemPrayerListModel.h")

// Lists the pages of the book in one of five views — today, all, morning, night, favourites —
// and hands the chosen page to the reader.
class MainTableViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int segmentIndex READ segmentIndex WRITE setSegmentIndex NOTIFY segmentIndexChanged)
    Q_PROPERTY(QStringList segmentTitles READ segmentTitles CONSTANT)
    Q_PROPERTY(PoemPrayerListModel *PoemList READ PoemList CONSTANT)
    Q_PROPERTY(QString ListFontName READ ListFontName NOTIFY appearanceChanged)
    Q_PROPERTY(double ListFontSize READ ListFontSize NOTIFY appearanceChanged)
    Q_PROPERTY(int ListWallpaperVisible READ ListWallpaperVisible NOTIFY appearanceChanged)
    Q_PROPERTY(QUrl wallpaper READ wallpaper NOTIFY appearanceChanged)

public:
    explicit MainTableViewController(QObject *parent = nullptr);

    // The calendar date that "Today" lists; the device's date unless a test sets another.
    static inline std::function<QDate()> currentDate = [] { return QDate::currentDate(); };

    int segmentIndex() const { return m_segmentIndex; }
    void setSegmentIndex(int index);
    QStringList segmentTitles() const;
    PoemPrayerListModel *PoemList() { return &m_PoemList; }
    QString ListFontName() const { return m_ListFontName; }
    double ListFontSize() const { return m_ListFontSize; }
    int ListWallpaperVisible() const { return int(m_ListWallpaperVisible); }
    // The list wallpaper behind every row, when rows show one.
    QUrl wallpaper() const;

    Q_INVOKABLE void viewDidLoad();
    Q_INVOKABLE void viewWillAppear();
    // The segmented control changed.
    Q_INVOKABLE void segmentedControlAction(int index);
    // The reader came back.
    Q_INVOKABLE void unwindSegue() {}
    Q_INVOKABLE void didSelectRowAt(int row);

Q_SIGNALS:
    void segmentIndexChanged();
    void appearanceChanged();

private:
    void fetch(); // the one place that decides which pages are shown

    PoemPrayerListModel m_PoemList;
    int m_segmentIndex = 0;
    QString m_ListFontName;
    double m_ListFontSize = 15.0;
    qint64 m_ListWallpaperVisible = 0;
    int m_PMRandomNumberGen = 0;
};
