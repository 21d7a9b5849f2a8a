#pragma once

#include "ReaderScreen.h"

#include <QObject>
#include <QQmlEngine>

// Shows the page chosen in the search list under its heading and date, with every match of the
// search text marked in yellow; marks the page a favourite, changes the size and shares it. It
// shows that one page: no turning to the other results.
class SearchViewController : public ReaderScreen
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString PoemPrayerText READ PoemPrayerText NOTIFY loaded)
    Q_PROPERTY(QString shownText READ shownText NOTIFY loaded)
    Q_PROPERTY(int firstMatchPosition READ firstMatchPosition NOTIFY loaded)

public:
    // Where a match starts in the text and how long it is.
    struct Range {
        qsizetype start = 0;
        qsizetype length = 0;
        bool operator==(const Range &) const = default;
    };

    explicit SearchViewController(QObject *parent = nullptr);

    // The text view's content as rich text: the shown text with its matches marked.
    QString PoemPrayerText() const { return m_PoemPrayerText; }
    // The text view's content as plain text.
    QString shownText() const { return m_shownText; }
    // Where the first match starts in the shown text; -1 when nothing is marked.
    int firstMatchPosition() const { return m_ranges.isEmpty() ? -1 : int(m_ranges.first().start); }
    QString CombinedText() const { return m_CombinedText; }

    // The heading, date and page text this reader shows for a selection.
    static QString composedText(const QString &ampm, const QString &dt, const QString &poemPrayer);
    // Every case-insensitive match of `pattern` in `text`; a pattern that does not compile is a
    // fatal stop.
    static QList<Range> matchRanges(const QString &text, const QString &pattern);
    // `text` as rich text, line breaks and spaces kept, each range on a yellow background (its text
    // in `markTextColor` when one is given).
    static QString markedText(const QString &text, const QList<Range> &ranges, const QColor &markTextColor = {});

    Q_INVOKABLE void viewDidLoad();
    // The favourite box changed to `checkState` (0 unchecked, 1 checked, 2 mixed).
    Q_INVOKABLE void FavoriteCheckBoxChecked(int checkState);
    // The size stepper moved to `value`.
    Q_INVOKABLE void FontSizeChanged(double value);
    Q_INVOKABLE void IncreaseFontSize();
    Q_INVOKABLE void DecreaseFontSize();
    Q_INVOKABLE void ShareButtonClicked();

Q_SIGNALS:
    // The favourite box should show this state (0 unchecked, 1 checked).
    void favoriteCheckStateRequested(int checkState, bool animated);

private:
    void showSelection();
    void markMatches(const QString &searchText);

    QString m_CombinedText;
    QString m_shownText;
    QString m_PoemPrayerText;
    QList<Range> m_ranges;
};
