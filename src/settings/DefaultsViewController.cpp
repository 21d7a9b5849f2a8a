#include "DefaultsViewController.h"

#include "Appearance.h"
#include "Navigator.h"
#include "PreferenceKeys.h"

#include <QFontDatabase>
#include <QLocale>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// A size key's value as its field shows it; the first visit stores and shows a whole 17.
QString sizeText(const PreferenceKey &key, double &size)
{
    const auto stored = Preferences::numberIfPresent(key);
    if (!stored) {
        Preferences::write(key, 17);
        size = 17;
        return u"17"_s;
    }
    size = stored->toDouble();
    return stored->typeId() == QMetaType::Double ? DefaultsViewController::decimalText(size)
                                                 : QString::number(stored->toLongLong());
}

// A switch's key; the first visit stores 0 (off).
qint64 switchValue(const PreferenceKey &key)
{
    const auto stored = Preferences::integerIfPresent(key);
    if (!stored)
        Preferences::write(key, 0);
    return stored.value_or(0);
}
}

DefaultsViewController::DefaultsViewController(QObject *parent)
    : QObject(parent)
{
}

QString DefaultsViewController::title() const
{
    return u"User Defaults"_s;
}

QString DefaultsViewController::decimalText(double value)
{
    QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    if (!text.contains(u'.') && !text.contains(u'e'))
        text += u".0"_s;
    return text;
}

void DefaultsViewController::viewDidLoad()
{
    loadFonts();
    loadSizes();
    loadColor();
    loadWallpaperSwitches();
    loadReadingComforts();
    m_fontList = QFontDatabase::families();
    filterFonts();
}

void DefaultsViewController::loadFonts()
{
    m_ListFontName = Preferences::stringOrAbsent(PreferenceKeys::ListFontName);
    m_FontName = Preferences::stringOrAbsent(PreferenceKeys::FontName);
    m_ListFontText = m_ListFontName;
    m_FontListText = m_FontName;
    Q_EMIT fontsChanged();
}

void DefaultsViewController::loadSizes()
{
    m_ListFontSizeText = sizeText(PreferenceKeys::ListFontSize, m_ListFontSize);
    m_ReaderFontSizeText = sizeText(PreferenceKeys::ReaderFontSize, m_ReaderFontSize);
    Q_EMIT sizesChanged();
}

void DefaultsViewController::loadColor()
{
    const auto stored = Preferences::integerIfPresent(PreferenceKeys::textColor);
    if (!stored)
        Preferences::write(PreferenceKeys::textColor, 0);
    m_TextColor = stored.value_or(0);
    Q_EMIT colorChanged();
}

void DefaultsViewController::loadWallpaperSwitches()
{
    m_useWallpaper = switchValue(PreferenceKeys::useWallpaper);
    m_ListWallpaperVisible = switchValue(PreferenceKeys::ListWallpaperVisible);
    Q_EMIT wallpaperChanged();
}

void DefaultsViewController::loadReadingComforts()
{
    m_NightReading = Preferences::boolForKey(PreferenceKeys::NightReading);
    m_ReadAloudRate = Preferences::doubleOrAbsent(PreferenceKeys::ReadAloudRate);
    Q_EMIT readingComfortsChanged();
}

QStringList DefaultsViewController::colorTitles() const
{
    return {u"Black"_s, u"Magenta"_s, u"Red"_s, u"Blue"_s};
}

int DefaultsViewController::colorSegmentIndex() const
{
    // A code no segment stands for shows the first one.
    return m_TextColor >= 0 && m_TextColor <= 3 ? int(m_TextColor) : 0;
}

QColor DefaultsViewController::ColorLabelColor() const
{
    return *textColorFor(colorSegmentIndex());
}

void DefaultsViewController::setFontFilter(const QString &filter)
{
    if (filter == m_fontFilter)
        return;
    m_fontFilter = filter;
    filterFonts();
}

void DefaultsViewController::filterFonts()
{
    const QString needle = m_fontFilter.trimmed();
    m_FontPickerRows.clear();
    for (const QString &family : std::as_const(m_fontList)) {
        if (family.contains(needle, Qt::CaseInsensitive))
            m_FontPickerRows.append(family);
    }
    Q_EMIT pickerChanged();
}

int DefaultsViewController::selectedPickerRow() const
{
    const QString &text = m_editingField == Field::FontListTextField ? m_FontListText : m_ListFontText;
    return int(m_FontPickerRows.indexOf(text));
}

void DefaultsViewController::beginEditing(Field field)
{
    if (field == m_editingField)
        return;
    dismissKeyboard();
    m_editingField = field;
    Q_EMIT editingFieldChanged();
    Q_EMIT pickerChanged();
}

void DefaultsViewController::didSelectRow(int row)
{
    if (row < 0 || row >= m_FontPickerRows.size())
        return;
    // The reader field takes the row while it is being edited; otherwise the list field does.
    QString &field = m_editingField == Field::FontListTextField ? m_FontListText : m_ListFontText;
    field = m_FontPickerRows.at(row);
    Q_EMIT fontsChanged();
    Q_EMIT pickerChanged();
}

void DefaultsViewController::dismissKeyboard()
{
    const Field ending = std::exchange(m_editingField, Field::None);
    if (ending == Field::FontListTextField)
        FontSelected();
    else if (ending == Field::ListFontTextField)
        ListFontSelected();
    if (ending != Field::None)
        Q_EMIT editingFieldChanged();
}

void DefaultsViewController::FontSelected()
{
    Preferences::write(PreferenceKeys::FontName, m_FontListText);
    m_FontName = m_FontListText;
    Q_EMIT fontsChanged();
}

void DefaultsViewController::ListFontSelected()
{
    Preferences::write(PreferenceKeys::ListFontName, m_ListFontText);
    m_ListFontName = m_ListFontText;
    Q_EMIT fontsChanged();
}

void DefaultsViewController::PoemViewerSegmentChanged(int index)
{
    Preferences::write(PreferenceKeys::textColor, index);
    m_TextColor = index;
    Q_EMIT colorChanged();
}

void DefaultsViewController::PoemViewSwitchChanged(bool on)
{
    m_useWallpaper = on ? 1 : 0;
    Preferences::write(PreferenceKeys::useWallpaper, m_useWallpaper);
    Q_EMIT wallpaperChanged();
}

void DefaultsViewController::NightReadingSwitchChanged(bool on)
{
    m_NightReading = on;
    Preferences::write(PreferenceKeys::NightReading, on);
    Q_EMIT readingComfortsChanged();
}

void DefaultsViewController::ReadAloudRateSliderChanged(double rate)
{
    m_ReadAloudRate = std::clamp(rate, -1.0, 1.0);
    Preferences::write(PreferenceKeys::ReadAloudRate, m_ReadAloudRate);
    Q_EMIT readingComfortsChanged();
}

void DefaultsViewController::ListViewerSwitchChanged(bool on)
{
    m_ListWallpaperVisible = on ? 1 : 0;
    Preferences::write(PreferenceKeys::ListWallpaperVisible, m_ListWallpaperVisible);
    Q_EMIT wallpaperChanged();
}

void DefaultsViewController::ListStepperChanged(double value)
{
    m_ListFontSize = value;
    m_ListFontSizeText = decimalText(value);
    Preferences::write(PreferenceKeys::ListFontSize, value);
    Q_EMIT sizesChanged();
}

void DefaultsViewController::ReaderStepperChanged(double value)
{
    m_ReaderFontSize = value;
    m_ReaderFontSizeText = decimalText(value);
    Preferences::write(PreferenceKeys::ReaderFontSize, value);
    Q_EMIT sizesChanged();
}

void DefaultsViewController::AvailableWallpaperButtonClicked()
{
    Navigator::shared().performSegue(u"ViewerWallpaperSegue"_s);
}

void DefaultsViewController::ListWallpaperButtonClicked()
{
    Navigator::shared().performSegue(u"ListWallpaperSegue"_s);
}
