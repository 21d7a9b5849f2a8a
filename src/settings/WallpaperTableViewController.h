#pragma once

#include <QAbstractListModel>
#include <QObject>
#include <QQmlEngine>
#include <QQmlParserStatus>
#include <QStringList>

// The rows of one wallpaper set: each picture, whether it may be drawn, and "Used" or
// "Not Used". A row read for display is a row shown: a picture without a setting gets "true".
class WallpaperListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each wallpaper screen owns its rows")

public:
    enum Role { ImageNameRole = Qt::UserRole + 1, ImageRole, CheckStateRole, UseLabelRole };

    explicit WallpaperListModel(QStringList names, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // The user set the row's check box (0 unchecked, 1 checked, 2 mixed): the choice is stored.
    void setCheckState(int row, int checkState);
    const QStringList &names() const { return m_names; }

private:
    // The row's check state as stored, storing "true" for a picture never shown before.
    int shownCheckState(int row) const;

    QStringList m_names;
};

// A screen that lets the user mark which wallpapers of a set readers or lists may draw.
class WallpaperTableViewController : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    QML_UNCREATABLE("Open the reader or the list wallpaper screen")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(WallpaperListModel *WallpaperList READ WallpaperList CONSTANT)
    Q_PROPERTY(bool noneInUse READ noneInUse NOTIFY noneInUseChanged)
    Q_PROPERTY(bool lastAloneInUse READ lastAloneInUse NOTIFY noneInUseChanged)

public:
    QString title() const { return m_title; }
    WallpaperListModel *WallpaperList() { return &m_WallpaperList; }
    // No picture of the set can be drawn, so the screens of the set show none.
    bool noneInUse() const { return m_noneInUse; }
    // Only the last picture may be drawn: redraws never reach it, so the screens of the set show
    // it seldom (a page reader's first draw) or never.
    bool lastAloneInUse() const { return m_lastAloneInUse; }

    // The rows' pictures are asked for as the screen is made.
    void classBegin() override;
    void componentComplete() override {}

    Q_INVOKABLE void viewDidLoad();
    // The row's check box changed to `checkState` (0 unchecked, 1 checked, 2 mixed).
    Q_INVOKABLE void CheckBoxChanged(int row, int checkState);

Q_SIGNALS:
    void noneInUseChanged();

protected:
    WallpaperTableViewController(QString title, const QStringList &names, QObject *parent);

private:
    void updateNoneInUse();

    QString m_title;
    WallpaperListModel m_WallpaperList;
    bool m_noneInUse = false;
    bool m_lastAloneInUse = false;
};
