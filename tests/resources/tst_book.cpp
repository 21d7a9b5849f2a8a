#include "AboutFile.h"
#include "PageFile.h"
#include "SpecialDayFile.h"
#include "TestSupport.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QByteArray shipped(const QString &name)
{
    return readFile(TestEnvironment::sourceResources() + u'/' + name);
}

// Every character Windows-1250 can hold.
const QSet<QChar> &windows1250Characters()
{
    static const QSet<QChar> characters = [] {
        QSet<QChar> set;
        for (int byte = 1; byte < 256; ++byte) {
            if (const auto text = PageFile::decodeWindows1250(QByteArray(1, char(byte))))
                set.insert(text->at(0));
        }
        return set;
    }();
    return characters;
}

QString words(const QString &line)
{
    static const QRegularExpression word(u"[\\w’-]+"_s);
    QStringList found;
    for (const auto &match : word.globalMatch(line.toLower()))
        found.append(match.captured());
    return found.join(u' ');
}

// A poem of the book: where it stands and its text.
struct Poem {
    QString where;
    QString text;
};

void checkShape(const Poem &poem)
{
    const qsizetype lines = poem.text.split(u'\n').size();
    QVERIFY2(lines >= 4 && lines <= 16, qPrintable(poem.where + u": %1 lines"_s.arg(lines)));
    for (const QChar c : poem.text)
        QVERIFY2(c == u'\n' || windows1250Characters().contains(c), qPrintable(poem.where + u": character "_s + c));
    for (const QChar c : {u',', u'\'', u'"', u'^'})
        QVERIFY2(!poem.text.contains(c), qPrintable(poem.where + u": holds "_s + c));
}

QList<Poem> bookPoems()
{
    const auto text = PageFile::decodeWindows1250(shipped(u"Book.txt"_s));
    if (!text)
        return {};
    QList<Poem> poems;
    for (const QString &line : PageFile::lines(*text)) {
        const QStringList pieces = PageFile::pieces(line);
        poems.append({pieces.value(0) + u' ' + pieces.value(1), QString(pieces.value(6)).replace(u"@#@"_s, u"\n"_s)});
    }
    return poems;
}

QList<Poem> specialDayPoems()
{
    const auto records = SpecialDayFile::records(QString::fromUtf8(shipped(u"SpecialDays.txt"_s)));
    QList<Poem> poems;
    if (const auto *list = std::get_if<QList<SpecialDayFile::Record>>(&records)) {
        for (const SpecialDayFile::Record &record : *list)
            poems.append({record.fields.value(1) + u' ' + record.fields.value(0), record.fields.value(2)});
    }
    return poems;
}
}

// The shipped book, read through the application's own parsers.
class TestBook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDayOfALeapYearInOrder()
    {
        const auto text = PageFile::decodeWindows1250(shipped(u"Book.txt"_s));
        QVERIFY2(text, "Book.txt holds a byte that is not Windows-1250");
        // Nothing the loader would strip, and every page line whole.
        for (const QChar c : {u',', u'\'', u'"', u'\r'})
            QVERIFY2(!text->contains(c), qPrintable(u"Book.txt holds "_s + c));
        const QStringList lines = PageFile::lines(*text);
        QCOMPARE(lines.size(), 732);
        const QLocale english(QLocale::English);
        QDate date(2024, 1, 1);
        for (int page = 1; page <= 732; ++page) {
            const QString ampm = page % 2 ? u"AM"_s : u"PM"_s;
            const auto parsed = PageFile::assignments(PageFile::pieces(lines[page - 1]), PageFile::columns);
            QVERIFY2(std::holds_alternative<QList<PageFile::Assignment>>(parsed), qPrintable(lines[page - 1].left(60)));
            QStringList fields;
            for (const PageFile::Assignment &assignment : std::get<QList<PageFile::Assignment>>(parsed))
                fields.append(assignment.value.toString());
            QCOMPARE(fields.mid(0, 6).join(u'|'), u"%1|%2|%3|%4|%5|F"_s.arg(english.toString(date, u"MMMM d"_s), ampm)
                                                     .arg(date.month()).arg(date.day()).arg(page));
            QCOMPARE(fields.size(), 7);
            if (ampm == u"PM"_s)
                date = date.addDays(1);
        }
    }

    void pagesHaveTheirShape()
    {
        const QList<Poem> poems = bookPoems() + specialDayPoems();
        QVERIFY(poems.size() > 732);
        for (const Poem &poem : poems)
            checkShape(poem);
    }

    void noLineIsMetTwice()
    {
        QHash<QString, QString> firstLines;
        QHash<QString, QString> longLines;
        for (const Poem &poem : bookPoems() + specialDayPoems()) {
            const QStringList lines = poem.text.split(u'\n', Qt::SkipEmptyParts);
            const QString first = words(lines.value(0));
            QVERIFY2(!firstLines.contains(first), qPrintable(poem.where + u" opens like "_s + firstLines.value(first)));
            firstLines.insert(first, poem.where);
            QSet<QString> own;
            for (const QString &line : lines) {
                const QString normal = words(line);
                if (normal.count(u' ') < 4 || own.contains(normal))
                    continue;
                own.insert(normal);
                QVERIFY2(!longLines.contains(normal),
                         qPrintable(poem.where + u" repeats “"_s + line + u"” of "_s + longLines.value(normal)));
                longLines.insert(normal, poem.where);
            }
        }
    }

    void openingsStayVaried_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("firstLineOnly");
        QTest::addColumn<int>("mostPages");
        QTest::newRow("four words opening any line") << 4 << false << 12;
        QTest::newRow("three words opening a page") << 3 << true << 6;
    }

    // A phrase that opens too many pages turns into a refrain the reader hears across the year.
    void openingsStayVaried()
    {
        QFETCH(int, length);
        QFETCH(bool, firstLineOnly);
        QFETCH(int, mostPages);
        QHash<QString, QStringList> pagesOf;
        for (const Poem &poem : bookPoems() + specialDayPoems()) {
            QSet<QString> openings;
            for (const QString &line : poem.text.split(u'\n', Qt::SkipEmptyParts)) {
                const QStringList found = words(line).split(u' ');
                if (found.size() >= length)
                    openings.insert(found.first(length).join(u' '));
                if (firstLineOnly)
                    break;
            }
            for (const QString &opening : openings)
                pagesOf[opening].append(poem.where);
        }
        QVERIFY(!pagesOf.isEmpty());
        for (auto it = pagesOf.cbegin(); it != pagesOf.cend(); ++it)
            QVERIFY2(it->size() <= mostPages, qPrintable(it.key() + u": "_s + it->join(u", "_s)));
    }

    // God is addressed as "you", never "You", mid-sentence: the same in every month, special day and article.
    void oneAddressToGod()
    {
        static const QRegularExpression capitalised(u"\\p{Ll}\\s+(You|Your|Yours|Yourself)\\b"_s);
        QList<Poem> texts = bookPoems() + specialDayPoems();
        const auto articles = AboutFile::articles(QString::fromUtf8(shipped(u"About.txt"_s)));
        if (const auto *list = std::get_if<QList<AboutFile::Article>>(&articles)) {
            for (const AboutFile::Article &article : *list)
                texts.append({article.name, article.text.value_or(QString())});
        }
        QVERIFY(texts.size() > 732);
        for (const Poem &poem : texts) {
            for (const QString &line : poem.text.split(u'\n')) {
                const auto match = capitalised.match(line);
                QVERIFY2(!match.hasMatch(), qPrintable(poem.where + u": "_s + line));
            }
        }
    }

    // A page is fixed to its date in every year and every country: days that move, or belong to one
    // country, live among the special days instead.
    void datedPagesNameNoMovableDay()
    {
        // "Lent" only as a word with its capital, not the lent of lending.
        const QRegularExpression movable(
            u"(?-i:\\bLent\\b)|\\b(Shrove|Ash Wednesday|Holy Week|Palm Sunday|Maundy Thursday|Good Friday|Easter|Pentecost"
            "|Whitsun|Memorial Day|Thanksgiving|clocks (go|went|change|changed|haven’t changed)|half-term|long weekend"
            "|bank holiday|full moon)\\b|\\b(Mothering Sunday|Mother’s Day|Father’s Day)"_s,
            QRegularExpression::CaseInsensitiveOption);
        QVERIFY(movable.isValid());
        const QList<Poem> poems = bookPoems();
        QCOMPARE(poems.size(), 732);
        for (const Poem &poem : poems) {
            const auto match = movable.match(poem.text);
            QVERIFY2(!match.hasMatch(), qPrintable(poem.where + u": "_s + match.captured()));
        }
    }

    void specialDays()
    {
        const auto records = SpecialDayFile::records(QString::fromUtf8(shipped(u"SpecialDays.txt"_s)));
        QVERIFY(std::holds_alternative<QList<SpecialDayFile::Record>>(records));
        QSet<QString> keys;
        QSet<QString> names;
        for (const SpecialDayFile::Record &record : std::get<QList<SpecialDayFile::Record>>(records)) {
            QCOMPARE(record.fields.size(), 3);
            QVERIFY(record.fields[0] == u"AM"_s || record.fields[0] == u"PM"_s);
            const QString key = record.fields[0] + record.fields[1];
            QVERIFY2(!keys.contains(key), qPrintable(key));
            keys.insert(key);
            names.insert(record.fields[1]);
            QVERIFY2(!record.fields[1].contains(u'\'') && !record.fields[1].contains(u'"'), qPrintable(record.fields[1]));
        }
        QVERIFY2(names.size() >= 45, qPrintable(QString::number(names.size())));
    }

    void aboutArticles()
    {
        const auto articles = AboutFile::articles(QString::fromUtf8(shipped(u"About.txt"_s)));
        QVERIFY(std::holds_alternative<QList<AboutFile::Article>>(articles));
        QStringList names;
        for (const AboutFile::Article &article : std::get<QList<AboutFile::Article>>(articles)) {
            names.append(article.name);
            QVERIFY2(article.text && article.text->size() > 200, qPrintable(article.name));
            QVERIFY2(!article.text->contains(u'\'') && !article.text->contains(u'"'), qPrintable(article.name));
        }
        names.sort();
        QCOMPARE(names, (QStringList{u"Good Morning Acknowledgements"_s, u"Good Morning Authors"_s, u"Good Morning Preface"_s,
                                     u"Good Night Acknowledgements"_s, u"Good Night Authors"_s, u"Good Night Preface"_s}));
    }
};

QTEST_GUILESS_MAIN(TestBook)
#include "tst_book.moc"
