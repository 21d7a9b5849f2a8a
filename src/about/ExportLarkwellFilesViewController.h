#pragma once

#include <QObject>
#include <QQmlEngine>

// The export menu: pages, special days or about articles.
class ExportLarkwellFilesViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ExportLarkwellFilesViewController(QObject *parent = nullptr) : QObject(parent) {}

    Q_INVOKABLE void PoemPrayerButtonClicked();
    Q_INVOKABLE void SpecialDaysButtonClicked();
    Q_INVOKABLE void AboutButtonClicked();
};
