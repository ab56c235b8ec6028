#include "ui/preferences/SyncTab.h"

#include "core/dates/Clock.h"
#include "core/sync/Sync.h"
#include "ui/widgets/Balloon.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace lullet {

namespace {

using Problem = CalDavClient::Problem;

bool isServerAddress(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

} // namespace

SyncTab::SyncTab(Sync& sync, const Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_sync(sync)
    , m_clock(clock)
    , m_url(new QLineEdit(this))
    , m_user(new QLineEdit(this))
    , m_password(new QLineEdit(this))
    , m_connect(new QPushButton(this))
    , m_status(new QLabel(this))
    , m_syncNow(new QPushButton(tr("Sync Now"), this))
    , m_stop(new QPushButton(tr("Stop Syncing"), this))
{
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    addServerSection(layout);
    addStatusSection(layout);
    m_ageing.setInterval(std::chrono::seconds(30));
    connect(&m_ageing, &QTimer::timeout, this, &SyncTab::showState);
    connect(&m_sync, &Sync::stateChanged, this, &SyncTab::showState);
    showState();
}

void SyncTab::addServerSection(QFormLayout* layout)
{
    auto* explanation = new QLabel(
        tr("Keep your tasks, projects and repeating lullets in step with a CalDAV server "
           "(Nextcloud, Radicale, Fastmail and others), and so with your other computers and "
           "your phone."),
        this);
    explanation->setWordWrap(true);
    layout->addRow(explanation);
    m_url->setObjectName(QStringLiteral("syncURL"));
    m_url->setPlaceholderText(QStringLiteral("https://dav.example.com/"));
    m_user->setObjectName(QStringLiteral("syncUser"));
    m_password->setObjectName(QStringLiteral("syncPassword"));
    m_password->setEchoMode(QLineEdit::Password);
    layout->addRow(tr("Server or collection:"), m_url);
    layout->addRow(tr("User name:"), m_user);
    layout->addRow(tr("Password:"), m_password);
    auto* note = new QLabel(tr("Leave the user name empty for a server without logins. The "
                               "password is kept in your keyring."),
                            this);
    note->setWordWrap(true);
    layout->addRow(note);
    m_connect->setObjectName(QStringLiteral("connect"));
    m_connect->setDefault(true);
    auto* row = new QHBoxLayout;
    row->addWidget(m_connect);
    row->addStretch();
    layout->addRow(QString(), row);
    connect(m_connect, &QPushButton::clicked, this, &SyncTab::onConnect);
    connect(m_url, &QLineEdit::returnPressed, this, &SyncTab::onConnect);
    connect(m_password, &QLineEdit::returnPressed, this, &SyncTab::onConnect);
}

void SyncTab::addStatusSection(QFormLayout* layout)
{
    layout->addItem(new QSpacerItem(0, 12));
    m_status->setObjectName(QStringLiteral("syncStatus"));
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addRow(tr("Last sync:"), m_status);
    auto* buttons = new QHBoxLayout;
    m_syncNow->setObjectName(QStringLiteral("syncNow"));
    m_stop->setObjectName(QStringLiteral("stopSyncing"));
    buttons->addWidget(m_syncNow);
    buttons->addWidget(m_stop);
    buttons->addStretch();
    layout->addRow(QString(), buttons);
    connect(m_syncNow, &QPushButton::clicked, &m_sync, &Sync::syncNow);
    connect(m_stop, &QPushButton::clicked, this, &SyncTab::onStop);
}

void SyncTab::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_url->setText(m_sync.url().toString());
    m_user->setText(m_sync.user());
    m_password->clear();
    showState();
    m_ageing.start();
}

void SyncTab::hideEvent(QHideEvent* event)
{
    m_ageing.stop();
    QWidget::hideEvent(event);
}

void SyncTab::onConnect()
{
    // An address typed without its scheme is taken as a secure one.
    QString typed = m_url->text().trimmed();
    if (!typed.isEmpty() && !typed.contains(QStringLiteral("://")))
        typed.prepend(QStringLiteral("https://"));
    const QUrl url(typed);
    if (!isServerAddress(url)) {
        Balloon::show(tr("Enter the address of a CalDAV server or collection, such as "
                         "https://dav.example.com/."),
                      m_url);
        return;
    }
    const QString user = m_user->text().trimmed();
    const bool sameAccount =
        m_sync.isOn() && Sync::account(url, user) == Sync::account(m_sync.url(), m_sync.user());
    // Left empty, the password stored for the same login stays.
    std::optional<QString> password;
    if (!m_password->text().isEmpty() || !sameAccount)
        password = m_password->text();
    m_connect->setEnabled(false);
    m_sync.connectTo(url, user, password, this, [this](const QString& error) {
        m_connect->setEnabled(true);
        if (!error.isEmpty()) {
            Balloon::show(tr("Your keyring could not keep the password (%1), so nothing was "
                             "changed.")
                              .arg(error),
                          m_password);
            return;
        }
        m_password->clear();
        m_url->setText(m_sync.url().toString());
        m_sync.syncNow();
    });
}

void SyncTab::onStop()
{
    m_sync.turnOff();
    m_password->clear();
}

void SyncTab::showState()
{
    const bool on = m_sync.isOn();
    m_connect->setText(on ? tr("Save Changes") : tr("Start Syncing"));
    m_password->setPlaceholderText(on && !m_sync.user().isEmpty() ? tr("Kept in your keyring")
                                                                  : QString());
    m_syncNow->setEnabled(on && !m_sync.isSyncing());
    m_stop->setEnabled(on);
    m_status->setText(statusText());
}

QString SyncTab::statusText() const
{
    if (!m_sync.isOn())
        return tr("Sync is off: your data stays on this computer.");
    if (m_sync.isSyncing())
        return tr("Syncing…");
    const std::optional<SyncResult>& last = m_sync.lastResult();
    if (!last)
        return tr("Not synced yet.");
    if (!last->ok())
        return problemText();
    QString text = syncedText();
    if (last->unreadable > 0)
        text += QLatin1Char(' ') + tr("%n item(s) on the server could not be read and were left "
                                      "there.",
                                      nullptr, last->unreadable);
    if (last->refused > 0)
        text += QLatin1Char(' ') +
                tr("The server refused %n change(s); they wait here.", nullptr, last->refused);
    return text;
}

QString SyncTab::syncedText() const
{
    const std::optional<Date> at = m_sync.lastSyncedAt();
    // "Synced 2 minutes ago."
    return at ? tr("Synced %1.").arg(at->relativeTimeToString(m_clock)) : QString();
}

QString SyncTab::problemText() const
{
    const SyncResult& last = *m_sync.lastResult();
    QString text;
    if (last.keyringUnavailable)
        text = tr("Your keyring could not give the password (%1).").arg(last.detail);
    else if (last.saveFailed)
        text = tr("What came from the server could not be saved here; the next sync tries again.");
    else {
        switch (last.problem) {
        case Problem::Unreachable:
            text = tr("The server could not be reached (%1). Your changes wait here and go at the "
                      "next sync.")
                       .arg(last.detail);
            break;
        case Problem::Certificate:
            text = tr("The server's certificate is not trusted (%1), so nothing was sent.")
                       .arg(last.detail);
            break;
        case Problem::LoginRefused:
            text = tr("The server refused the user name or password.");
            break;
        case Problem::NotFound:
            text = tr("There is no collection at this address.");
            break;
        case Problem::NoTaskList:
            text = tr("No calendar that holds tasks was found at this address.");
            break;
        case Problem::ServerError:
            text = tr("The server failed (%1). Your changes wait here and go at the next sync.")
                       .arg(last.detail);
            break;
        case Problem::Aborted:
            text = tr("The last sync was cut short. Your changes wait here and go at the next "
                      "sync.");
            break;
        case Problem::Garbage:
            text = tr("The server's answer made no sense (%1), so nothing was changed.")
                       .arg(last.detail);
            break;
        default:
            text = tr("The server refused the sync (%1). Your changes wait here.").arg(last.detail);
            break;
        }
    }
    return text;
}

} // namespace lullet
