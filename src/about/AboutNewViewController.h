#pragma once

#include <QObject>
#include <QQmlEngine>

// Writes a new about article from a name and a text.
class AboutNewViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    // Stores the article unless the name is empty, then returns to the list either way. The
    // text is kept as typed; a name may repeat an existing one.
    Q_INVOKABLE void SaveAboutItem(const QString &name, const QString &text);
    Q_INVOKABLE void BackToSpecialDays();
};
