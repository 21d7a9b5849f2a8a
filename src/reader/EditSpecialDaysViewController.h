#pragma once

#include "ReaderScreen.h"
#include "Entities.h"

#include <QObject>
#include <QQmlEngine>

// Shows the poem of the special day chosen in the special-days list under its morning or night
// heading and the day's name, in the reader's font, size and colour over a wallpaper, and
// shares it.
class EditSpecialDaysViewController : public ReaderScreen
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString PoemPrayerText READ PoemPrayerText WRITE setPoemPrayerText NOTIFY PoemPrayerTextChanged)

public:
    explicit EditSpecialDaysViewController(QObject *parent = nullptr);

    // The text view's content: the composed text, with the reader's edits.
    QString PoemPrayerText() const { return m_PoemPrayerText; }
    void setPoemPrayerText(const QString &text);
    QString SpecialDayText() const { return m_SpecialDayText; }

    // What stands above the poem: "Good Morning" or "Good Night" and the day's name; nothing
    // for another time of day.
    static QString heading(const QString &ampm, const QString &dayName);

    Q_INVOKABLE void viewDidLoad();
    // Writes the shown text back only for a time of day given as "Good Morning"/"Good Night",
    // which the list never gives; then returns to the list.
    Q_INVOKABLE void SaveSpecialDays();
    Q_INVOKABLE void BackToSpecialDays();
    Q_INVOKABLE void ShareActions();
    // The keyboard or the wheel asks for the text one point larger (1) or smaller (-1); this
    // reader stores no size.
    Q_INVOKABLE void StepFontSize(int direction);

Q_SIGNALS:
    void PoemPrayerTextChanged();

private:
    QString m_SpecialDayName;
    QString m_SpecialDayText;
    QString m_PoemPrayerText;
    QList<SpecialDay *> m_Results;
};
