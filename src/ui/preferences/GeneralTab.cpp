#include "ui/preferences/GeneralTab.h"

#include "core/settings/Settings.h"
#include "core/text/CountedText.h"
#include "ui/desktop/DesktopPresence.h"
#include "ui/widgets/Dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace lullet {

namespace {

constexpr int periods[] = {1, 2, 5, 10, 15, 20, 30, 45, 60};

// "1 min", "2 mins" … "60 mins".
QString periodTitle(int minutes)
{
    return CountedText::text("GeneralTab", QT_TRANSLATE_N_NOOP("GeneralTab", "%n mins"), minutes,
                             minutes > 1 ? nullptr : "%n min");
}

} // namespace

GeneralTab::GeneralTab(Settings& settings, DesktopPresence& presence, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_presence(presence)
    , m_period(new QComboBox(this))
    , m_startAtLogin(new QCheckBox(tr("Start Lullet at login"), this))
    , m_taskbar(new QCheckBox(tr("Show the window in the taskbar at launch"), this))
    , m_trayIcon(new QCheckBox(tr("Show the icon in the tray"), this))
{
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    addPeriodSection(layout);
    addRemindersSection(layout);
    addPresenceSection(layout);
}

// When prompts wait, and how they sound.
void GeneralTab::addRemindersSection(QFormLayout* layout)
{
    layout->addItem(new QSpacerItem(0, 12));
    auto* away = new QSpinBox(this);
    away->setObjectName(QStringLiteral("awayMinutes"));
    away->setRange(1, 120);
    away->setSuffix(tr(" min"));
    away->setValue(std::max(1, m_settings.awayMinutes()));
    connect(away, &QSpinBox::valueChanged, &m_settings, &Settings::setAwayMinutes);
    layout->addRow(tr("Hold prompts when I'm away for"), away);
    const auto addSwitch = [this, layout](const QString& name, const QString& text, bool on,
                                          void (Settings::*set)(bool)) {
        auto* box = new QCheckBox(text, this);
        box->setObjectName(name);
        box->setChecked(on);
        connect(box, &QCheckBox::toggled, &m_settings, set);
        layout->addRow(box);
    };
    addSwitch(QStringLiteral("holdWhileFullScreen"),
              tr("Hold prompts while another program is full screen"),
              m_settings.holdWhileFullScreen(), &Settings::setHoldWhileFullScreen);
    addSwitch(QStringLiteral("naturalBreaks"),
              tr("A break due while I'm away for its length counts as taken"),
              m_settings.naturalBreaks(), &Settings::setNaturalBreaks);
    addSwitch(QStringLiteral("promptSound"), tr("Play a sound with each prompt"),
              m_settings.promptSound(), &Settings::setPromptSound);
}

void GeneralTab::addPeriodSection(QFormLayout* layout)
{
    m_period->setObjectName(QStringLiteral("promptDuration"));
    for (int minutes : periods)
        m_period->addItem(periodTitle(minutes), minutes);
    // A stored period that is none of the choices leaves the first one showing, and stays
    // stored until the user picks another.
    const int stored = m_settings.promptDuration();
    m_period->setCurrentIndex(stored > 0 ? std::max(0, m_period->findData(stored)) : 0);
    layout->addRow(tr("Ask what I'm doing after"), m_period);
    auto* explanation =
        new QLabel(tr("During your working hours, when nothing has run for this long, Lullet "
                      "asks what you have been doing."),
                   this);
    explanation->setWordWrap(true);
    layout->addRow(explanation);
    connect(m_period, &QComboBox::activated, this, &GeneralTab::onPeriodChosen);
}

void GeneralTab::addPresenceSection(QFormLayout* layout)
{
    layout->addItem(new QSpacerItem(0, 12));
    m_startAtLogin->setObjectName(QStringLiteral("openAtLogIn"));
    m_taskbar->setObjectName(QStringLiteral("UDDockIcon"));
    m_trayIcon->setObjectName(QStringLiteral("UDStatusBarIcon"));
    layout->addRow(m_startAtLogin);
    layout->addRow(m_taskbar);
    layout->addRow(m_trayIcon);
    showPresence();
    connect(m_startAtLogin, &QCheckBox::toggled, this, &GeneralTab::onStartAtLoginToggled);
    connect(m_taskbar, &QCheckBox::toggled, this, &GeneralTab::onTaskbarToggled);
    connect(m_trayIcon, &QCheckBox::toggled, this, &GeneralTab::onTrayIconToggled);
}

void GeneralTab::showPresence()
{
    const QSignalBlocker login(m_startAtLogin);
    const QSignalBlocker taskbar(m_taskbar);
    const QSignalBlocker tray(m_trayIcon);
    m_startAtLogin->setChecked(m_presence.startsAtLogin());
    m_taskbar->setChecked(m_presence.showsWindowAtLaunch());
    m_trayIcon->setChecked(m_presence.trayIconShown());
    // Without the window in the taskbar the icon is the only way back to the program.
    m_trayIcon->setEnabled(m_presence.showsWindowAtLaunch());
}

void GeneralTab::onPeriodChosen(int index)
{
    const int minutes = m_period->itemData(index).toInt();
    m_settings.setPromptDuration(minutes);
}

void GeneralTab::onStartAtLoginToggled(bool on)
{
    if (!m_presence.setStartAtLogin(on))
        Dialogs::inform(this, tr("Lullet could not change how it starts at login."),
                        m_presence.errorMessage());
    showPresence();
}

void GeneralTab::onTaskbarToggled(bool on)
{
    m_presence.setShowWindowAtLaunch(on);
    showPresence();
    if (on)
        return;
    const bool relaunchNow = Dialogs::confirm(
        this, tr("You must now restart app"),
        tr("Your new setting for the taskbar won't show up until you relaunch this application."),
        tr("Relaunch Now"), tr("Later"));
    if (relaunchNow && !m_presence.relaunch())
        Dialogs::inform(this, tr("Lullet could not be started again."),
                        tr("Quit Lullet and start it yourself to see the new setting."));
}

void GeneralTab::onTrayIconToggled(bool on)
{
    m_presence.setTrayIconShown(on);
    showPresence();
}

} // namespace lullet
