#include "NotesListModel.h"

using namespace Qt::StringLiterals;

void NotesListModel::setNotes(const QList<Notes *> &notes)
{
    // The same rows again (back from the editor): refresh them in place, so the list keeps
    // its scroll position.
    if (notes == m_notes) {
        if (!m_notes.isEmpty())
            Q_EMIT dataChanged(index(0), index(int(m_notes.size()) - 1));
        return;
    }
    beginResetModel();
    m_notes = notes;
    endResetModel();
}

void NotesListModel::removeNote(int row)
{
    if (row < 0 || row >= m_notes.size())
        return;
    beginRemoveRows({}, row, row);
    m_notes.removeAt(row);
    endRemoveRows();
}

int NotesListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_notes.size());
}

QString NotesListModel::mainText(const Notes &note)
{
    return note.dtstring().value_or(QString()) + u"  Subject: "_s + note.subject().value_or(QString());
}

QVariant NotesListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Notes &note = *m_notes[index.row()];
    switch (role) {
    case MainTextRole: return mainText(note);
    case DetailTextRole: return note.notes().value_or(QString());
    default: return {};
    }
}

QHash<int, QByteArray> NotesListModel::roleNames() const
{
    return {{MainTextRole, "mainText"}, {DetailTextRole, "detailText"}};
}
