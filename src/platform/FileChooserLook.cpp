#include "FileChooserLook.h"

#include <QQmlAbstractUrlInterceptor>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {
class ChooserInterceptor : public QQmlAbstractUrlInterceptor
{
public:
    QUrl intercept(const QUrl &url, DataType type) override
    {
        static const QUrl qts(u"qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/qml/FileDialog.qml"_s);
        static const QUrl ours(u"qrc:/larkwells/chooser/FileDialog.qml"_s);
        return type == QmlFile && url == qts ? ours : url;
    }
};
}

void FileChooserLook::install(QQmlEngine &engine)
{
    static ChooserInterceptor interceptor;
    engine.addUrlInterceptor(&interceptor);
}
