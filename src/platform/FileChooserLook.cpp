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
        static const QUrl qtsRow(u"qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/qml/FileDialogDelegateLabel.qml"_s);
        static const QUrl ours(u"qrc:/larkwells/chooser/FileDialogDelegateLabel.qml"_s);
        return type == QmlFile && url == qtsRow ? ours : url;
    }
};
}

void FileChooserLook::install(QQmlEngine &engine)
{
    static RowInterceptor interceptor;
    engine.addUrlInterceptor(&interceptor);
}
