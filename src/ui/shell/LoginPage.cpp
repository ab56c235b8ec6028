#include "ui/shell/LoginPage.h"

#include "core/security/Protection.h"
#include "ui/desktop/UserIdentity.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace lullet {

namespace {

constexpr int pictureSize = 96;

// The picture cut to a circle; without one, the initials of the name on a plain disc.
QPixmap roundPicture(const UserIdentity& identity, qreal ratio)
{
    QPixmap round(QSize(pictureSize, pictureSize) * ratio);
    round.setDevicePixelRatio(ratio);
    round.fill(Qt::transparent);
    QPainter painter(&round);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath circle;
    circle.addEllipse(0, 0, pictureSize, pictureSize);
    painter.setClipPath(circle);
    if (!identity.picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRect(0, 0, pictureSize, pictureSize), identity.picture);
        return round;
    }
    painter.fillPath(circle, QColor(0x00, 0x80, 0x80));
    QString initials;
    const QStringList words = identity.fullName.split(u' ', Qt::SkipEmptyParts);
    for (const QString& word : words.mid(0, 2))
        initials += word.front().toUpper();
    QFont font = painter.font();
    font.setPixelSize(pictureSize * 2 / 5);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, pictureSize, pictureSize), Qt::AlignCenter, initials);
    return round;
}

} // namespace

LoginPage::LoginPage(Protection& protection, QWidget* parent)
    : QWidget(parent)
    , m_protection(protection)
{
    auto* layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(makeGreeting());
    layout->addSpacing(24);
    layout->addWidget(makeEntry(), 0, Qt::AlignHCenter);
    layout->addWidget(makeUnreachable(), 0, Qt::AlignHCenter);
    layout->addStretch(3);
    auto* preferences = new QPushButton(tr("Preferences"), this);
    preferences->setObjectName(QStringLiteral("preferences"));
    preferences->setFlat(true);
    connect(preferences, &QPushButton::clicked, this, &LoginPage::preferencesRequested);
    layout->addWidget(preferences, 0, Qt::AlignRight);
    // Looking the user up may take a moment: the page is up first.
    QTimer::singleShot(0, this, &LoginPage::showIdentity);
}

QWidget* LoginPage::makeGreeting()
{
    auto* greeting = new QWidget(this);
    auto* layout = new QVBoxLayout(greeting);
    m_picture = new QLabel(greeting);
    m_picture->setFixedSize(pictureSize, pictureSize);
    m_name = new QLabel(greeting);
    m_name->setObjectName(QStringLiteral("userName"));
    QFont big = m_name->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    m_name->setFont(big);
    m_name->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_picture, 0, Qt::AlignHCenter);
    layout->addWidget(m_name);
    return greeting;
}

QWidget* LoginPage::makeEntry()
{
    auto* entry = new QWidget(this);
    auto* layout = new QVBoxLayout(entry);
    auto* row = new QHBoxLayout;
    m_password = new QLineEdit(entry);
    m_password->setObjectName(QStringLiteral("password"));
    m_password->setEchoMode(QLineEdit::Password);
    m_password->setPlaceholderText(tr("Password"));
    m_password->setMinimumWidth(220);
    m_password->setAccessibleName(tr("Password"));
    m_logIn = new QPushButton(tr("Log In"), entry);
    m_logIn->setObjectName(QStringLiteral("logIn"));
    m_logIn->setDefault(true);
    row->addWidget(m_password);
    row->addWidget(m_logIn);
    m_error = new QLabel(entry);
    m_error->setObjectName(QStringLiteral("loginError"));
    m_error->setStyleSheet(QStringLiteral("color: #E34947"));
    m_error->hide();
    layout->addLayout(row);
    layout->addWidget(m_error, 0, Qt::AlignHCenter);
    connect(m_password, &QLineEdit::returnPressed, this, &LoginPage::submit);
    connect(m_logIn, &QPushButton::clicked, this, &LoginPage::submit);
    return entry;
}

QWidget* LoginPage::makeUnreachable()
{
    m_unreachable = new QWidget(this);
    m_unreachable->setObjectName(QStringLiteral("keyringUnreachable"));
    auto* layout = new QVBoxLayout(m_unreachable);
    m_unreachableText = new QLabel(m_unreachable);
    m_unreachableText->setWordWrap(true);
    // A wrapped text takes its height from a width it knows beforehand.
    m_unreachableText->setFixedWidth(400);
    auto* buttons = new QHBoxLayout;
    auto* retry = new QPushButton(tr("Retry"), m_unreachable);
    retry->setObjectName(QStringLiteral("retry"));
    auto* quit = new QPushButton(tr("Quit"), m_unreachable);
    quit->setObjectName(QStringLiteral("quit"));
    buttons->addStretch();
    buttons->addWidget(retry);
    buttons->addWidget(quit);
    layout->addWidget(m_unreachableText);
    layout->addLayout(buttons);
    connect(retry, &QPushButton::clicked, this, &LoginPage::submit);
    connect(quit, &QPushButton::clicked, this, &LoginPage::quitRequested);
    m_unreachable->hide();
    return m_unreachable;
}

void LoginPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    QTimer::singleShot(0, m_password, qOverload<>(&QWidget::setFocus));
}

void LoginPage::showIdentity()
{
    const UserIdentity identity = UserIdentity::current();
    m_name->setText(identity.fullName);
    m_picture->setToolTip(identity.fullName);
    m_picture->setPixmap(roundPicture(identity, devicePixelRatioF()));
}

void LoginPage::submit()
{
    if (!m_password->isEnabled())
        return;
    setChecking(true);
    m_protection.logIn(m_password->text(), this,
                       [this](Protection::Login result, const QString& error) {
                           setChecking(false);
                           switch (result) {
                           case Protection::Login::Blank:
                               showError(tr("PLEASE ENTER PASSWORD..."));
                               return;
                           case Protection::Login::Wrong:
                               showError(tr("INCORRECT PASSWORD..."));
                               return;
                           case Protection::Login::Unavailable:
                               m_error->hide();
                               m_unreachableText->setText(
                                   tr("Lullet cannot reach your keyring, so it cannot check the "
                                      "password. Your data stays locked.\n%1")
                                       .arg(error));
                               // The page is laid out by sizes, not by heights for widths.
                               m_unreachableText->setMinimumHeight(
                                   m_unreachableText->heightForWidth(m_unreachableText->width()));
                               m_unreachable->show();
                               return;
                           case Protection::Login::In:
                               m_error->hide();
                               return;
                           }
                       });
}

void LoginPage::showError(const QString& text)
{
    m_unreachable->hide();
    m_error->setText(text);
    m_error->show();
    m_password->setFocus();
}

void LoginPage::setChecking(bool checking)
{
    m_password->setEnabled(!checking);
    m_logIn->setEnabled(!checking);
    m_unreachable->setEnabled(!checking);
}

} // namespace lullet
