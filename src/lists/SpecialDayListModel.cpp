#include "SpecialDayListModel.h"

using namespace Qt::StringLiterals;

void SpecialDayListModel::setDays(const QList<SpecialDay *> &days)
{
    beginResetModel();
    m_days = days;
    endResetModel();
}

int SpecialDayListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_days.size());
}

QString SpecialDayListModel::dayText(const SpecialDay &day)
{
    if (day.ampm() == u"AM"_s)
        return u"Good Morning - "_s + day.dayname().value_or(QString());
    if (day.ampm() == u"PM"_s)
        return u"Good Night - "_s + day.dayname().value_or(QString());
    return QString();
}

QString SpecialDayListModel::section(const SpecialDay &day)
{
    if (day.ampm() == u"AM"_s)
        return u"Morning"_s;
    if (day.ampm() == u"PM"_s)
        return u"Night"_s;
    return QString();
}

QVariant SpecialDayListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const SpecialDay &day = *m_days[index.row()];
    switch (role) {
    case DayTextRole: return dayText(day);
    case SectionRole: return section(day);
    default: return {};
    }
}

QHash<int, QByteArray> SpecialDayListModel::roleNames() const
{
    return {{DayTextRole, "dayText"}, {SectionRole, "section"}};
}
