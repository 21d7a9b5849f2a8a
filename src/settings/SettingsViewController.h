#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>
#include <QUrl>

// The rate-and-share table: rate the app on its store page, share the store page or the web
// site, visit the web site, or write to the makers.
class SettingsViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QStringList rowTitles READ rowTitles CONSTANT)

public:
    explicit SettingsViewController(QObject *parent = nullptr);

    QString title() const;
    QStringList rowTitles() const;

    // Acts by the row's place in the table; rows past the last do nothing.
    Q_INVOKABLE void didSelectRowAt(int row);

private:
    void rate();
    void shareApp();
    void shareWebsite();
    void sendFeedback();
    // Both share rows need a device that sends text messages.
    bool canShare();

    const QUrl m_productURL;
    const QString m_instructions;
    const QUrl m_website;
};
