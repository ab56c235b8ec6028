#include "ui/preferences/MoreInfoTab.h"

#include "ui/help/Links.h"
#include "ui/help/UserGuide.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

MoreInfoTab::MoreInfoTab(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    auto* name = new QLabel(QStringLiteral("Lullet"), this);
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    name->setFont(big);
    layout->addWidget(name);
    auto* version = new QLabel(tr("Version %1").arg(QCoreApplication::applicationVersion()), this);
    version->setObjectName(QStringLiteral("version"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(version);
    layout->addSpacing(12);
    auto* about = new QLabel(tr("Lullet keeps you to short, healthy pauses through the day and to "
                                "your tasks, and asks what you have been doing when nothing runs "
                                "during your working hours. Your data stays on this computer."),
                             this);
    about->setWordWrap(true);
    layout->addWidget(about);
    layout->addSpacing(12);
    auto* guide = new QPushButton(tr("Open the User's Guide"), this);
    guide->setObjectName(QStringLiteral("usersGuide"));
    connect(guide, &QPushButton::clicked, this, [this] { UserGuide::open(window()); });
    layout->addWidget(guide, 0, Qt::AlignLeft);
    layout->addSpacing(12);
    layout->addWidget(makeLinks());
    layout->addStretch();
}

QWidget* MoreInfoTab::makeLinks()
{
    const QString links[] = {
        Links::anchor(Links::website(), tr("Website")),
        Links::anchor(Links::faq(), tr("Frequently Asked Questions")),
        Links::anchor(Links::privacy(), tr("Privacy Policy")),
        Links::anchor(Links::terms(), tr("Terms and Conditions")),
        Links::anchor(Links::contact(), tr("Contact Us")),
    };
    QString html;
    for (const QString& link : links)
        html += link + QStringLiteral("<br>");
    QLabel* label = Links::label(html, this);
    label->setObjectName(QStringLiteral("links"));
    return label;
}

} // namespace lullet
