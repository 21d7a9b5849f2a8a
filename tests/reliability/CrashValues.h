#pragma once

#include "Entities.h"

#include <QDateTime>
#include <QString>

// The values the store worker writes and the crash test expects, both derived from one number,
// so an acknowledgement line only needs to carry that number.
namespace CrashValues {

// Text of a length between 1 and 24 000 characters (long ones span several database pages),
// with line feeds and letters outside ASCII.
inline QString text(qint64 n)
{
    static const QString alphabet = QStringLiteral("abcdefghij klmnop\nąčęłńóśźż ŁŚŽ@#^\"'");
    quint64 state = quint64(n) * 6364136223846793005ULL + 1442695040888963407ULL;
    const auto next = [&state] {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return quint32(state >> 33);
    };
    const qsizetype length = 1 + qsizetype(next() % 24000);
    QString result(length, Qt::Uninitialized);
    for (qsizetype i = 0; i < length; ++i)
        result[i] = alphabet[next() % alphabet.size()];
    return result;
}

inline QString subject(qint64 n) { return QStringLiteral("s%1").arg(n); }
inline qint16 year(qint64 n) { return qint16(2000 + n % 100); }
inline qint16 month(qint64 n) { return qint16(1 + n % 12); }
inline qint16 day(qint64 n) { return qint16(1 + n % 28); }
inline QString ampm(qint64 n) { return n % 2 ? QStringLiteral("PM") : QStringLiteral("AM"); }
inline QDateTime date(qint64 n)
{
    return QDateTime(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC).addSecs(n % 100000000);
}
inline QString pageDt(int k) { return QStringLiteral("d%1").arg(k); }

// Note number n, every field derived from n.
inline void fillNote(Notes *note, qint64 n)
{
    note->setSubject(subject(n));
    note->setNotes(text(n));
    note->setYear(year(n));
    note->setMonth(month(n));
    note->setDay(day(n));
    note->setAmpm(ampm(n));
    note->setDt(date(n));
    note->setDtstring(QStringLiteral("D%1").arg(n));
}

}
