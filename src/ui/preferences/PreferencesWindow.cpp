#include "ui/preferences/PreferencesWindow.h"

#include "core/app/Services.h"
#include "core/security/Lock.h"
#include "ui/preferences/BackupTab.h"
#include "ui/preferences/GeneralTab.h"
#include "ui/preferences/MoreInfoTab.h"
#include "ui/preferences/ScheduleTab.h"
#include "ui/preferences/SecurityTab.h"
#include "ui/preferences/SyncTab.h"
#include "ui/preferences/TabIcons.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace lullet {

namespace {

constexpr int windowWidth = 560;

struct TabLook {
    PreferencesWindow::Tab tab;
    const char* name;
    const char* caption;
    const char* themeIcon;
    QIcon (*drawnIcon)(const QColor& ink);
    // The height of the whole window while the tab shows.
    int height;
};

const TabLook tabs[] = {
    {PreferencesWindow::Tab::General, "general", QT_TRANSLATE_NOOP("PreferencesWindow", "General"),
     "preferences-system", &TabIcons::general, 319},
    {PreferencesWindow::Tab::Security, "security",
     QT_TRANSLATE_NOOP("PreferencesWindow", "Security"), "security-high", &TabIcons::security, 400},
    {PreferencesWindow::Tab::Backup, "backup", QT_TRANSLATE_NOOP("PreferencesWindow", "Backup"),
     "document-save", &TabIcons::backup, 457},
    {PreferencesWindow::Tab::Sync, "sync", QT_TRANSLATE_NOOP("PreferencesWindow", "Sync"),
     "emblem-synchronizing", &TabIcons::sync, 457},
    {PreferencesWindow::Tab::Schedule, "schedule",
     QT_TRANSLATE_NOOP("PreferencesWindow", "Schedule"), "x-office-calendar", &TabIcons::schedule,
     457},
    {PreferencesWindow::Tab::MoreInfo, "moreInfo",
     QT_TRANSLATE_NOOP("PreferencesWindow", "More Info"), "help-about", &TabIcons::moreInfo, 457},
};

const TabLook& look(PreferencesWindow::Tab tab)
{
    for (const TabLook& each : tabs) {
        if (each.tab == tab)
            return each;
    }
    return tabs[0];
}

} // namespace

PreferencesWindow::PreferencesWindow(const Services& services, BackupCommands& backupCommands,
                                     DesktopPresence& presence, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_services(services)
    , m_backupCommands(backupCommands)
    , m_presence(presence)
    , m_pages(new QStackedWidget(this))
{
    setWindowTitle(tr("Lullet Preferences"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_toolBar = new QToolBar(this);
    makeToolBar(m_toolBar);
    layout->addWidget(m_toolBar);
    layout->addWidget(m_pages, 1);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this,
            &QWidget::close);
    if (m_services.lock.isLocked()) {
        // Behind the lock only the password settings can be reached.
        for (const auto& [tab, action] : m_actions)
            action->setVisible(tab == Tab::Security);
        connect(&m_services.lock, &Lock::unlocked, this, &PreferencesWindow::showUnlockedTabs);
        showTab(Tab::Security);
    } else {
        showTab(Tab::General);
    }
}

void PreferencesWindow::makeToolBar(QToolBar* bar)
{
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize(QSize(32, 32));
    auto* group = new QActionGroup(this);
    for (const TabLook& each : tabs) {
        QAction* action =
            bar->addAction(QCoreApplication::translate("PreferencesWindow", each.caption));
        action->setObjectName(QLatin1String(each.name));
        action->setCheckable(true);
        group->addAction(action);
        const Tab tab = each.tab;
        connect(action, &QAction::triggered, this, [this, tab] { showTab(tab); });
        m_actions.emplace(tab, action);
    }
    showIcons();
}

void PreferencesWindow::showIcons()
{
    const QColor ink = palette().color(QPalette::WindowText);
    for (const TabLook& each : tabs)
        m_actions.at(each.tab)->setIcon(
            QIcon::fromTheme(QLatin1String(each.themeIcon), each.drawnIcon(ink)));
}

void PreferencesWindow::changeEvent(QEvent* event)
{
    // A dark palette, or a light one again: the drawn icons follow its text colour.
    if (event->type() == QEvent::PaletteChange)
        showIcons();
    QWidget::changeEvent(event);
}

QWidget* PreferencesWindow::page(Tab tab)
{
    // A tab is made when first shown.
    if (auto made = m_made.find(tab); made != m_made.end())
        return made->second;
    QWidget* made = nullptr;
    switch (tab) {
    case Tab::General:
        made = new GeneralTab(m_services.settings, m_presence, m_pages);
        break;
    case Tab::Security:
        made = new SecurityTab(m_services.protection, m_pages);
        break;
    case Tab::Backup:
        made = new BackupTab(m_services, m_backupCommands, m_pages);
        break;
    case Tab::Sync:
        made = new SyncTab(m_services.sync, m_services.clock, m_pages);
        break;
    case Tab::Schedule:
        made = new ScheduleTab(m_services, m_pages);
        break;
    case Tab::MoreInfo:
        made = new MoreInfoTab(m_pages);
        break;
    }
    m_pages->addWidget(made);
    m_made.emplace(tab, made);
    return made;
}

void PreferencesWindow::showTab(Tab tab)
{
    m_current = tab;
    m_actions.at(tab)->setChecked(true);
    m_pages->setCurrentWidget(page(tab));
    // Resizing keeps the window's top left corner: the top edge stays. A tab whose texts wrap to
    // more lines, in a longer language, takes the height they need.
    QWidget* shown = page(tab);
    const int needed = m_toolBar->sizeHint().height() +
                       (shown->layout() ? shown->layout()->totalMinimumHeightForWidth(windowWidth)
                                        : shown->minimumSizeHint().height());
    setFixedSize(windowWidth, std::max(look(tab).height, needed));
}

void PreferencesWindow::showUnlockedTabs()
{
    for (const auto& [tab, action] : m_actions)
        action->setVisible(true);
}

} // namespace lullet
