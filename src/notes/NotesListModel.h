#pragma once

#include "Entities.h"

#include <QAbstractListModel>
#include <QQmlEngine>

// The notes a list shows, each as its date text with "  Subject: " and its subject, over the
// note's own text.
class NotesListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The notes list owns its rows")

public:
    enum Role { MainTextRole = Qt::UserRole + 1, DetailTextRole };

    using QAbstractListModel::QAbstractListModel;

    void setNotes(const QList<Notes *> &notes);
    const QList<Notes *> &notes() const { return m_notes; }
    void removeNote(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    static QString mainText(const Notes &note);

private:
    QList<Notes *> m_notes;
};
