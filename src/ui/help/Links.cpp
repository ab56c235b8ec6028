#include "ui/help/Links.h"

#include "ui/widgets/Dialogs.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrlQuery>

namespace lullet {

// The addresses come from the build (see the LULLET_*_URL cache values).
QUrl Links::website()
{
    return QUrl(QStringLiteral(LULLET_WEBSITE_URL));
}

QUrl Links::faq()
{
    return QUrl(QStringLiteral(LULLET_FAQ_URL));
}

QUrl Links::privacy()
{
    return QUrl(QStringLiteral(LULLET_PRIVACY_URL));
}

QUrl Links::terms()
{
    QUrl url = privacy();
    url.setFragment(QStringLiteral("terms"));
    return url;
}

QUrl Links::contact()
{
    return QUrl(QStringLiteral(LULLET_CONTACT_URL));
}

QUrl Links::email()
{
    QUrl url(QStringLiteral("mailto:") + QStringLiteral(LULLET_CONTACT_EMAIL));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("subject"), QStringLiteral("Lullet"));
    url.setQuery(query);
    return url;
}

void Links::open(const QUrl& url, QWidget* parent)
{
    if (QDesktopServices::openUrl(url))
        return;
    Dialogs::inform(parent, QObject::tr("Lullet could not open %1.").arg(url.toDisplayString()),
                    QObject::tr("No program on this computer opens such addresses."));
}

QLabel* Links::label(const QString& html, QWidget* parent)
{
    auto* label = new QLabel(html, parent);
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    QObject::connect(label, &QLabel::linkActivated, label,
                     [label](const QString& link) { open(QUrl(link), label->window()); });
    return label;
}

QString Links::anchor(const QUrl& url, const QString& text)
{
    return QStringLiteral("<a href=\"%1\">%2</a>")
        .arg(url.toString(QUrl::FullyEncoded).toHtmlEscaped(), text.toHtmlEscaped());
}

} // namespace lullet
