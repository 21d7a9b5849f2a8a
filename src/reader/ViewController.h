#pragma once

#include "Entities.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QUrl>

// Shows one page of the book under its heading and date, in the reader's font, size and colour
// over a wallpaper; marks it a favourite, saves edits, changes the size and shares it.
class ViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title NOTIFY loaded)
    Q_PROPERTY(QString PoemPrayerText READ PoemPrayerText WRITE setPoemPrayerText NOTIFY PoemPrayerTextChanged)
    Q_PROPERTY(bool styled READ styled NOTIFY loaded)
    Q_PROPERTY(QColor textColor READ textColor NOTIFY loaded)
    Q_PROPERTY(QString FontName READ FontName NOTIFY loaded)
    Q_PROPERTY(double fontSize READ fontSize NOTIFY fontSizeChanged)
    Q_PROPERTY(double ReaderFontSize READ ReaderFontSize NOTIFY fontSizeChanged)
    Q_PROPERTY(QUrl wallpaper READ wallpaper NOTIFY loaded)
    Q_PROPERTY(int deviceid READ deviceid NOTIFY loaded)
    Q_PROPERTY(double zoom READ zoom NOTIFY zoomChanged)

public:
    explicit ViewController(QObject *parent = nullptr);

    QString title() const { return m_title; }
    // The text view's content: the composed text, with the reader's edits.
    QString PoemPrayerText() const { return m_PoemPrayerText; }
    void setPoemPrayerText(const QString &text);
    bool styled() const { return m_styled; }
    QColor textColor() const { return m_textColor; }
    QString FontName() const { return m_FontName; }
    double fontSize() const { return m_fontSize; }
    double ReaderFontSize() const { return m_ReaderFontSize; }
    QUrl wallpaper() const { return m_wallpaper; }
    int deviceid() const { return m_deviceid; }
    double zoom() const { return m_zoom; }
    QString CombinedText() const { return m_CombinedText; }

    // The heading, date and page text the reader shows for a selection.
    static QString composedText(const QString &ampm, const QString &dt, const QString &poemPrayer);

    Q_INVOKABLE void viewDidLoad();
    // The favourite box changed to `checkState` (0 unchecked, 1 checked, 2 mixed).
    Q_INVOKABLE void CheckBoxChecked(int checkState);
    Q_INVOKABLE void SavePoem();
    // The size stepper moved to `value`.
    Q_INVOKABLE void ChangeFontSize(double value);
    Q_INVOKABLE void HandlePinch(double scale);
    Q_INVOKABLE void SharePoem();
    Q_INVOKABLE void FacebookShare();
    Q_INVOKABLE void BackToMain();

Q_SIGNALS:
    void loaded();
    void PoemPrayerTextChanged();
    void fontSizeChanged();
    void zoomChanged();
    // The favourite box should show this state (0 unchecked, 1 checked).
    void favoriteCheckStateRequested(int checkState, bool animated);

private:
    void save();

    int m_ViewerRandomNumberGen = 0;
    int m_deviceid = 0;
    QString m_title;
    QString m_CombinedText;
    QString m_PoemPrayerText;
    bool m_styled = false;
    QColor m_textColor = Qt::black;
    QString m_FontName;
    double m_ReaderFontSize = 0;
    double m_fontSize = 15.0; // the size the text is shown at
    QUrl m_wallpaper;
    double m_zoom = 1.0;
    QList<PoemPrayer *> m_Results;
    int m_ResultsCount = 0;
};
