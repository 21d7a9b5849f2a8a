#pragma once

#include "Entities.h"

#include <QAbstractListModel>
#include <QQmlEngine>

// The special days a list shows: each row's "Good Morning - "/"Good Night - " label and the
// heading of the block it belongs to.
class SpecialDayListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The special days list owns its rows")

public:
    enum Role { DayTextRole = Qt::UserRole + 1, SectionRole };

    using QAbstractListModel::QAbstractListModel;

    void setDays(const QList<SpecialDay *> &days);
    const QList<SpecialDay *> &days() const { return m_days; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // "Good Morning - " or "Good Night - " and the name; empty for another time of day.
    static QString dayText(const SpecialDay &day);
    // "Morning" or "Night"; empty for another time of day.
    static QString section(const SpecialDay &day);

private:
    QList<SpecialDay *> m_days;
};
