#include "Bundle.h"

#include <QDir>
#include <QFileInfo>
#include <memory>

using namespace Qt::StringLiterals;

namespace {
const QString builtIn = u":/bundle"_s;
const QString pageFileName = u"Book"_s;

std::unique_ptr<Bundle> &mainBundle()
{
    static std::unique_ptr<Bundle> bundle;
    return bundle;
}
}

Bundle::Bundle(QString root)
    : m_root(std::move(root))
{
}

Bundle &Bundle::main()
{
    if (!mainBundle())
        setResourceDirectory({});
    return *mainBundle();
}

void Bundle::setResourceDirectory(const QString &directory)
{
    mainBundle().reset(new Bundle(directory.isEmpty() ? builtIn : QDir(directory).absolutePath()));
}

QString Bundle::pathForResource(const QString &name, const QString &type) const
{
    const QString stem = name.isEmpty() && type == u"txt"_s ? pageFileName : name;
    const QString path = m_root + u'/' + stem + u'.' + type;
    return QFileInfo(path).isFile() ? path : QString();
}

QUrl Bundle::imageUrl(const QString &name) const
{
    for (const QString type : {u"svg"_s, u"png"_s, u"jpg"_s}) {
        const QString path = pathForResource(name, type);
        if (path.isEmpty())
            continue;
        return path.startsWith(u':') ? QUrl(u"qrc"_s + path) : QUrl::fromLocalFile(path);
    }
    return {};
}

bool Bundle::isBuiltIn() const
{
    return m_root == builtIn;
}

QString Bundle::version() const
{
    return QStringLiteral(LARKWELLS_VERSION);
}
