#pragma once

#include "PageTurningReader.h"
#include "Entities.h"

#include <QObject>
#include <QQmlEngine>

// Shows one page of the book under its heading and date, in the reader's font, size and colour
// over a wallpaper; marks it a favourite, saves edits, changes the size and shares it.
class ViewController : public PageTurningReader
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString PoemPrayerText READ PoemPrayerText WRITE setPoemPrayerText NOTIFY PoemPrayerTextChanged)

public:
    explicit ViewController(QObject *parent = nullptr);

    // The text view's content: the composed text, with the reader's edits.
    QString PoemPrayerText() const { return m_PoemPrayerText; }
    void setPoemPrayerText(const QString &text);
    QString CombinedText() const { return m_CombinedText; }

    // The heading, date and page text the reader shows for a selection.
    static QString composedText(const QString &ampm, const QString &dt, const QString &poemPrayer);

    Q_INVOKABLE void viewDidLoad();
    // The favourite box changed to `checkState` (0 unchecked, 1 checked, 2 mixed).
    Q_INVOKABLE void CheckBoxChecked(int checkState);
    Q_INVOKABLE void SavePoem();
    // The size stepper moved to `value`.
    Q_INVOKABLE void ChangeFontSize(double value);
    Q_INVOKABLE void SharePoem();
    Q_INVOKABLE void FacebookShare();
    // The shown text (with its edits) drawn as the reader shows it, written to a PNG file; the
    // file's path, or empty when it could not be written.
    QString SharePicture() const;
    Q_INVOKABLE void BackToMain();

Q_SIGNALS:
    void PoemPrayerTextChanged();
    // The favourite box should show this state (0 unchecked, 1 checked).
    void favoriteCheckStateRequested(int checkState, bool animated);

protected:
    void showSelection() override;
    // A page with edits not yet saved stays open: a turn would lose them.
    bool holdsPage() const override { return m_PoemPrayerText != m_savedText; }

private:
    void save();

    QString m_CombinedText;
    bool m_pageShown = false;
    QString m_PoemPrayerText;
    QString m_savedText; // the text view's content when the page was shown or last saved
    QList<PoemPrayer *> m_Results;
    int m_ResultsCount = 0;
};
