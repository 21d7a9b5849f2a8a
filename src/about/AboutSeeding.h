#pragma once

#include <QString>
#include <optional>

// Fills the About table from the shipped about file on the first visit of the about list:
// emptying the table, then loading the file line by line, one fetch and one save an article.
class AboutSeeding
{
public:
    // Deletes every article, saving after each deletion.
    void clearAbouts();
    // Loads the shipped file into the main context; the first line of a name wins. A missing or
    // undecodable file, or a line with three fields, is a fatal stop.
    void loadAbouts();

    std::optional<QString> FileObject;
    int ResultCount = 0;

private:
    void loadLine(const QString &line);

    std::optional<QString> theName;
    std::optional<QString> theAboutText;
};
