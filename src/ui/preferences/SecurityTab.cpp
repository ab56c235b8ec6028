#include "ui/preferences/SecurityTab.h"

#include "core/security/PasswordRules.h"
#include "core/security/Protection.h"
#include "ui/widgets/Dialogs.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

namespace {

const char* const errorColor = "E34947";
const char* const successColor = "06A0EB";
QString doneTitle()
{
    return QCoreApplication::translate("SecurityTab", "Done");
}

QString changeTitle()
{
    return QCoreApplication::translate("SecurityTab", "Change");
}

QLineEdit* passwordField(const QString& name, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setEchoMode(QLineEdit::Password);
    return field;
}

QLabel* messageLabel(const QString& name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->hide();
    return label;
}

} // namespace

SecurityTab::SecurityTab(Protection& protection, QWidget* parent)
    : QWidget(parent)
    , m_protection(protection)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    m_switch = new QCheckBox(tr("Protect Lullet with a password"), this);
    m_switch->setObjectName(QStringLiteral("protection"));
    m_note = new QLabel(tr("With a password, Lullet asks for it each time it starts, before it "
                           "shows anything of your tasks."),
                        this);
    m_note->setWordWrap(true);
    m_done = new QPushButton(doneTitle(), this);
    m_done->setObjectName(QStringLiteral("done"));
    layout->addWidget(m_switch);
    layout->addWidget(m_note);
    layout->addWidget(makeKeyringStatus());
    layout->addWidget(makeGate());
    layout->addWidget(makeNewPassword());
    layout->addStretch();
    layout->addWidget(m_done, 0, Qt::AlignRight);
    connect(m_switch, &QCheckBox::clicked, this, &SecurityTab::onSwitchClicked);
    connect(m_done, &QPushButton::clicked, this, &SecurityTab::onDone);
    readStoredPassword();
}

QWidget* SecurityTab::makeKeyringStatus()
{
    m_keyring = new QWidget(this);
    auto* layout = new QHBoxLayout(m_keyring);
    layout->setContentsMargins(0, 0, 0, 0);
    m_keyringText = new QLabel(m_keyring);
    m_keyringText->setObjectName(QStringLiteral("keyringStatus"));
    m_keyringText->setWordWrap(true);
    m_retry = new QPushButton(tr("Retry"), m_keyring);
    m_retry->setObjectName(QStringLiteral("retry"));
    layout->addWidget(m_keyringText, 1);
    layout->addWidget(m_retry, 0, Qt::AlignTop);
    connect(m_retry, &QPushButton::clicked, this, &SecurityTab::readStoredPassword);
    return m_keyring;
}

QWidget* SecurityTab::makeGate()
{
    m_gate = new QWidget(this);
    auto* layout = new QFormLayout(m_gate);
    m_current = passwordField(QStringLiteral("currentPassword"), m_gate);
    auto* proceed = new QPushButton(tr("Continue"), m_gate);
    proceed->setObjectName(QStringLiteral("continue"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_current);
    row->addWidget(proceed);
    m_gateMessage = messageLabel(QStringLiteral("currentPasswordMessage"), m_gate);
    layout->addRow(tr("Current password:"), row);
    layout->addRow(QString(), m_gateMessage);
    connect(m_current, &QLineEdit::returnPressed, this, &SecurityTab::onContinue);
    connect(proceed, &QPushButton::clicked, this, &SecurityTab::onContinue);
    return m_gate;
}

QWidget* SecurityTab::makeNewPassword()
{
    m_fields = new QWidget(this);
    auto* layout = new QFormLayout(m_fields);
    m_new = passwordField(QStringLiteral("newPassword"), m_fields);
    m_repeat = passwordField(QStringLiteral("repeatPassword"), m_fields);
    m_message = messageLabel(QStringLiteral("passwordMessage"), m_fields);
    layout->addRow(tr("New password:"), m_new);
    layout->addRow(tr("Confirm password:"), m_repeat);
    layout->addRow(QString(), m_message);
    connect(m_repeat, &QLineEdit::returnPressed, m_done, &QPushButton::click);
    return m_fields;
}

void SecurityTab::readStoredPassword()
{
    m_protected = m_protection.isOn();
    // Until the keyring answers nothing can be changed: what it holds decides what shows.
    m_switch->setEnabled(false);
    m_switch->setChecked(m_protected);
    m_keyring->show();
    m_retry->hide();
    m_keyringText->setText(tr("Reading the keyring…"));
    m_gate->hide();
    m_fields->hide();
    m_done->hide();
    m_protection.readPassword(this, [this](const SecretStore::Reading& reading) {
        if (reading.outcome == SecretStore::Outcome::Unavailable) {
            m_keyringText->setText(
                tr("Lullet cannot reach your keyring, where the password is kept. Nothing here "
                   "can change until it can.\n%1")
                    .arg(reading.error));
            m_retry->show();
            return;
        }
        m_keyring->hide();
        m_password = reading.secret;
        m_confirmed = reading.outcome == SecretStore::Outcome::NotFound;
        if (m_confirmed)
            m_protected = false;
        m_switch->setChecked(m_protected);
        // With protection on, the current password comes before the switch can go off.
        m_switch->setEnabled(!m_protected);
        showParts();
    });
}

void SecurityTab::showParts()
{
    const bool on = m_switch->isChecked();
    m_note->setVisible(!on);
    m_gate->setVisible(on && !m_confirmed);
    m_fields->setVisible(on && m_confirmed);
    m_done->setVisible(on && m_confirmed);
    m_message->hide();
}

void SecurityTab::onSwitchClicked(bool on)
{
    if (on) {
        if (m_protected) {
            m_new->clear();
            m_repeat->clear();
            m_password.clear();
            m_done->setText(doneTitle());
        }
        m_protection.switchOn();
    } else {
        m_protection.switchOff(this, [this](const QString& error) {
            if (!error.isEmpty())
                Dialogs::inform(window(),
                                tr("Protection is off, but your keyring could not remove the "
                                   "password."),
                                error);
        });
        // The stored password is gone with the switch: nothing stands in the way any more.
        m_password.clear();
        m_confirmed = true;
        m_new->setEnabled(true);
        m_repeat->setEnabled(true);
    }
    showParts();
}

void SecurityTab::onContinue()
{
    if (const auto problem = PasswordRules::currentPasswordProblem(m_current->text(), m_password)) {
        showMessage(m_gateMessage, *problem, errorColor);
        return;
    }
    m_gateMessage->hide();
    m_current->clear();
    m_confirmed = true;
    m_switch->setEnabled(true);
    m_new->setText(m_password);
    m_repeat->setText(m_password);
    m_done->setText(changeTitle());
    showParts();
    m_new->setFocus();
}

void SecurityTab::onDone()
{
    // The fields are checked first, also before "Change" opens them again.
    if (const auto problem = PasswordRules::newPasswordProblem(m_new->text(), m_repeat->text())) {
        showMessage(m_message, *problem, errorColor);
        return;
    }
    m_message->hide();
    m_password = PasswordRules::trimmed(m_new->text());
    m_protected = true;
    if (m_done->text() == changeTitle()) {
        m_done->setText(doneTitle());
        m_new->setEnabled(true);
        m_repeat->setEnabled(true);
        m_new->setFocus();
        return;
    }
    m_done->setText(changeTitle());
    m_new->setEnabled(false);
    m_repeat->setEnabled(false);
    m_done->setEnabled(false);
    m_protection.storePassword(m_password, this, [this](const QString& error) { onStored(error); });
}

void SecurityTab::onStored(const QString& error)
{
    m_done->setEnabled(true);
    if (error.isEmpty()) {
        showMessage(m_message, tr("Password protection is set!"), successColor);
        return;
    }
    // Nothing is protected by a password the keyring does not hold: the user may try again.
    m_done->setText(doneTitle());
    m_new->setEnabled(true);
    m_repeat->setEnabled(true);
    showMessage(
        m_message,
        tr("Your keyring could not store the password, so protection stays off.\n%1").arg(error),
        errorColor);
}

void SecurityTab::showMessage(QLabel* label, const QString& text, const char* color)
{
    label->setStyleSheet(QStringLiteral("color: #%1").arg(QLatin1String(color)));
    label->setText(text);
    label->show();
}

} // namespace lullet
