#pragma once

#include <QString>
#include <QUrl>

// The application bundle: the shipped text files and pictures, looked up by name and type.
// Built in by default; `--resources DIR` replaces it wholesale with a folder.
class Bundle
{
public:
    static Bundle &main();
    // An empty string restores the built-in resources.
    static void setResourceDirectory(const QString &directory);

    // The path of "name.type", or an empty string when the bundle has no such resource.
    // The page file is the bundle's only unnamed text resource: an empty name with type
    // "txt" finds it.
    QString pathForResource(const QString &name, const QString &type) const;
    // An image loaded by name (svg, png or jpg); an empty URL when there is none.
    QUrl imageUrl(const QString &name) const;
    // Whether this is the bundle built into the application, not a `--resources` folder.
    bool isBuiltIn() const;
    // The bundle's version, the application's version.
    QString version() const;

private:
    explicit Bundle(QString root);
    QString m_root;
};
