#include "SearchViewController.h"

#include "AppDelegate.h"
#include "Entities.h"
#include "FatalError.h"
#include "Fonts.h"
#include "ReaderText.h"
#include "Selection.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

SearchViewController::SearchViewController(QObject *parent)
    : ReaderScreen(parent)
{
}

QString SearchViewController::composedText(const QString &ampm, const QString &dt, const QString &poemPrayer)
{
    // This reader's heading starts with two line breaks, the page reader's with one.
    const QString greeting = ReaderText::greeting(ampm);
    if (greeting.isEmpty())
        return poemPrayer;
    return u"\n\nFrom The Larkwells\n "_s + greeting + u"\n\n"_s + dt + u"\n\n"_s + poemPrayer;
}

QList<SearchViewController::Range> SearchViewController::matchRanges(const QString &text, const QString &pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    if (!expression.isValid())
        fatalError(u"Fatal error: the search text \"%1\" is not a valid pattern (%2)"_s.arg(pattern,
                                                                                          expression.errorString()));
    QList<Range> ranges;
    for (auto matches = expression.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        ranges.append({match.capturedStart(), match.capturedLength()});
    }
    return ranges;
}

QString SearchViewController::markedText(const QString &text, const QList<Range> &ranges, const QColor &markTextColor)
{
    const auto escaped = [&text](qsizetype from, qsizetype length) {
        return text.mid(from, length).toHtmlEscaped().replace(u'\n', u"<br/>"_s);
    };
    const QString markStyle = markTextColor.isValid() ? u"background-color:#ffff00;color:%1"_s.arg(markTextColor.name())
                                                      : u"background-color:#ffff00"_s;
    QString html = u"<div style=\"white-space:pre-wrap\">"_s;
    qsizetype at = 0;
    for (const Range &range : ranges) {
        html += escaped(at, range.start - at);
        html += u"<span style=\""_s + markStyle + u"\">"_s + escaped(range.start, range.length) + u"</span>"_s;
        at = range.start + range.length;
    }
    return html + escaped(at, -1) + u"</div>"_s;
}

void SearchViewController::viewDidLoad()
{
    m_title = u"Search Poems/Prayers"_s;
    // Every draw, the first included, stays below the last wallpaper.
    loadAppearance(34);
    showSelection();
}

void SearchViewController::showSelection()
{
    Selection &selection = Selection::shared();
    m_appearance.setNightPage(selection.selectedAmpm() == u"PM"_s);
    m_CombinedText = composedText(selection.selectedAmpm(), selection.selectedDt(), selection.selectedPoemPrayer());
    selection.setSelectedPoemPrayer(m_CombinedText);

    // Another colour code leaves the text view as laid out: empty, in the default look.
    m_shownText = m_appearance.applyTextColor() ? m_CombinedText : QString();
    m_ranges.clear();
    if (!selection.selectedSearchText().isEmpty())
        markMatches(selection.selectedSearchText());
    // At night the marks keep their yellow, so the text on them stays dark.
    m_PoemPrayerText = markedText(m_shownText, m_ranges, m_appearance.night() ? QColor(Qt::black) : QColor());
    Q_EMIT loaded();

    if (selection.selectedFavorite() == u"T"_s)
        Q_EMIT favoriteCheckStateRequested(1, true);
    else if (selection.selectedFavorite() == u"F"_s)
        Q_EMIT favoriteCheckStateRequested(0, false);
}

void SearchViewController::markMatches(const QString &searchText)
{
    m_shownText = m_CombinedText;
    m_ranges = matchRanges(m_CombinedText, searchText);
    // A page without a match is shown unstyled; a marked one always in black.
    if (m_ranges.isEmpty()) {
        m_appearance.setStyle(false);
        return;
    }
    Fonts::requireKnown(m_appearance.FontName());
    m_appearance.setStyle(true, Qt::black);
}

void SearchViewController::FavoriteCheckBoxChecked(int checkState)
{
    Selection &selection = Selection::shared();
    selection.setSelectedFavorite(checkState == 1 ? u"T"_s : u"F"_s);
    if (selection.selectedDt().isEmpty() || selection.selectedAmpm().isEmpty())
        return;
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    FetchRequest request = PoemPrayer::fetchRequest();
    request.predicate = Predicate::conjunction({Predicate::equals(u"dt"_s, selection.selectedDt()),
                                                Predicate::equals(u"ampm"_s, selection.selectedAmpm())});
    // A failed fetch or save goes unnoticed; the box keeps the user's choice.
    std::optional<StoreError> error;
    const QList<PoemPrayer *> results = context.fetch<PoemPrayer>(request, &error);
    if (results.isEmpty())
        return;
    results.first()->setFavorite(selection.selectedFavorite());
    static_cast<void>(context.save());
}

void SearchViewController::FontSizeChanged(double value)
{
    m_appearance.ChangeFontSize(value);
}

void SearchViewController::IncreaseFontSize()
{
    m_appearance.stepShownSize(1);
}

void SearchViewController::DecreaseFontSize()
{
    m_appearance.stepShownSize(-1);
}

void SearchViewController::ShareButtonClicked()
{
    const Selection &selection = Selection::shared();
    ReaderText::shareAsTextMessage(
        selection.selectedAmpm(),
        {u"Can't Send Text Message"_s, u"Your Device is not able to send text messages"_s, {}, {}}, false,
        [this, &selection](const QString &greeting) {
            // The shown text carries the heading and date already; the message repeats them.
            return u"From The Larkwells \r\n "_s + greeting + u" \r\n \r\n"_s + selection.selectedDt() + u"\r\n \r\n"_s
                + m_shownText;
        });
}
