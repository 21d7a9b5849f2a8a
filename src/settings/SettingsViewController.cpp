#include "SettingsViewController.h"

#include "Alerts.h"
#include "Mail.h"
#include "ProductLinks.h"
#include "Sharing.h"

#include <QDesktopServices>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {
void cannotSendEmail()
{
    Alerts::shared().present({u"Can't Send Email"_s, u"Your Device is not able to send Email."_s, {u"OK"_s}, {}});
}
}

SettingsViewController::SettingsViewController(QObject *parent)
    : QObject(parent)
    , m_productURL(ProductLinks::productURL())
    , m_instructions(u"Click the following link to visit the Larkwells Books App website"_s)
    , m_website(ProductLinks::website())
{
}

QString SettingsViewController::title() const
{
    return tr("Rate & Share");
}

QStringList SettingsViewController::rowTitles() const
{
    return {tr("Rate The Larkwells Book"), tr("Share The App"), tr("Share The Web Site"), tr("Visit The Web Site"),
            tr("Send Feedback")};
}

void SettingsViewController::didSelectRowAt(int row)
{
    switch (row) {
    case 0: rate(); break;
    case 1: shareApp(); break;
    case 2: shareWebsite(); break;
    case 3: QDesktopServices::openUrl(m_website); break;
    case 4: sendFeedback(); break;
    default: break;
    }
}

void SettingsViewController::rate()
{
    QUrl review = m_productURL;
    QUrlQuery query;
    query.addQueryItem(u"action"_s, u"write-review"_s);
    review.setQuery(query);
    QDesktopServices::openUrl(review);
}

bool SettingsViewController::canShare()
{
    if (Sharing::shared().canSendText())
        return true;
    Alerts::shared().present({u"Can't Send Text Message"_s, u"Your Device is not able to send text messages."_s,
                              {u"OK"_s}, {}});
    return false;
}

void SettingsViewController::shareApp()
{
    if (canShare())
        Sharing::shared().present({m_productURL.toString(), {}, {}});
}

void SettingsViewController::shareWebsite()
{
    if (canShare())
        Sharing::shared().present({m_instructions + u'\n' + m_website.toString(), {}, {}});
}

void SettingsViewController::sendFeedback()
{
    Mail &mail = Mail::shared();
    if (!mail.canSendMail()) {
        cannotSendEmail();
        return;
    }
    // A mail client that cannot be started is as good as none.
    if (!mail.send({{ProductLinks::feedbackAddress()}, {}, u"<p>Enter your comments below: </p>"_s, true, {}}))
        cannotSendEmail();
}
