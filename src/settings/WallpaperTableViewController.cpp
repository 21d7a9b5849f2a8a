#include "WallpaperTableViewController.h"

#include "Bundle.h"
#include "CoveringPicture.h"
#include "PreferenceKeys.h"
#include "Wallpapers.h"

using namespace Qt::StringLiterals;

namespace {
enum CheckState { Unchecked = 0, Checked = 1, Mixed = 2 };
}

WallpaperListModel::WallpaperListModel(QStringList names, QObject *parent)
    : QAbstractListModel(parent)
    , m_names(std::move(names))
{
}

int WallpaperListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_names.size());
}

QHash<int, QByteArray> WallpaperListModel::roleNames() const
{
    return {{ImageNameRole, "imageName"}, {ImageRole, "image"}, {CheckStateRole, "rowCheckState"},
            {UseLabelRole, "useLabel"}};
}

int WallpaperListModel::shownCheckState(int row) const
{
    const PreferenceKey key = PreferenceKeys::wallpaper(m_names.at(row));
    const auto value = Preferences::stringIfPresent(key);
    if (!value) {
        Preferences::write(key, u"true"_s);
        return Checked;
    }
    return *value == u"false"_s ? Unchecked : Checked;
}

QVariant WallpaperListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString &name = m_names.at(index.row());
    switch (role) {
    case ImageNameRole: return name;
    case ImageRole: return Bundle::main().imageUrl(name);
    case CheckStateRole: return shownCheckState(index.row());
    case UseLabelRole: return shownCheckState(index.row()) == Checked ? u"Used"_s : u"Not Used"_s;
    default: return {};
    }
}

void WallpaperListModel::setCheckState(int row, int checkState)
{
    if (row < 0 || row >= m_names.size())
        return;
    // Only a ticked box marks the picture as used; a mixed one counts as not used.
    Preferences::write(PreferenceKeys::wallpaper(m_names.at(row)), checkState == Checked ? u"true"_s : u"false"_s);
    Q_EMIT dataChanged(index(row), index(row), {CheckStateRole, UseLabelRole});
}

WallpaperTableViewController::WallpaperTableViewController(QString title, const QStringList &names, QObject *parent)
    : QObject(parent)
    , m_title(std::move(title))
    , m_WallpaperList(names)
{
}

void WallpaperTableViewController::classBegin()
{
    CoveringPicture::install(qmlEngine(this));
}

void WallpaperTableViewController::viewDidLoad()
{
    updateNoneInUse();
}

void WallpaperTableViewController::CheckBoxChanged(int row, int checkState)
{
    m_WallpaperList.setCheckState(row, checkState);
    updateNoneInUse();
}

void WallpaperTableViewController::updateNoneInUse()
{
    const QStringList names = m_WallpaperList.names();
    const bool none = Wallpapers::noneInUse(names);
    const bool lastAlone = !none && Wallpapers::noneInUse(names.mid(0, names.size() - 1));
    if (none == m_noneInUse && lastAlone == m_lastAloneInUse)
        return;
    m_noneInUse = none;
    m_lastAloneInUse = lastAlone;
    Q_EMIT noneInUseChanged();
}
