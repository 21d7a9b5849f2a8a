#pragma once

#include "ReaderScreen.h"
#include "Entities.h"

#include <QObject>
#include <QQmlEngine>

// Shows the chosen about article in the reader's look, under its heading when its name asks
// for one; changes the size, saves edits and shares the text.
class AboutEditViewController : public ReaderScreen
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString AboutItemText READ AboutItemText WRITE setAboutItemText NOTIFY AboutItemTextChanged)
    Q_PROPERTY(bool leftAligned READ leftAligned NOTIFY loaded)

public:
    explicit AboutEditViewController(QObject *parent = nullptr);

    // The text view's content: the composed text, with the reader's edits.
    QString AboutItemText() const { return m_AboutItemText; }
    void setAboutItemText(const QString &text);
    // The credits read left-aligned; every other article is centred.
    bool leftAligned() const;
    QString AboutText() const { return m_AboutText; }

    // What the article screen shows for an article: a heading for the morning and night
    // prefaces, acknowledgements and authors' words; nothing for any other name.
    static QString composedText(const QString &name, const QString &text);

    Q_INVOKABLE void viewDidLoad();
    // The size stepper moved to `value`.
    Q_INVOKABLE void FontSizeChanged(double value);
    Q_INVOKABLE void SaveAboutItem();
    Q_INVOKABLE void ShareActions();
    Q_INVOKABLE void BackToAboutMain();

Q_SIGNALS:
    void AboutItemTextChanged();

private:
    QString m_AboutText;
    QString m_AboutItemText;
    QList<About *> m_Results;
    int m_ResultsCount = 0;
};
