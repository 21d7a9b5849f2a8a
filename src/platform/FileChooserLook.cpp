#include "FileChooserLook.h"

#include <QQmlAbstractUrlInterceptor>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {
class RowInterceptor : public QQmlAbstractUrlInterceptor
{
public:
    QUrl intercept(const QUrl &url, DataType type) override
    {
        static const QString qts = u"qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/qml/"_s;
        static const QString ours = u"qrc:/larkwells/chooser/"_s;
        static const QStringList replaced{u"FileDialog.qml"_s};
        if (type != QmlFile)
            return url;
        const QString address = url.toString();
        for (const QString &name : replaced) {
            if (address == qts + name)
                return QUrl(ours + name);
        }
        return url;
    }
};
}

void FileChooserLook::install(QQmlEngine &engine)
{
    static RowInterceptor interceptor;
    engine.addUrlInterceptor(&interceptor);
}
