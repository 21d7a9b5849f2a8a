#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

// The "User Defaults" screen: the reader and list fonts and sizes, the reader's text colour and
// whether readers and lists show a wallpaper. Every change is stored at once; a screen opened
// afterwards uses it. One font picker serves both font fields.
class DefaultsViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString FontName READ FontName NOTIFY fontsChanged)
    Q_PROPERTY(QString ListFontName READ ListFontName NOTIFY fontsChanged)
    Q_PROPERTY(QString FontListText READ FontListText NOTIFY fontsChanged)
    Q_PROPERTY(QString ListFontText READ ListFontText NOTIFY fontsChanged)
    Q_PROPERTY(double ReaderFontSize READ ReaderFontSize NOTIFY sizesChanged)
    Q_PROPERTY(double ListFontSize READ ListFontSize NOTIFY sizesChanged)
    Q_PROPERTY(QString ReaderFontSizeText READ ReaderFontSizeText NOTIFY sizesChanged)
    Q_PROPERTY(QString ListFontSizeText READ ListFontSizeText NOTIFY sizesChanged)
    Q_PROPERTY(QStringList colorTitles READ colorTitles CONSTANT)
    Q_PROPERTY(int colorSegmentIndex READ colorSegmentIndex NOTIFY colorChanged)
    Q_PROPERTY(QColor ColorLabelColor READ ColorLabelColor NOTIFY colorChanged)
    Q_PROPERTY(int useWallpaper READ useWallpaper NOTIFY wallpaperChanged)
    Q_PROPERTY(int ListWallpaperVisible READ ListWallpaperVisible NOTIFY wallpaperChanged)
    Q_PROPERTY(bool NightReading READ NightReading NOTIFY readingComfortsChanged)
    Q_PROPERTY(double ReadAloudRate READ ReadAloudRate NOTIFY readingComfortsChanged)
    Q_PROPERTY(Field editingField READ editingField NOTIFY editingFieldChanged)
    Q_PROPERTY(QString fontFilter READ fontFilter WRITE setFontFilter NOTIFY pickerChanged)
    Q_PROPERTY(QStringList FontPickerRows READ FontPickerRows NOTIFY pickerChanged)
    Q_PROPERTY(int selectedPickerRow READ selectedPickerRow NOTIFY pickerChanged)

public:
    // The font field the picker is writing into.
    enum class Field { None, FontListTextField, ListFontTextField };
    Q_ENUM(Field)

    explicit DefaultsViewController(QObject *parent = nullptr);

    QString title() const;
    QString FontName() const { return m_FontName; }
    QString ListFontName() const { return m_ListFontName; }
    QString FontListText() const { return m_FontListText; }
    QString ListFontText() const { return m_ListFontText; }
    double ReaderFontSize() const { return m_ReaderFontSize; }
    double ListFontSize() const { return m_ListFontSize; }
    QString ReaderFontSizeText() const { return m_ReaderFontSizeText; }
    QString ListFontSizeText() const { return m_ListFontSizeText; }
    QStringList colorTitles() const;
    int colorSegmentIndex() const;
    QColor ColorLabelColor() const;
    int useWallpaper() const { return int(m_useWallpaper); }
    int ListWallpaperVisible() const { return int(m_ListWallpaperVisible); }
    bool NightReading() const { return m_NightReading; }
    double ReadAloudRate() const { return m_ReadAloudRate; }
    Field editingField() const { return m_editingField; }
    QString fontFilter() const { return m_fontFilter; }
    void setFontFilter(const QString &filter);
    QStringList fontList() const { return m_fontList; }
    QStringList FontPickerRows() const { return m_FontPickerRows; }
    int selectedPickerRow() const;

    // A number as the size fields show it: "18.0" for a whole double, "18.5" otherwise.
    static QString decimalText(double value);

    Q_INVOKABLE void viewDidLoad();
    // A font field starts editing: the picker now writes into it.
    Q_INVOKABLE void beginEditing(DefaultsViewController::Field field);
    // The picker's row was chosen: its family goes into the field being edited.
    Q_INVOKABLE void didSelectRow(int row);
    // Editing ends: the edited font field is stored.
    Q_INVOKABLE void dismissKeyboard();
    Q_INVOKABLE void FontSelected();
    Q_INVOKABLE void ListFontSelected();
    Q_INVOKABLE void PoemViewerSegmentChanged(int index);
    Q_INVOKABLE void PoemViewSwitchChanged(bool on);
    Q_INVOKABLE void ListViewerSwitchChanged(bool on);
    Q_INVOKABLE void NightReadingSwitchChanged(bool on);
    // The Read Aloud rate slider moved: -1 slowest, 0 normal, 1 fastest.
    Q_INVOKABLE void ReadAloudRateSliderChanged(double rate);
    Q_INVOKABLE void ListStepperChanged(double value);
    Q_INVOKABLE void ReaderStepperChanged(double value);
    Q_INVOKABLE void AvailableWallpaperButtonClicked();
    Q_INVOKABLE void ListWallpaperButtonClicked();

Q_SIGNALS:
    void fontsChanged();
    void sizesChanged();
    void colorChanged();
    void wallpaperChanged();
    void readingComfortsChanged();
    void editingFieldChanged();
    void pickerChanged();

private:
    void loadFonts();
    void loadSizes();
    void loadColor();
    void loadWallpaperSwitches();
    void loadReadingComforts();
    void filterFonts(); // the one place that decides the picker's rows

    QString m_FontName;
    QString m_ListFontName;
    QString m_FontListText;
    QString m_ListFontText;
    double m_ReaderFontSize = 17;
    double m_ListFontSize = 17;
    QString m_ReaderFontSizeText;
    QString m_ListFontSizeText;
    qint64 m_TextColor = 0; // as stored: it may lie outside the segments
    qint64 m_useWallpaper = 0;
    qint64 m_ListWallpaperVisible = 0;
    bool m_NightReading = false;
    double m_ReadAloudRate = 0;
    QStringList m_fontList;
    QStringList m_FontPickerRows;
    QString m_fontFilter;
    Field m_editingField = Field::None;
};
