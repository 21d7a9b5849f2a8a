#include "ProductLinks.h"

using namespace Qt::StringLiterals;

QUrl ProductLinks::productURL()
{
    return QUrl(QStringLiteral(LARKWELLS_PRODUCT_URL));
}

QUrl ProductLinks::website()
{
    return QUrl(QStringLiteral(LARKWELLS_WEBSITE));
}

QString ProductLinks::feedbackAddress()
{
    return QStringLiteral(LARKWELLS_FEEDBACK_ADDRESS);
}
